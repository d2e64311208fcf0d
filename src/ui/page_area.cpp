#include "ui/page_area.h"

#include <QApplication>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVariant>

namespace ui {

PageArea::PageArea(QWidget& content, DesignSizes& sizes) : sizes_(sizes) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(&content);
  for (QBoxLayout* layout : content.findChildren<QBoxLayout*>())
    if (layout->property("Fold").toBool()) columns_.push_back(layout);
  // A label without a text of its own shows a value.
  for (QLabel* label : content.findChildren<QLabel*>())
    if (!label->wordWrap() && !label->text().isEmpty()) captions_.push_back(label);
  connect(qApp, &QApplication::focusChanged, this, &PageArea::ShowFocus);
}

bool PageArea::TooWide() const {
  const QLayout& page = *widget()->layout();
  const QSize least = page.totalMinimumSize();
  const int tall = page.hasHeightForWidth() ? page.totalHeightForWidth(width()) : least.height();
  const int bar = tall > height() ? verticalScrollBar()->sizeHint().width() : 0;
  return least.width() > width() - bar;
}

void PageArea::Take(Shape shape) {
  shape_ = shape;
  const bool folded = shape != Shape::Designed;
  for (QBoxLayout* layout : columns_)
    layout->setDirection(folded ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  for (QLabel* caption : captions_) caption->setWordWrap(shape == Shape::Wrapped);
  sizes_.Loosen(shape == Shape::Wrapped);
  // A frame tells the layout around it of a change only when the events are handled.
  for (QWidget* frame : widget()->findChildren<QWidget*>()) {
    if (!frame->layout()) continue;
    frame->layout()->invalidate();
    frame->updateGeometry();
  }
}

void PageArea::Narrow() {
  if (shape_ == Shape::Designed && TooWide()) Take(Shape::Folded);
  if (shape_ == Shape::Folded && TooWide()) Take(Shape::Wrapped);
}

void PageArea::Fit() {
  if (!widget()) return;
  Take(Shape::Designed);
  Narrow();
}

void PageArea::ShowFocus() {
  QWidget* focus = QApplication::focusWidget();
  if (focus && widget() && widget()->isAncestorOf(focus)) ensureWidgetVisible(focus);
}

// A control that appears, or a longer text, can make the page narrow only: it becomes wide again
// with the window, or the request to lay it out would raise itself for ever.
bool PageArea::eventFilter(QObject* watched, QEvent* event) {
  const bool ours = watched == widget();
  if (ours && event->type() == QEvent::LayoutRequest) Narrow();
  const bool done = QScrollArea::eventFilter(watched, event);
  if (ours && event->type() == QEvent::Resize) ShowFocus();
  return done;
}

void PageArea::resizeEvent(QResizeEvent* event) {
  if (event->size() != event->oldSize()) Fit();
  QScrollArea::resizeEvent(event);
  ShowFocus();
}

}  // namespace ui
