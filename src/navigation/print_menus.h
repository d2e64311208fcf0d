#pragma once

#include <deque>

#include "navigation/desk.h"
#include "screen/control.h"

namespace navigation {

struct OutputItem;

// The menu items of a screen by which what it shows leaves the program: those of its submenu
// MenuPrint, and those beside it.
class PrintMenus {
 public:
  PrintMenus(screen::Form& form, Desk& desk);

  screen::Control MenuPrint;

  // Brings the items up to date. Whoever runs handlers has it called behind each of them, so that
  // the items stand right whenever a menu opens.
  void Offer();

 private:
  struct Item {
    Item(screen::Form& form, Desk& desk, const OutputItem& itemRow);
    const OutputItem& row;
    screen::Control control;
  };

  Desk& desk_;
  std::deque<Item> items_;  // controls keep their place
};

}  // namespace navigation
