#pragma once

#include <QWidget>

class QToolButton;

namespace ui {

// Two small arrow buttons, one above the other, beside the field whose value they step. They take
// no focus: the keyboard steps with the arrow keys inside the field.
class UpDownPair : public QWidget {
  Q_OBJECT

 public:
  explicit UpDownPair(QWidget* parent = nullptr);

  QToolButton* Up() const { return up_; }
  QToolButton* Down() const { return down_; }

 signals:
  void SteppedUp();
  void SteppedDown();

 private:
  QToolButton* MakeButton(Qt::ArrowType arrow, const QString& name);

  QToolButton* up_;
  QToolButton* down_;
};

}  // namespace ui
