#pragma once

#include <QWidget>

#include "screen/form.h"

namespace ui {

// The window of a screen::SideWindow. It takes neither the focus nor any input.
class SideView : public QWidget {
  Q_OBJECT

 public:
  // `content` holds the form's laid-out controls; it becomes this window's.
  SideView(QWidget& owner, const screen::SideWindow& form, QWidget& content);

  const screen::SideWindow& Form() const { return form_; }

  // Shows or hides the window as the form says.
  void Push();
  // Paints it at once, in the middle of a handler.
  void PaintNow();

 private:
  void Place();

  const screen::SideWindow& form_;
};

}  // namespace ui
