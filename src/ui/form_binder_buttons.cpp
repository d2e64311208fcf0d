#include <QAbstractButton>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcutEvent>

#include <algorithm>

#include "ui/form_binder.h"

// Buttons, options and check boxes: by the mouse, by their access keys and by the keys of a group.
namespace ui {

using screen::Control;
using screen::Kind;

void FormBinder::ConnectButton(ControlView& view) {
  auto* button = qobject_cast<QAbstractButton*>(view.Widget());
  connect(button, &QAbstractButton::clicked, this, [this, &view, button] {
    gate_.RunLate();
    focus_->Follow();
    if (button->isCheckable()) Tick(view.Control(), button->isChecked());
    gate_.Run(view.Control().Click);
  });
}

void FormBinder::Tick(const Control& ticked, bool on) {
  const QWidget* group = WidgetOf(ticked)->parentWidget();
  for (ControlView& view : views_) {
    const bool other = ticked.kind == Kind::OptionButton && view.Widget() &&
                       view.Control().kind == Kind::OptionButton &&
                       view.Widget()->parentWidget() == group;
    if (&view.Control() == &ticked)
      view.Ticked(on);
    else if (other)
      view.Ticked(false);
  }
}

// The arrow keys look at the options of a group; Space, Enter or a click chooses one. The toolkit
// would choose on the way, and with it give up what was entered for another option.
bool FormBinder::LookAtOption(const QWidget& option, int key) {
  const bool back = key == Qt::Key_Up || key == Qt::Key_Left;
  if (!back && key != Qt::Key_Down && key != Qt::Key_Right) return false;
  QList<QRadioButton*> options =
      option.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  options.removeIf(
      [](const QRadioButton* each) { return !each->isVisible() || !each->isEnabled(); });
  if (back) std::reverse(options.begin(), options.end());
  const auto here = std::find(options.begin(), options.end(), &option);
  if (here != options.end() && here + 1 != options.end())
    (*(here + 1))->setFocus(back ? Qt::BacktabFocusReason : Qt::TabFocusReason);
  return true;
}

// The toolkit presses a button by its access key for a tenth of a second, in which the field that
// loses the focus may put a question, and the button's handler would run below that.
bool FormBinder::AccessKey(QAbstractButton& button, const QShortcutEvent& event) {
  if (event.isAmbiguous() || !button.isEnabled()) return false;
  button.setFocus(Qt::ShortcutFocusReason);
  gate_.RunLate();
  focus_->Follow();
  if (button.isVisible() && button.isEnabled()) button.click();
  return true;
}

bool FormBinder::ButtonEvent(QAbstractButton& button, QEvent& event) {
  if (event.type() == QEvent::Shortcut)
    return AccessKey(button, static_cast<const QShortcutEvent&>(event));
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  const bool option = qobject_cast<QRadioButton*>(&button) != nullptr;
  if (option && LookAtOption(button, key)) return true;
  if (!option && !qobject_cast<QPushButton*>(&button)) return false;
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  button.click();
  return true;
}

}  // namespace ui
