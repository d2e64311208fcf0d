#pragma once

#include <QLabel>

namespace ui {

// A label whose text may end with line ends, as some rows of the catalogue do: they belong to the
// text, but take no room.
class CaptionLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int EmptyHeight() const;
};

}  // namespace ui
