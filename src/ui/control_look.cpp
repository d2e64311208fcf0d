// What a control looks like in the palette of the desktop.
#include <QLineEdit>
#include <QPushButton>
#include <QVariant>

#include "ui/control_view.h"
#include "ui/live_label.h"
#include "ui/readable_colour.h"
#include "ui/verdict_label.h"

namespace ui {
namespace {

QColor Shade(const screen::Colour& colour) { return {colour.red, colour.green, colour.blue}; }

}  // namespace

void ControlView::PushLook() {
  if (auto* line = qobject_cast<LiveLabel*>(widget_)) {
    line->ShowBand(shown_->colour ? std::optional(Shade(*shown_->colour)) : std::nullopt);
    return;
  }
  QPalette palette;
  const QColor background = palette.color(QPalette::Window);
  if (shown_->colour) {
    const QColor readable = ReadableOn(background, Shade(*shown_->colour));
    palette.setColor(QPalette::WindowText, readable);
    palette.setColor(QPalette::Button, readable);
    palette.setColor(QPalette::ButtonText, TextOn(readable));
  }
  if (auto* button = qobject_cast<QPushButton*>(widget_)) PushFace(*button);
  if (auto* verdict = qobject_cast<VerdictLabel*>(widget_)) verdict->SetSign(shown_->sign);
  if (auto* edit = qobject_cast<QLineEdit*>(widget_)) {
    edit->setReadOnly(shown_->locked);
    if (shown_->locked) palette.setColor(QPalette::Base, background);
  }
  if (widget_->property("Quiet").toBool())
    palette.setColor(QPalette::WindowText,
                     QuietOn(background, palette.color(QPalette::WindowText)));
  widget_->setPalette(palette);
}

// The style would lighten a palette's colour until white text on it is hard to read.
void ControlView::PushFace(QPushButton& button) {
  if (!shown_->colour) {
    button.setStyleSheet({});
    return;
  }
  const QColor window = QPalette().color(QPalette::Window);
  const QColor face = ReadableOn(window, Shade(*shown_->colour));
  const QColor pressed = face.darker(170);
  button.setStyleSheet(
      QStringLiteral("QPushButton { background-color: %1; color: %2; border: 2px solid %1;"
                     " border-radius: 3px; padding: 3px; }"
                     "QPushButton:focus { border-color: %3; }"
                     "QPushButton:pressed { background-color: %4; color: %5; }")
          .arg(face.name(), TextOn(face).name(), TextOn(window).name(), pressed.name(),
               TextOn(pressed).name()));
}

void ControlView::PaletteChanged() {
  if (widget_ && shown_) PushLook();
}

}  // namespace ui
