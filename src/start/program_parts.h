#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "analysis/descript_form.h"
#include "compare/two_samp_comp_form.h"
#include "compliance/perc_ex_form.h"
#include "limits/grenzen_form.h"
#include "navigation/series_step.h"
#include "output/printing.h"
#include "output/printkeu_form.h"
#include "output/report_form.h"
#include "output/session_log.h"
#include "plots/plot_form.h"
#include "plots/verdeling_form.h"
#include "rawdata/data_ctrl_form.h"
#include "session/derivation.h"
#include "start/basis_form.h"
#include "start/program.h"
#include "ucl/ucl_form.h"

namespace start {

// What the program is made of: the record, the screens, and which of them is shown.
struct Program::Parts {
  Parts(Program& program, screen::Ports& formPorts, std::vector<std::string> folders)
      : ports(formPorts),
        coefficientFolders(std::move(folders)),
        basis(record, program, formPorts),
        dataCtrl(record, program, formPorts),
        grenzen(record, program, formPorts),
        descript(record, program, formPorts),
        plot(record, program, formPorts),
        percEx(record, program, formPorts),
        mean(record, program, formPorts),
        compare(record, program, formPorts),
        verdeling(record, program, formPorts),
        report(record, formPorts),
        forms{&basis, &dataCtrl, &grenzen, &descript, &plot, &percEx, &mean, &compare} {
    allForms.push_back(&mean.landHulp);
    allForms.push_back(&verdeling);
    allForms.push_back(&report);
    allForms.push_back(&printkeu);
    printkeu.close = [&program] { program.ClosePicture(); };
    basis.tellReading = [this](const rawdata::ReadingNotes* notes) { dataCtrl.TellReading(notes); };
  }

  screen::Ports& ports;
  const std::vector<std::string> coefficientFolders;
  Record record;
  const ExposureSession& session = record.Now();
  navigation::Steps steps{record, ports.history};
  output::SessionLog log{record, ports};
  output::Printing printing{ports, record, [this] { return SeriesFile(); }};
  BasisForm basis;
  rawdata::DataCtrlForm dataCtrl;
  limits::GrenzenForm grenzen;
  analysis::DescriptForm descript;
  plots::PlotForm plot;
  compliance::PercExForm percEx;
  ucl::UCLForm mean;
  compare::TwoSampCompForm compare;
  plots::VerdelingForm verdeling;
  output::ReportForm report;
  output::PrintkeuForm printkeu{printing, ports};
  std::vector<navigation::SessionForm*> forms;
  std::vector<screen::Form*> allForms{forms.begin(), forms.end()};

  screen::Form* shown = &basis;
  // The screen that the picture, or the trial of a font, was called from.
  screen::Form* behindPicture = nullptr;
  bool endRequested = false;
  std::vector<double> savedSeries;  // C(1) to C(M) as the file holds them
  std::string savedTo;              // that file, whatever the series is called by now

  navigation::SessionForm* ById(navigation::ScreenId id) const {
    for (navigation::SessionForm* form : forms)
      if (form->id == id) return form;
    return nullptr;
  }

  // The outcomes 1 to M as they would be written.
  std::vector<double> Series() const {
    if (session.C.size() < 2) return {};
    const auto count =
        std::min(static_cast<std::size_t>(SeriesCount(session)), session.C.size() - 1);
    return {session.C.begin() + 1, session.C.begin() + 1 + static_cast<std::ptrdiff_t>(count)};
  }

  // The file that holds the series; empty where none does.
  std::string SeriesFile() const {
    const bool saved =
        session.Mode == DataMode::Raw && !session.refusedFile && !savedSeries.empty();
    return saved ? savedTo : std::string();
  }

  void OfferSteps() const {
    for (navigation::SessionForm* form : forms) form->OfferSteps();
  }

  // Where the series can be looked at on this screen.
  bool Stands(const navigation::SessionForm& form) const {
    return form.id == navigation::ScreenId::Basis || form.id == navigation::ScreenId::DataCtrl ||
           workflow::GateOpen(session, navigation::ScreenId::DataCtrl, form.id);
  }

  void StartExtrapolation(Extrapolation tag) {
    if (tag == Extrapolation::Jahr)
      mean.JahrCmb_Click();
    else if (tag == Extrapolation::Land)
      mean.LandCmb_Click();
    else
      percEx.Run(tag);
  }
};

}  // namespace start
