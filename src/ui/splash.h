#pragma once

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace ui {

// The splash screen frmSplash, on show while the program starts.
class Splash : public QFrame {
  Q_OBJECT

 public:
  Splash();

  // Shows it in the middle of the screen and paints it before it returns.
  void Present();

 private:
  QLabel* AddLine(const char* name, const QString& text);

  QVBoxLayout* column_;
};

}  // namespace ui
