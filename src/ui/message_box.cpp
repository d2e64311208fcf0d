#include "ui/message_box.h"

#include <QApplication>
#include <QMessageBox>

#include "ui/text.h"

namespace ui {
namespace {

QMessageBox::Icon IconOf(screen::Icon icon) {
  switch (icon) {
    case screen::Icon::Exclamation:
      return QMessageBox::Warning;
    case screen::Icon::Question:
      return QMessageBox::Question;
    case screen::Icon::Information:
      return QMessageBox::Information;
    case screen::Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(screen::Buttons buttons) {
  switch (buttons) {
    case screen::Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case screen::Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case screen::Buttons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case screen::Buttons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton ButtonOf(screen::Answer answer) {
  switch (answer) {
    case screen::Answer::Cancel:
      return QMessageBox::Cancel;
    case screen::Answer::Yes:
      return QMessageBox::Yes;
    case screen::Answer::No:
      return QMessageBox::No;
    case screen::Answer::Ok:
      break;
  }
  return QMessageBox::Ok;
}

screen::Answer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Cancel:
      return screen::Answer::Cancel;
    case QMessageBox::Yes:
      return screen::Answer::Yes;
    case QMessageBox::No:
      return screen::Answer::No;
    default:
      return screen::Answer::Ok;
  }
}

// Escape and the box's own close button mean the answer that changes nothing.
QMessageBox::StandardButton EscapeOf(screen::Buttons buttons) {
  switch (buttons) {
    case screen::Buttons::OkCancel:
    case screen::Buttons::YesNoCancel:
      return QMessageBox::Cancel;
    case screen::Buttons::YesNo:
      return QMessageBox::No;
    case screen::Buttons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

}  // namespace

screen::Answer MessageBox::Show(const screen::Message& message) {
  QMessageBox box(QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setText(Lines(message.text));
  box.setWindowTitle(Lines(message.title).simplified());
  box.setIcon(IconOf(message.icon));
  box.setStandardButtons(ButtonsOf(message.buttons));
  box.setDefaultButton(ButtonOf(message.defaultAnswer));
  box.setEscapeButton(EscapeOf(message.buttons));
  return AnswerOf(box.exec());
}

}  // namespace ui
