#include "ui/message_box.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "catalog/own_texts.h"
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
    case screen::Buttons::SaveDiscardCancel:
      return QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    case screen::Buttons::PrintKeepDropCancel:
      return QMessageBox::Yes | QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
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
    case screen::Answer::Print:
      return QMessageBox::Yes;
    case screen::Answer::Save:
    case screen::Answer::Keep:
      return QMessageBox::Save;
    case screen::Answer::Discard:
    case screen::Answer::Drop:
      return QMessageBox::Discard;
    case screen::Answer::Ok:
      break;
  }
  return QMessageBox::Ok;
}

// The toolkit has no buttons of its own for what becomes of a document: others take their words.
screen::Answer AnswerOfDocument(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return screen::Answer::Print;
    case QMessageBox::Save:
      return screen::Answer::Keep;
    case QMessageBox::Discard:
      return screen::Answer::Drop;
    default:
      return screen::Answer::Cancel;
  }
}

void NameButtons(QMessageBox& box, screen::Buttons buttons) {
  const auto name = [&box](QMessageBox::StandardButton button, Own words) {
    if (QAbstractButton* found = box.button(button)) found->setText(Lines(OwnText(words)));
  };
  const bool document = buttons == screen::Buttons::PrintKeepDropCancel;
  name(QMessageBox::Discard, document ? Own::DropThem : Own::DontSave);
  if (!document) return;
  name(QMessageBox::Yes, Own::PrintThem);
  name(QMessageBox::Save, Own::KeepAsPdf);
}

screen::Answer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Cancel:
      return screen::Answer::Cancel;
    case QMessageBox::Yes:
      return screen::Answer::Yes;
    case QMessageBox::No:
      return screen::Answer::No;
    case QMessageBox::Save:
      return screen::Answer::Save;
    case QMessageBox::Discard:
      return screen::Answer::Discard;
    default:
      return screen::Answer::Ok;
  }
}

// Escape and the box's own close button mean the answer that changes nothing.
QMessageBox::StandardButton EscapeOf(screen::Buttons buttons) {
  switch (buttons) {
    case screen::Buttons::OkCancel:
    case screen::Buttons::YesNoCancel:
    case screen::Buttons::SaveDiscardCancel:
    case screen::Buttons::PrintKeepDropCancel:
      return QMessageBox::Cancel;
    case screen::Buttons::YesNo:
      return QMessageBox::No;
    case screen::Buttons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

// A list that is longer than the screen goes into the box's scrolling part, whole.
QString Brief(QMessageBox& box, const QString& text) {
  constexpr int kMostLines = 16;
  if (text.count(QLatin1Char('\n')) < kMostLines) return text;
  box.setDetailedText(text);
  return text.section(QLatin1Char('\n'), 0, kMostLines - 3) + QLatin1Char('\n') + QChar(0x2026);
}

// A complaint names what it is about once more above its text: the title bar of a small window may
// be cut, and some desktops show none.
void Fill(QMessageBox& box, const screen::Message& message) {
  const QString text = Brief(box, Lines(message.text));
  const QString advice = Lines(message.advice);
  if (message.icon != screen::Icon::Exclamation) {
    box.setText(text);
    box.setInformativeText(advice);
    return;
  }
  box.setText(box.windowTitle());
  box.setInformativeText(advice.isEmpty() ? text : text + QStringLiteral("\n\n") + advice);
  auto* heading = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (!heading) return;
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
}

// At least as wide as its title, with the icon and the button that stand in a title bar.
void Widen(QMessageBox& box) {
  constexpr int kBesideTitle = 120;
  QFont font = QApplication::font("QMdiSubWindowTitleBar");
  font.setBold(true);
  const int width = QFontMetrics(font).horizontalAdvance(box.windowTitle()) + kBesideTitle;
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (!grid) return;
  auto* space = new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
  grid->addItem(space, grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

screen::Answer MessageBox::Show(const screen::Message& message) {
  QMessageBox box(QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(Lines(message.title).simplified());
  Fill(box, message);
  box.setIcon(IconOf(message.icon));
  box.setStandardButtons(ButtonsOf(message.buttons));
  box.setDefaultButton(ButtonOf(message.defaultAnswer));
  box.setEscapeButton(EscapeOf(message.buttons));
  NameButtons(box, message.buttons);
  Widen(box);
  const int button = box.exec();
  return message.buttons == screen::Buttons::PrintKeepDropCancel ? AnswerOfDocument(button)
                                                                 : AnswerOf(button);
}

}  // namespace ui
