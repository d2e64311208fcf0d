// The widgets and items that the layout does not know: each goes where its control says it stands.
#include <QBoxLayout>
#include <QGridLayout>
#include <QPushButton>

#include <algorithm>

#include "ui/form_binder.h"
#include "ui/text.h"
#include "ui/verdict_label.h"

namespace ui {
namespace {

// Behind the buttons that stand there, in front of the space at the end.
QWidget* AddedButton(QWidget& home) {
  constexpr QSize kSmallest(170, 28);
  auto* row = qobject_cast<QBoxLayout*>(home.layout());
  if (!row) return nullptr;
  auto* button = new QPushButton(&home);
  button->setMinimumSize(kSmallest);
  row->insertWidget(row->count() - 1, button);
  return button;
}

// The next cell of a table whose first row gives its columns.
QWidget* AddedCell(QWidget& home) {
  auto* table = qobject_cast<QGridLayout*>(home.layout());
  if (!table) return nullptr;
  const int columns = table->columnCount();
  const int cells = table->count();
  auto* label = new VerdictLabel(&home);
  label->setProperty("UseMnemonic", false);
  label->setWordWrap(true);
  table->addWidget(label, cells / columns, cells % columns);
  return label;
}

}  // namespace

QWidget* FormBinder::AddWidget(const screen::Control& control) {
  QWidget* home = page_.FindWidget(DesignName(control.home));
  if (!home) return nullptr;
  const bool label = control.kind == screen::Kind::Label;
  QWidget* widget = label ? AddedCell(*home) : AddedButton(*home);
  if (!widget) return nullptr;
  widget->setObjectName(DesignName(control.name));
  page_.sizes->Add(*widget);
  return widget;
}

// In front of the submenus.
QAction* FormBinder::AddItem(const screen::Control& control) {
  QMenu* menu = page_.FindMenu(DesignName(control.home));
  if (!menu) return nullptr;
  auto* item = new QAction(page_.content);
  item->setObjectName(DesignName(control.name));
  item->setShortcut(QKeySequence(Shown(control.keys), QKeySequence::PortableText));
  const QList<QAction*> items = menu->actions();
  const auto submenu = std::find_if(items.begin(), items.end(),
                                    [](const QAction* each) { return each->menu() != nullptr; });
  menu->insertAction(submenu == items.end() ? nullptr : *submenu, item);
  return item;
}

}  // namespace ui
