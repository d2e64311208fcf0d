#pragma once

#include <QPlainTextEdit>

#include "screen/text_view.h"

namespace ui {

// The widget of a screen::TextView.
class ReadingText : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit ReadingText(QWidget* parent = nullptr);

  // Brings the widget up to date. Who reads somewhere in the text goes on reading there; at its
  // end, what has been added comes into sight.
  void Push(const screen::TextView& view);

  // Takes the desktop's fixed-width font, as large as its other letters are.
  void TakeFont();

 private:
  void PushText(const std::string& text);
  void AddAtEnd(const QString& text);
  void Select(const screen::TextView& view);

  std::string shown_;
  int revision_ = 0;
};

}  // namespace ui
