#include "ui/reading_text.h"

#include <QApplication>
#include <QFontDatabase>
#include <QScrollBar>

#include "ui/text.h"

namespace ui {
namespace {

int Characters(const std::string& text, std::size_t bytes) {
  return static_cast<int>(Shown(text.substr(0, bytes)).size());
}

}  // namespace

ReadingText::ReadingText(QWidget* parent) : QPlainTextEdit(parent) {
  TakeFont();
  setLineWrapMode(NoWrap);
  setReadOnly(true);
  setUndoRedoEnabled(false);
  // By the keyboard, too.
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
}

void ReadingText::TakeFont() {
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  const qreal size = QApplication::font().pointSizeF();
  if (size > 0) fixed.setPointSizeF(size);
  setFont(fixed);
}

void ReadingText::Push(const screen::TextView& view) {
  if (view.text != shown_) PushText(view.text);
  if (view.revision != revision_) Select(view);
  revision_ = view.revision;
}

void ReadingText::PushText(const std::string& text) {
  QScrollBar* bar = verticalScrollBar();
  const bool atEnd = bar->value() == bar->maximum();
  const int place = bar->value();
  if (!shown_.empty() && text.starts_with(shown_))
    AddAtEnd(Shown(text.substr(shown_.size())));
  else
    setPlainText(Shown(text));
  shown_ = text;
  bar->setValue(atEnd ? bar->maximum() : place);
}

// What is selected stays so: a cursor at the end would go along.
void ReadingText::AddAtEnd(const QString& text) {
  QTextCursor selected = textCursor();
  const int anchor = selected.anchor();
  const int position = selected.position();
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  end.insertText(text);
  selected.setPosition(anchor);
  selected.setPosition(position, QTextCursor::KeepAnchor);
  setTextCursor(selected);
}

void ReadingText::Select(const screen::TextView& view) {
  const int from = Characters(view.text, view.from);
  QTextCursor cursor(document());
  cursor.setPosition(from);
  cursor.setPosition(from + Characters(view.text.substr(view.from), view.length),
                     QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
}

}  // namespace ui
