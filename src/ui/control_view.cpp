#include "ui/control_view.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVariant>

#include <algorithm>

#include "ui/elided_label.h"
#include "ui/picture_view.h"
#include "ui/reading_text.h"
#include "ui/spoken.h"
#include "ui/text.h"
#include "ui/title_frame.h"
#include "ui/vkr_grid_view.h"

namespace ui {
namespace {

QString DesignText(const QWidget* widget) {
  if (auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
  if (auto* edit = qobject_cast<const QLineEdit*>(widget)) return edit->text();
  if (auto* box = qobject_cast<const QComboBox*>(widget)) return box->currentText();
  if (auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text();
  if (auto* frame = qobject_cast<const QGroupBox*>(widget)) return frame->title();
  return {};
}

bool CutsOff(const QWidget* widget, const QString& text) {
  constexpr int kEdges = 10;  // frame and margins of both sides
  const int needed = widget->fontMetrics().horizontalAdvance(text);
  if (qobject_cast<const ElidedLabel*>(widget)) return needed > widget->contentsRect().width();
  return qobject_cast<const QLineEdit*>(widget) && needed + kEdges > widget->width();
}

std::string Property(const QObject& object, const char* name) {
  return Typed(object.property(name).toString());
}

}  // namespace

void ControlView::ReadDesign() {
  if (widget_) {
    control_.tag = Property(*widget_, "Tag");
    control_.toolTipText = Property(*widget_, "ToolTipText");
    control_.text = ui::Typed(DesignText(widget_));
    return;
  }
  const QMenu* submenu = action_->menu();
  const QObject& design = submenu ? static_cast<const QObject&>(*submenu) : *action_;
  control_.tag = Property(design, "Caption");
  control_.text = ui::Typed(action_->text());
}

void ControlView::Typed(const QString& text) {
  control_.text = ui::Typed(text);
  control_.touched = true;
  if (!shown_) return;
  shown_->text = control_.text;
  PushTip();
}

void ControlView::Ticked(bool on) {
  control_.ticked = on;
  auto* button = qobject_cast<QAbstractButton*>(widget_);
  if (shown_ && button) shown_->ticked = button->isChecked();
}

void ControlView::Scrolled(int value) {
  control_.value = value;
  if (shown_) shown_->value = value;
}

void ControlView::Push(bool onPage) {
  if (action_) {
    PushAction(onPage);
    return;
  }
  if (auto* view = qobject_cast<VkrGridView*>(widget_)) {
    auto& grid = static_cast<screen::Grid&>(control_);
    if (grid.revision != gridRevision_) view->Refresh();
    gridRevision_ = grid.revision;
  }
  if (auto* picture = qobject_cast<PictureView*>(widget_)) picture->Refresh();
  if (auto* text = qobject_cast<ReadingText*>(widget_))
    text->Push(static_cast<const screen::TextView&>(control_));
  if (!shown_ || !(*shown_ == control_)) {
    const screen::ControlState old = shown_.value_or(screen::ControlState{});
    const bool first = !shown_;
    shown_ = control_;
    PushWidget(old, first);
  }
  if (control_.selectAll) SelectAll();
}

void ControlView::PushWidget(const screen::ControlState& old, bool first) {
  const screen::ControlState& now = *shown_;
  if (first || now.items != old.items) PushItems();
  if (first || now.text != old.text || now.items != old.items) PushText();
  if (first || now.tip != old.tip || now.text != old.text) PushTip();
  if (first || now.ticked != old.ticked) PushTicked();
  if (first || now.value != old.value) PushValue();
  if (first || now.enabled != old.enabled) widget_->setEnabled(now.enabled);
  if (now.font && now.font != old.font) PushFont();
  if (first || now.visible != old.visible) widget_->setVisible(now.visible);
  if (now.place && (first || now.place != old.place)) PushPlace();
  if (first || now.colour != old.colour || now.sign != old.sign || now.locked != old.locked)
    PushLook();
  if (first || now.text != old.text || now.tip != old.tip) NameForReaders();
}

void ControlView::PushText() {
  const QString text = Shown(shown_->text);
  if (auto* label = qobject_cast<QLabel*>(widget_)) {
    const QVariant useMnemonic = label->property("UseMnemonic");
    const QString whole = LabelText(shown_->text, !useMnemonic.isValid() || useMnemonic.toBool());
    label->setText(label->wordWrap() ? whole : QString(whole).remove(kBreak));
  } else if (auto* edit = qobject_cast<QLineEdit*>(widget_)) {
    if (edit->text() == text) return;
    edit->setText(text);
    if (shown_->locked) ShowWhole(*edit);
  } else if (auto* box = qobject_cast<QComboBox*>(widget_)) {
    if (box->currentText() != text) box->setEditText(text);
  } else if (auto* button = qobject_cast<QAbstractButton*>(widget_)) {
    button->setText(Lines(shown_->text));
  } else if (auto* frame = qobject_cast<TitleFrame*>(widget_)) {
    frame->SetTitle(text);
  } else if (auto* grid = qobject_cast<VkrGridView*>(widget_)) {
    grid->SetCaption(text);
  } else if (qobject_cast<PictureView*>(widget_)) {
    GiveName(*widget_, text);
  }
}

// A number that has lost one of its ends is another number: where it is too long for the box that
// is designed for it, the box grows meanwhile. Other texts show their beginning.
void ControlView::ShowWhole(QLineEdit& box) {
  constexpr int kEdges = 10;  // frame and margins of both sides
  box.setCursorPosition(0);
  if (!designWidth_ && box.minimumWidth() == box.maximumWidth()) designWidth_ = box.minimumWidth();
  if (!designWidth_) return;
  const int needed = box.fontMetrics().horizontalAdvance(box.text()) + kEdges;
  box.setFixedWidth(std::max(*designWidth_, needed));
}

void ControlView::PushTip() {
  if (!widget_ || !shown_) return;
  std::string tip = shown_->tip;
  if (CutsOff(widget_, Shown(shown_->text))) tip = shown_->text + (tip.empty() ? "" : "\n") + tip;
  widget_->setToolTip(TipText(tip));
  // A reader would take the tip as it is written for the screen.
  const QString plain = Lines(tip).trimmed();
  if (!qobject_cast<PictureView*>(widget_) && widget_->accessibleDescription() != plain)
    widget_->setAccessibleDescription(plain);
}

void ControlView::FontChanged() {
  designWidth_.reset();
  if (auto* text = qobject_cast<ReadingText*>(widget_)) text->TakeFont();
  auto* box = qobject_cast<QLineEdit*>(widget_);
  if (box && shown_ && shown_->locked) ShowWhole(*box);
}

void ControlView::PushItems() {
  auto* box = qobject_cast<QComboBox*>(widget_);
  if (!box) return;
  box->clear();
  for (const std::string& item : shown_->items) box->addItem(Shown(item));
}

// A group of option buttons keeps one of them ticked against any change by program, unless its
// exclusiveness is lifted for the moment.
void ControlView::PushTicked() {
  auto* button = qobject_cast<QAbstractButton*>(widget_);
  if (!button || !button->isCheckable()) return;
  const bool exclusive = button->autoExclusive();
  button->setAutoExclusive(false);
  button->setChecked(shown_->ticked);
  button->setAutoExclusive(exclusive);
}

void ControlView::PushPlace() {
  const screen::Place& place = *shown_->place;
  const QRectF twips(place.left, place.top, place.width, place.height);
  widget_->setGeometry(
      QRectF(twips.topLeft() / drawing::kTwipsPerPixel, twips.size() / drawing::kTwipsPerPixel)
          .toRect());
}

void ControlView::PushFont() {
  QFont font(Shown(shown_->font->family));
  font.setPointSizeF(shown_->font->points);
  widget_->setFont(font);
}

void ControlView::PushValue() {
  auto* bar = qobject_cast<QScrollBar*>(widget_);
  if (!bar) return;
  const QSignalBlocker noEvent(bar);
  bar->setValue(shown_->value);
}

void ControlView::PushAction(bool onPage) {
  // The toolkit turns the tick of a chosen item by itself.
  if (action_->isCheckable()) action_->setChecked(control_.ticked);
  screen::ControlState now = control_;
  now.visible = control_.visible && onPage;
  // The bar keeps the access keys of what it hides, and they would be another one's as well.
  if (!onPage) now.text.clear();
  if (shown_ && *shown_ == now) return;
  shown_ = std::move(now);
  action_->setText(Shown(shown_->text));
  action_->setToolTip(TipText(shown_->tip));
  action_->setEnabled(shown_->enabled);
  action_->setVisible(shown_->visible);
}

void ControlView::ShowCaption(const std::string& caption) {
  const QString text = action_ ? Shown(caption) : Lines(caption);
  if (action_ && action_->text() != text) action_->setText(text);
  auto* button = qobject_cast<QAbstractButton*>(widget_);
  if (button && button->text() != text) button->setText(text);
}

void ControlView::SelectAll() {
  control_.selectAll = false;
  if (auto* edit = qobject_cast<QLineEdit*>(widget_)) edit->selectAll();
  if (auto* box = qobject_cast<QComboBox*>(widget_)) box->lineEdit()->selectAll();
}

// A screen reader calls a label by its text. The names of fields are put together by who knows
// their labels.
void ControlView::NameForReaders() {
  auto* label = qobject_cast<QLabel*>(widget_);
  if (!label || control_.kind != screen::Kind::Label) return;
  const QString words = label->text().remove(kBreak).trimmed();
  GiveName(*label, words == label->text() ? QString() : words);
}

}  // namespace ui
