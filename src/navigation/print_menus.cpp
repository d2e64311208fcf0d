#include "navigation/print_menus.h"

#include <algorithm>
#include <string_view>

#include "screen/form.h"

namespace navigation {

// A row of the menus: one item, and the screens on which it stands.
struct OutputItem {
  OutputAction action;
  std::string_view name;
  TextId caption;
  std::string_view home;  // the menu that it stands in
  std::string_view keys;
  bool (*standsOn)(std::string_view form);
};

namespace {

bool Everywhere(std::string_view) { return true; }

bool OnStart(std::string_view form) { return form == "BasisForm"; }

bool BehindStart(std::string_view form) { return !OnStart(form); }

bool OnTable(std::string_view form) { return form == "DataCtrlForm"; }

bool WithReport(std::string_view form) {
  return form == "DescriptForm" || form == "PercExForm" || form == "UCLForm";
}

bool OnDescriptive(std::string_view form) { return form == "DescriptForm"; }

bool OnPlot(std::string_view form) { return form == "PlotForm"; }

bool WithRecord(std::string_view form) {
  constexpr std::string_view kForms[] = {"DataCtrlForm", "DescriptForm", "GrenzenForm",
                                         "PercExForm",   "UCLForm",      "TwoSampCompForm"};
  return std::ranges::find(kForms, form) != std::end(kForms);
}

bool OnWorkingScreen(std::string_view form) { return OnPlot(form) || WithRecord(form); }

// In the order of the menus. The document stands beside the submenu, which goes where a screen has
// nothing to show: it needs no result. On the plot, MenuLog is the name of a scale.
constexpr OutputItem kItems[] = {
    {OutputAction::Form, "MenuPrinterPrint", 76, "MenuPrint", "Ctrl+P", Everywhere},
    {OutputAction::Grid, "menuPrintgrid", 75, "MenuPrint", "", OnTable},
    {OutputAction::Report, "MenuRapport", 77, "MenuPrint", "", WithReport},
    {OutputAction::Log, "MenuLog", 62, "MenuPrint", "", WithRecord},
    {OutputAction::Log, "MenuLogFile", 62, "MenuPrint", "", OnPlot},
    {OutputAction::ShowLog, "MenuReportOpen", 73, "MenuPrint", "", OnDescriptive},
    {OutputAction::Gathered, "MenuGathered", Own::PrintGathered, "MenuPrint", "", BehindStart},
    {OutputAction::Printer, "MenuPrinter", Own::ChoosePrinter, "MenuPrint", "", BehindStart},
    {OutputAction::PrinterFont, "MenuPrinterFont", Own::PrinterFont, "MenuOptions", "", OnStart},
    {OutputAction::Document, "MenuDocument", Own::ReportAsPdf, "MenuFile", "Ctrl+Shift+P",
     OnWorkingScreen},
};

}  // namespace

PrintMenus::Item::Item(screen::Form& form, Desk& desk, const OutputItem& itemRow)
    : row(itemRow), control(form, screen::Kind::Menu, std::string(itemRow.name)) {
  control.home = row.home;
  control.keys = row.keys;
  control.text = TextOf(row.caption);
  control.Click = [&form, &desk, action = row.action] { desk.Output(form, action); };
}

PrintMenus::PrintMenus(screen::Form& form, Desk& desk)
    : MenuPrint(form, screen::Kind::Menu, "MenuPrint"), desk_(desk) {
  for (const OutputItem& row : kItems)
    if (row.standsOn(form.name)) items_.emplace_back(form, desk, row);
  MenuPrint.visible = std::ranges::any_of(
      items_, [this](const Item& item) { return item.row.home == MenuPrint.name; });
}

void PrintMenus::Offer() {
  for (Item& item : items_) {
    OutputOffer offer = desk_.Offered(item.row.action);
    item.control.enabled = offer.enabled;
    item.control.tip = std::move(offer.tip);
    item.control.text = offer.caption.empty() ? TextOf(item.row.caption) : std::move(offer.caption);
  }
}

}  // namespace navigation
