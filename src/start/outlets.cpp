#include "catalog/own_texts.h"
#include "start/hand_over.h"
#include "start/program_parts.h"

// The ways on which what the screens show leaves the program.
namespace start {

using navigation::OutputAction;
using navigation::OutputOffer;

void Program::Output(screen::Form& form, OutputAction action) {
  Parts& p = *parts_;
  switch (action) {
    case OutputAction::Form:
      return p.printing.PrintForm(form);
    case OutputAction::Grid:
      return p.printing.PrintGrid(form, p.dataCtrl.DBGridVkr);
    case OutputAction::Report:
      return AddReport(form);
    case OutputAction::Log:
      p.log.Append(form, p.SeriesFile());
      return p.report.Renew();
    case OutputAction::ShowLog:
      return p.report.MenuReportOpen_Click();
    case OutputAction::Gathered:
      p.printing.PrintGathered();
      return;
    case OutputAction::Printer:
      return p.printing.ChoosePrinter();
    case OutputAction::PrinterFont:
      return ShowInstead(p.printkeu);
    case OutputAction::Document:
      return HandOver(p.record, form, p.SeriesFile());
    default:
      return;
  }
}

// The live line says how many reports wait.
void Program::AddReport(screen::Form& form) {
  Parts& p = *parts_;
  const int before = p.printing.Gathered();
  p.printing.AddReport(form);
  const int now = p.printing.Gathered();
  if (now == before) return;
  const std::string words = now == 1 ? OwnText(Own::OneReportGathered)
                                     : OwnText(Own::ReportsGathered, {GlobalBAS::FileText(now)});
  static_cast<navigation::SessionForm&>(form).Report({.did = Did::Said, .what = words});
}

OutputOffer Program::Offered(OutputAction action) const {
  const Parts& p = *parts_;
  switch (action) {
    case OutputAction::Form:
      return {.enabled = !p.session.Name.empty()};
    case OutputAction::Grid:
      return {.enabled = p.dataCtrl.DBGridVkr.rowCount > 0};
    case OutputAction::Log:
      return p.log.Offer();
    case OutputAction::ShowLog:
      return p.report.Offer();
    case OutputAction::Gathered:
      return {.enabled = p.printing.Gathered() > 0,
              .caption = OwnText(Own::PrintGathered, {GlobalBAS::FileText(p.printing.Gathered())})};
    default:
      return {};
  }
}

}  // namespace start
