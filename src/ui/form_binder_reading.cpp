// What the keyboard and a screen reader need to know of a page: access keys and names.
#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QVariant>

#include <algorithm>

#include "screen/access_keys.h"
#include "ui/form_binder.h"
#include "ui/spoken.h"
#include "ui/text.h"

namespace ui {

using screen::Kind;

namespace {

// The menu that shows the item; null for one of the menu bar.
const QMenu* MenuOf(const Page& page, QAction* item) {
  for (const QMenu* menu : page.menus) {
    if (menu->actions().contains(item)) return menu;
    for (const QMenu* submenu : menu->findChildren<QMenu*>())
      if (submenu->actions().contains(item)) return submenu;
  }
  return nullptr;
}

bool InBar(const Page& page, const QAction* item) {
  return std::find(page.barItems.begin(), page.barItems.end(), item) != page.barItems.end();
}

QString TextOf(const QWidget* widget) {
  if (auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
  if (auto* box = qobject_cast<const QComboBox*>(widget)) return box->currentText();
  return {};
}

}  // namespace

void FormBinder::Group(ControlView& view) {
  if (QAction* item = view.Action()) {
    const QMenu* menu = MenuOf(page_, item);
    if (menu || InBar(page_, item)) seenTogether_[menu].push_back(&view);
  } else if (qobject_cast<QAbstractButton*>(view.Widget())) {
    seenTogether_[nullptr].push_back(&view);
  }
}

// Hidden ones count too, so that a key stays where it is when one of them appears.
void FormBinder::GiveAccessKeys() {
  for (const auto& [menu, views] : seenTogether_) {
    std::vector<std::string> captions;
    for (const ControlView* view : views) captions.push_back(view->Control().text);
    captions = screen::WithOwnKeys(std::move(captions));
    for (std::size_t i = 0; i < views.size(); ++i) views[i]->ShowCaption(captions[i]);
  }
}

QString FormBinder::UnitOf(const QWidget& field) const {
  const QString name = field.property("Unit").toString();
  const QWidget* unit = name.isEmpty() ? nullptr : page_.FindWidget(name);
  return unit && !unit->isHidden() ? TextOf(unit).remove(kBreak).trimmed() : QString();
}

// By its label and the unit of its number, as both stand now; a field without a label by its tip.
void FormBinder::NameFields() {
  for (const ControlView& view : views_) {
    const Kind kind = view.Control().kind;
    if (kind != Kind::TextBox && kind != Kind::ComboBox && kind != Kind::UpDown) continue;
    QWidget& widget = *view.Widget();
    const QWidget* field = &widget;
    if (kind == Kind::UpDown) field = page_.FindWidget(widget.property("Field").toString());
    const auto label = labels_.find(field);
    const QString caption = label == labels_.end() ? QString() : label->second->text();
    const QString name = SpokenField(caption.isEmpty() ? view.Control().tip : Typed(caption),
                                     field ? UnitOf(*field) : QString());
    GiveName(widget, name);
    if (auto* box = qobject_cast<QComboBox*>(&widget)) GiveName(*box->lineEdit(), name);
  }
}

}  // namespace ui
