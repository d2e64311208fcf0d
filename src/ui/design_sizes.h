#pragma once

#include <QFontMetricsF>
#include <QGridLayout>
#include <QWidget>

#include <vector>

namespace ui {

// The sizes that a designer file gives in pixels: of boxes for numbers, buttons, columns. They are
// drawn for a small font and grow with the one that the desktop has.
class DesignSizes {
 public:
  // What is laid out below `content`.
  explicit DesignSizes(QWidget& content);

  void Fit(const QFontMetricsF& font);
  // A widget that came later; it has its size at the next fit.
  void Add(QWidget& widget) { Note(widget); }
  // Columns in line with those of other frames, or only as wide as they must be.
  void Loosen(bool loose);

 private:
  struct Sized {
    QWidget* widget;
    QSize least;
    QSize most;
  };
  struct Column {
    QGridLayout* grid;
    int column;
    int width;
  };

  void Note(QWidget& widget);
  void FitColumns();

  double factor_ = 1;
  bool loose_ = false;
  std::vector<Sized> widgets_;
  std::vector<Column> columns_;
};

}  // namespace ui
