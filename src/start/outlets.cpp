#include "start/program_parts.h"

// The ways on which what the screens show leaves the program.
namespace start {

using navigation::OutputAction;
using navigation::OutputOffer;

void Program::Output(screen::Form& form, OutputAction action) {
  Parts& p = *parts_;
  switch (action) {
    case OutputAction::Log:
      p.log.Append(form, p.SeriesFile());
      return p.report.Renew();
    case OutputAction::ShowLog:
      return p.report.MenuReportOpen_Click();
    default:
      return;
  }
}

OutputOffer Program::Offered(OutputAction action) const {
  const Parts& p = *parts_;
  switch (action) {
    case OutputAction::Log:
      return p.log.Offer();
    case OutputAction::ShowLog:
      return p.report.Offer();
    default:
      return {};
  }
}

}  // namespace start
