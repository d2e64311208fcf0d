#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>

#include "screen/text_view.h"
#include "ui/event_gate.h"

namespace ui {

// The window of a screen::ReadingWindow. It lives beside the main one, and is closed by its own
// button or by Esc.
class ReadingView : public QWidget {
  Q_OBJECT

 public:
  // `content` holds the form's laid-out controls; it becomes this window's.
  ReadingView(QWidget& owner, screen::ReadingWindow& form, QWidget& content, EventGate& gate);

  // Shows or hides the window as the form says, and watches its file.
  void Push();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddKeys(QWidget& content);
  void Watch();

  screen::ReadingWindow& form_;
  EventGate& gate_;
  QFileSystemWatcher watcher_;
  QTimer pause_;  // between what others write and the reading of it
};

}  // namespace ui
