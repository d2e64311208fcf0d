#pragma once

#include <QWidget>

#include "screen/picture.h"

namespace ui {

// Shows a picture box's drawing, 15 twips to the pixel.
class PictureView : public QWidget {
  Q_OBJECT

 public:
  explicit PictureView(QWidget* parent = nullptr);

  void Attach(screen::Picture& picture);
  // Paints the drawing anew when it has changed.
  void Refresh();

  // The place of a click as its screen gets it, in twips.
  QPointF Twips(QPointF pixels) const { return pixels * drawing::kTwipsPerPixel; }

 signals:
  // The drawing has a new scale while the picture can be seen.
  void Resized();
  void Pressed(QPointF twips);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void TakeSize();
  // What a screen reader tells of the picture: its texts.
  void Describe();

  screen::Picture* picture_ = nullptr;
  int shownRevision_ = -1;
};

}  // namespace ui
