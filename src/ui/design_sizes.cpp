#include "ui/design_sizes.h"

#include <QPushButton>

#include <algorithm>

#include "ui/picture_view.h"

namespace ui {
namespace {

int Grown(int pixels, double factor) {
  return pixels >= QWIDGETSIZE_MAX ? pixels : qRound(pixels * factor);
}

QSize Grown(QSize size, double factor) {
  return {Grown(size.width(), factor), Grown(size.height(), factor)};
}

}  // namespace

DesignSizes::DesignSizes(QWidget& content) {
  Note(content);
  // The parts that the toolkit makes of a widget have no name, or one of its own.
  for (QWidget* widget : content.findChildren<QWidget*>())
    if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(QLatin1String("qt_")))
      Note(*widget);
  for (QGridLayout* grid : content.findChildren<QGridLayout*>())
    for (int column = 0; column < grid->columnCount(); ++column)
      if (const int width = grid->columnMinimumWidth(column); width > 0)
        columns_.push_back({grid, column, width});
}

// A picture's drawing is laid out for the size of the picture, whatever the desktop's font.
void DesignSizes::Note(QWidget& widget) {
  const bool sized = !widget.minimumSize().isNull() ||
                     widget.maximumSize() != QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  if (sized && !qobject_cast<PictureView*>(&widget))
    widgets_.push_back({&widget, widget.minimumSize(), widget.maximumSize()});
}

void DesignSizes::Fit(const QFontMetricsF& font) {
  constexpr double kDesignHeight = 14;  // of DejaVu Sans at 9 points
  factor_ = std::max(1.0, font.height() / kDesignHeight);
  for (const Sized& sized : widgets_) {
    sized.widget->setMaximumSize(Grown(sized.most, factor_));
    QSize least = Grown(sized.least, factor_);
    // A row of buttons has the width of its captions at least; more of it may be too much.
    if (qobject_cast<QPushButton*>(sized.widget)) least.setWidth(sized.least.width());
    sized.widget->setMinimumSize(least);
  }
  FitColumns();
}

void DesignSizes::Loosen(bool loose) {
  loose_ = loose;
  FitColumns();
}

void DesignSizes::FitColumns() {
  for (const Column& column : columns_)
    column.grid->setColumnMinimumWidth(column.column, loose_ ? 0 : Grown(column.width, factor_));
}

}  // namespace ui
