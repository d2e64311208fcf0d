#pragma once

#include <QTabBar>

#include <functional>
#include <vector>

#include "screen/control.h"

namespace ui {

// The tab strip. Long captions take two lines, so that all tabs fit the window.
class StripView : public QTabBar {
  Q_OBJECT

 public:
  explicit StripView(QWidget* parent = nullptr);

  // Shows the strip of the shown screen; null for a screen without one.
  void Push(const screen::TabStrip* strip);
  // The user is walking along the strip by its own keys.
  bool ByKey() const { return byKey_; }

  // Chooses the next tab in that direction, 1 or -1, which `isOpen`, as a click on it does; behind
  // the last one comes the first. False when none leads away from here.
  bool Step(int direction, const std::function<bool(const QString& key)>& isOpen);

 signals:
  void Chosen(const QString& key);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void initStyleOption(QStyleOptionTab* option, int index) const override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Fill(const screen::TabStrip& strip);
  void GreyClosed();
  QString Folded(const QString& caption) const;

  std::vector<screen::Tab> shown_;
  bool byKey_ = false;
};

}  // namespace ui
