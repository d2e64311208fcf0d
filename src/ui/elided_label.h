#pragma once

#include <QLabel>

namespace ui {

// A label that shows the ends of a text too long for its place; the text itself stays whole.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace ui
