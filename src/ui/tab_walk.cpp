#include "ui/tab_walk.h"

#include <QPointer>
#include <QShortcut>

#include <utility>

#include "navigation/session_form.h"
#include "session/workflow.h"
#include "ui/text.h"

namespace ui {
namespace {

struct Key {
  Qt::Key key;
  Qt::KeyboardModifiers with;
  int direction;
};

constexpr Key kKeys[] = {{Qt::Key_PageDown, Qt::ControlModifier, 1},
                         {Qt::Key_PageUp, Qt::ControlModifier, -1},
                         {Qt::Key_Tab, Qt::ControlModifier, 1},
                         {Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier, -1}};

bool IsOpen(const screen::Form& shown, const QString& key) {
  const auto* form = dynamic_cast<const navigation::SessionForm*>(&shown);
  const workflow::TabText* tab = workflow::TabByKey(Typed(key));
  return form && tab && workflow::GateOpen(form->session, form->id, tab->screen);
}

}  // namespace

TabWalk::TabWalk(StripView& strip, EventGate& gate, FocusWatch& focus, ShownForm shown)
    : strip_(strip), gate_(gate), focus_(focus), shown_(std::move(shown)) {}

void TabWalk::Listen() {
  for (const Key& each : kKeys) {
    auto* shortcut = new QShortcut(QKeySequence(each.with | each.key), strip_.window());
    connect(shortcut, &QShortcut::activated, this, [this, each] { Go(each.direction); });
  }
}

// As a click does, the walk leaves the field that has the focus before it looks which tabs are
// open.
void TabWalk::Go(int direction) {
  if (!strip_.isVisible() || !strip_.isEnabled()) return;
  const QPointer<QWidget> before = strip_.window()->focusWidget();
  strip_.setFocus();
  gate_.RunLate();
  focus_.Follow();
  const bool went =
      strip_.Step(direction, [this](const QString& key) { return IsOpen(shown_(), key); });
  if (!went && before && strip_.hasFocus()) before->setFocus();
}

}  // namespace ui
