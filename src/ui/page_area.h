#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QScrollArea>

#include <vector>

#include "ui/design_sizes.h"

namespace ui {

// Shows a page, so that nothing of it is out of reach in a small window. Where the page would be
// wider than the window, columns that the designer file marks by the property Fold stand below each
// other, and captions take more lines; what still does not fit is scrolled, with the focus in view.
class PageArea : public QScrollArea {
  Q_OBJECT

 public:
  PageArea(QWidget& content, DesignSizes& sizes);

  // As designed, then as narrow as it must be.
  void Fit();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  enum class Shape { Designed, Folded, Wrapped };

  void Narrow();
  void Take(Shape shape);
  bool TooWide() const;
  void ShowFocus();

  DesignSizes& sizes_;
  Shape shape_ = Shape::Designed;
  std::vector<QBoxLayout*> columns_;
  std::vector<QLabel*> captions_;
};

}  // namespace ui
