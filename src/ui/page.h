#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <memory>
#include <string>
#include <vector>

#include "ui/design_sizes.h"
#include "ui/page_area.h"

namespace ui {

// One screen as its designer file lays it out: the page for the window's stack, and its menus.
struct Page {
  QWidget* frame = nullptr;  // the scrolled area, and below it the live line
  PageArea* area = nullptr;
  QWidget* content = nullptr;
  std::unique_ptr<DesignSizes> sizes;
  std::string captionTag;
  std::vector<QAction*> barItems;  // what the menu bar shows with this screen
  std::vector<QMenu*> menus;       // of the menu bar

  QWidget* FindWidget(const QString& name) const;
  // The menu of that name; null when there is none.
  QMenu* FindMenu(const QString& name) const;
  // The item of that name, or the action that stands for the submenu of that name.
  QAction* FindAction(const QString& name) const;
};

// Lays out the screen `formName`. Its menus belong to `menuBar`, but do not stand in it yet: the
// bar of the one window holds those of the shown screen only. Throws std::invalid_argument for a
// form without a designer file.
Page LoadPage(const std::string& formName, QMenuBar& menuBar);

}  // namespace ui
