#include "ui/page.h"

#include <QMainWindow>
#include <QVBoxLayout>
#include <QVariant>

#include <map>
#include <memory>
#include <stdexcept>

#include "ui/live_label.h"
#include "ui/text.h"
#include "ui/ui_basis_form.h"
#include "ui/ui_data_ctrl_form.h"
#include "ui/ui_descript_form.h"
#include "ui/ui_grenzen_form.h"
#include "ui/ui_land_hulp_form.h"
#include "ui/ui_perc_ex_form.h"
#include "ui/ui_plot_form.h"
#include "ui/ui_printkeu_form.h"
#include "ui/ui_report_form.h"
#include "ui/ui_two_samp_comp_form.h"
#include "ui/ui_ucl_form.h"
#include "ui/ui_verdeling_form.h"

namespace ui {
namespace {

using Shell = std::unique_ptr<QMainWindow>;

template <class Design>
Shell Lay() {
  auto shell = std::make_unique<QMainWindow>();
  Design().setupUi(shell.get());
  return shell;
}

const std::map<std::string, Shell (*)()>& Designs() {
  static const std::map<std::string, Shell (*)()> designs = {
      {"BasisForm", &Lay<Ui::BasisForm>},
      {"DataCtrlForm", &Lay<Ui::DataCtrlForm>},
      {"GrenzenForm", &Lay<Ui::GrenzenForm>},
      {"DescriptForm", &Lay<Ui::DescriptForm>},
      {"PlotForm", &Lay<Ui::PlotForm>},
      {"PercExForm", &Lay<Ui::PercExForm>},
      {"UCLForm", &Lay<Ui::UCLForm>},
      {"LandHulpForm", &Lay<Ui::LandHulpForm>},
      {"TwoSampCompForm", &Lay<Ui::TwoSampCompForm>},
      {"ReportForm", &Lay<Ui::ReportForm>},
      {"frmPrintkeu", &Lay<Ui::frmPrintkeu>},
      {"VerdelingForm", &Lay<Ui::VerdelingForm>},
  };
  return designs;
}

// Below the scrolled page, so that it stays in view.
QLabel* LiveLine() {
  auto* line = new LiveLabel;
  line->setObjectName(QStringLiteral("StatusLbl"));
  return line;
}

// The designer's form is a window of its own. Its menus and actions move into the shared window.
void TakeMenus(QMainWindow& shell, QMenuBar& menuBar, Page& page) {
  for (QAction* item : shell.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly))
    item->setParent(page.content);
  const QList<QAction*> tops = shell.menuBar()->actions();
  for (QAction* top : tops) {
    page.barItems.push_back(top);
    QMenu* menu = top->menu();
    if (!menu) continue;  // an item that stands in the bar itself
    menu->setParent(&menuBar, menu->windowFlags());
    page.menus.push_back(menu);
  }
}

}  // namespace

QWidget* Page::FindWidget(const QString& name) const {
  if (auto* widget = content->findChild<QWidget*>(name)) return widget;
  return frame ? frame->findChild<QWidget*>(name) : nullptr;
}

QMenu* Page::FindMenu(const QString& name) const {
  for (QMenu* menu : menus) {
    if (menu->objectName() == name) return menu;
    if (auto* submenu = menu->findChild<QMenu*>(name)) return submenu;
  }
  return nullptr;
}

QAction* Page::FindAction(const QString& name) const {
  if (auto* item = content->findChild<QAction*>(name)) return item;
  const QMenu* menu = FindMenu(name);
  return menu ? menu->menuAction() : nullptr;
}

Page LoadPage(const std::string& formName, QMenuBar& menuBar) {
  const auto design = Designs().find(formName);
  if (design == Designs().end()) throw std::invalid_argument("no layout for " + formName);
  const Shell shell = design->second();
  Page page;
  page.captionTag = Typed(shell->property("Tag").toString());
  page.content = shell->takeCentralWidget();
  page.sizes = std::make_unique<DesignSizes>(*page.content);
  page.area = new PageArea(*page.content, *page.sizes);
  page.frame = new QWidget;
  auto* column = new QVBoxLayout(page.frame);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(page.area, 1);
  column->addWidget(LiveLine());
  TakeMenus(*shell, menuBar, page);
  return page;
}

}  // namespace ui
