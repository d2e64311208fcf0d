#pragma once

#include <QLabel>

#include "screen/control.h"

namespace ui {

// A label that shows a verdict: a tick or a cross stands before its words, in their colour.
class VerdictLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  screen::Sign Sign() const { return sign_; }
  void SetSign(screen::Sign sign);

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int SignSize() const { return fontMetrics().ascent(); }
  void MakeRoom();

  screen::Sign sign_ = screen::Sign::None;
};

}  // namespace ui
