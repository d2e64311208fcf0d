#pragma once

#include <QGroupBox>
#include <QStringList>

namespace ui {

// A frame whose title takes more lines where it is longer than the frame is wide.
class TitleFrame : public QGroupBox {
  Q_OBJECT

 public:
  using QGroupBox::QGroupBox;

  void SetTitle(const QString& title);
  // The title as it stands above the frame.
  QStringList TitleLines() const;

  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MakeRoom();

  int above_ = 0;  // height of the lines before the last, for which the style leaves the room
};

}  // namespace ui
