#pragma once

#include <QMainWindow>

#include <memory>

#include "screen/form.h"
#include "start/program.h"
#include "ui/pace.h"

class QAction;
class QSessionManager;
class QTabBar;

namespace ui {

// The one window: a page for each screen, one menu bar and one tab strip, both filled from the
// state of the shown screen.
class MainWindow : public QMainWindow, public screen::Surface {
  Q_OBJECT

 public:
  // Lays the pages out and gives the controls of the program's forms their design-time ids. The
  // program must not have started yet.
  explicit MainWindow(start::Program& program, screen::Ports& ports);
  ~MainWindow() override;

  // Shows the present state of every screen; runs after each event.
  void ShowState();

  // screen::Surface
  void Repaint(screen::Form& form) override;
  void RepaintControl(screen::Form& form, screen::Control& control) override;
  drawing::DrawingRecord Drawn(screen::Form& form) override;

  // The widget of a control that is no menu and no tab strip; the action of a menu (a submenu's
  // own action included). Null when the form has no such widget.
  QWidget* WidgetOf(const screen::Form& form, const screen::Control& control) const;
  QAction* ActionOf(const screen::Form& form, const screen::Control& control) const;
  QTabBar* Strip() const;
  // Of the steps that a search shows.
  Pace& StepPace();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void KeepOnScreen();
  // Asks whether the program may end.
  bool MayEnd();
  void EndSession(QSessionManager& session);

  class Private;
  std::unique_ptr<Private> private_;
};

}  // namespace ui
