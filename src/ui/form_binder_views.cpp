// What a scroll bar, a picture and a table need beyond their signals, and the keys of the steps.
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include "ui/form_binder.h"
#include "ui/picture_view.h"
#include "ui/text.h"
#include "ui/vkr_grid_view.h"

namespace ui {
namespace {

void Release(QScrollBar& bar) {
  const QPointF place(bar.rect().center());
  QMouseEvent release(QEvent::MouseButtonRelease, place, bar.mapToGlobal(place), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&bar, &release);
}

}  // namespace

const screen::Handler* FormBinder::RefusedBy(const QKeyEvent& press) const {
  const QKeySequence keys(press.keyCombination());
  for (const ControlView& view : views_) {
    const QAction* item = view.Action();
    const bool closed = item && item->isVisible() && !item->isEnabled();
    if (closed && item->shortcut() == keys && view.Control().Refused)
      return &view.Control().Refused;
  }
  return nullptr;
}

// A message box in the middle of a drag takes the release of the mouse button away from the bar,
// which would stay pressed and go on scrolling.
void FormBinder::ConnectBar(ControlView& view) {
  auto* bar = qobject_cast<QScrollBar*>(view.Widget());
  // Each grip of the slide is a movement of its own.
  connect(bar, &QScrollBar::sliderPressed, this, [&view] { view.Control().held = false; });
  connect(bar, &QScrollBar::valueChanged, this, [this, &view, bar](int value) {
    view.Scrolled(value);
    const auto isHeld = [bar] {
      return bar->isSliderDown() || QGuiApplication::mouseButtons() != Qt::NoButton;
    };
    screen::Control& control = view.Control();
    control.held = control.held && isHeld();
    Act(control.Change);
    control.held = isHeld();
    if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
    QMetaObject::invokeMethod(
        bar, [bar] { Release(*bar); }, Qt::QueuedConnection);
  });
}

// A picture learns its size in the middle of the window's own layout: its screen draws behind that.
void FormBinder::ConnectPicture(ControlView& view) {
  auto* shown = qobject_cast<PictureView*>(view.Widget());
  auto& picture = static_cast<screen::Picture&>(view.Control());
  shown->Attach(picture);
  connect(shown, &PictureView::Resized, this, [this, &picture] { gate_.Later(picture.Resized); });
  connect(shown, &PictureView::Pressed, this, [this, &picture](QPointF twips) {
    if (picture.MouseDown) Act([&] { picture.MouseDown(twips.x(), twips.y()); });
  });
}

// The items with a shortcut of their own for the table act on the table only.
void FormBinder::ConnectGrid(ControlView& view) {
  auto* table = qobject_cast<VkrGridView*>(view.Widget());
  const QString caption = table->objectName() + QLatin1String("_Caption");
  table->Attach(static_cast<screen::Grid&>(view.Control()), gate_,
                page_.content->findChild<QLabel*>(caption));
  for (const ControlView& other : views_) {
    QAction* action = other.Action();
    if (action && action->shortcutContext() == Qt::WidgetShortcut) {
      table->addAction(action);
      connect(action, &QAction::triggered, table, [table] { table->setFocus(); });
    }
  }
  if (QAction* paste = page_.FindAction(QStringLiteral("MenuPaste")))
    connect(paste, &QAction::triggered, table, &VkrGridView::PasteClipboard);
}

// In a field in which something is being typed, the keys of undo and redo are the field's own.
bool FormBinder::LeavesStepsToMenu(const QWidget* widget, const QEvent& event) const {
  const auto& key = static_cast<const QKeyEvent&>(event);
  const QKeySequence pressed(key.keyCombination());
  const bool steps = StepKeys(QStringLiteral("MenuUndo")).contains(pressed) ||
                     StepKeys(QStringLiteral("MenuRedo")).contains(pressed);
  const screen::Control* field = steps ? ControlOf(widget) : nullptr;
  return field && !field->touched;
}

QList<QKeySequence> FormBinder::StepKeys(const QString& item) const {
  const QAction* action = page_.FindAction(item);
  return action ? action->shortcuts() : QList<QKeySequence>();
}

}  // namespace ui
