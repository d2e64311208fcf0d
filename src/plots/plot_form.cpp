#include "plots/plot_form.h"

#include "analysis/rankits.h"
#include "analysis/transformations.h"
#include "base/fault.h"
#include "catalog/catalog.h"
#include "plots/annex_e.h"
#include "plots/paper_labels.h"
#include "plots/picture_words.h"
#include "plots/regression_line.h"
#include "session/global_bas.h"
#include "stats/estimators.h"

namespace plots {
namespace {

constexpr char kDefaultTransformation[] = "Log(x)";

}  // namespace

PlotForm::PlotForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts)
    : SessionForm("PlotForm", navigation::ScreenId::Plot, "TabPlotform", sessionRecord, programDesk,
                  formPorts) {
  for (const std::string& label : PlotWBas::AnnexLabelNames())
    annexLabels_.emplace_back(*this, screen::Kind::PictureLabel, label);
  stepMenus.emplace(*this);
  ConnectMenus();
  ConnectLimits();
  PicPlot.Resized = [this] {
    if (IsShown()) PlotStatus();
  };
  PicPlot.MouseDown = [this](double, double y) { PicPlot_MouseDown(y); };
}

void PlotForm::Load() { ResetAll(); }

void PlotForm::Activate() {
  Flags();
  EnterOwnTab();
  RebuildStrip();
  MenuPlot.Hide();  // it leads here
  WindnrLbl.text = "17a";
  flow.TestTag = Extrapolation::None;
  state.RankitTable = analysis::RankitsForSampleSize(SampleCount(session));
  RefillCTransf();
  // A range that was given up on another screen leaves nothing to pick here.
  if (!session.DetecOn) ResetAll();
  MemuOtherPlots.visible = session.DeveloperMode;
  PlotStatus();
}

// The size of a hidden screen's picture may change; its series may be gone by then.
bool PlotForm::IsShown() const { return session.CurrentTab == id; }

void PlotForm::RefillCTransf() {
  if (state.Transformation.empty()) state.Transformation = kDefaultTransformation;
  const int M = SampleCount(session);
  analysis::TransformedSeries series = analysis::Transformed(session.C, M, state.Transformation);
  if (series.refusal[0] != 0) {
    state.Transformation = kDefaultTransformation;
    series = analysis::Transformed(session.C, M, state.Transformation);
  }
  state.CTransf = std::move(series.CTransf);
}

PlotWBas::PlotData PlotForm::Data() const {
  return {session, state.CTransf, state.RankitTable, state.Transformation, ports.clock.Now()};
}

void PlotForm::PlotStatus() {
  const auto M = static_cast<std::size_t>(SampleCount(session));
  if (state.CTransf.size() <= M) fault::Throw(FaultKind::Subscript);
  PlotSpan = Checked(state.CTransf[M] - state.CTransf[1]);
  if (state.Transformation.empty()) state.Transformation = kDefaultTransformation;
  PlaceBars();
  PlotWBas::Labels labels;
  if (AnnexE())
    DrawAnnex(labels);
  else
    DrawCumulative(labels);
  PlotWBas::WriteLabels(PicPlot.drawing, labels);
  ShowLabels(labels);
  // The headline may have had to shorten it.
  const std::string series = GlobalBAS::Trim(session.Name);
  PicPlot.tip = PlotWBas::Shows(PicPlot.drawing, "LblKoptekst", series) ? "" : series;
  PicPlot.text = PlotWBas::PictureWords(session, LblKoptekst.text, LblShapiro.text);
  TickChoices();
  menuExtrPol.visible = menuExtrPol.enabled = session.LimitsOk;
  OfferPicture();
  TellState();
}

// The name stands in the headline.
void PlotForm::FollowSave(const LastAction* told) {
  PlotStatus();
  SessionForm::FollowSave(told);
}

void PlotForm::DrawCumulative(PlotWBas::Labels& labels) {
  using namespace PlotWBas;
  drawing::DrawSurface& surface = PicPlot.drawing;
  const PlotData data = Data();
  if (Upright())
    DrawProbabilityPaper(surface, labels, data);
  else
    DrawInverseCumulative(surface, labels, data);
  const analysis::Regression fit = Fit();
  const Paper paper(Upright() ? Axes::OutcomesUp : Axes::OutcomesAcross, surface, data);
  DrawRegression(surface, labels, paper, data, fit);
  const LimitMark LOQ = LOQMark(paper, data, LOQActive);
  const LimitMark URR = URRMark(paper, data, URRActive);
  const Room room(paper, data, LineOf(paper, fit));
  DrawLimits(surface, labels, paper, data, room, LOQ, URR);
  FollowLimits(LOQ, URR);
  ArrangeOutcomeLabels(labels, paper);
  List(labels, PlacesOf(paper, data, fit, LOQ, URR), fit);
}

void PlotForm::DrawAnnex(PlotWBas::Labels& labels) {
  const PlotWBas::PlotData data = Data();
  PlotWBas::DrawAnnexE(PicPlot.drawing, labels, data);
  const analysis::Regression fit = Fit();
  PlotWBas::DrawAnnexRegression(PicPlot.drawing, labels, data, fit);
  List(labels, PlotWBas::PlacesOf(PicPlot.drawing, data, fit), fit);
}

void PlotForm::List(PlotWBas::Labels& labels, const PlotWBas::ListedPlaces& places,
                    const analysis::Regression& fit) {
  if (!session.DeveloperMode || !MenuDevelop.ticked) return;
  PlotWBas::PutListing(labels, places, PlotWBas::DevelopmentListing(places, Data(), fit));
}

// The message about outcomes that do not differ outlives the regression's own texts.
analysis::Regression PlotForm::Fit() {
  const std::string complaint = analysis::VariabilityComplaint(session);
  const analysis::Regression fit = analysis::FitLine(session, state);
  flow.MsgText = complaint.empty() ? fit.TestText : complaint;
  flow.RegressionLabel = fit.RegressionLabel;
  TakeEstimators(fit);
  TellLine(fit);
  return fit;
}

void PlotForm::TellLine(const analysis::Regression& fit) {
  const LastAction* told = record.Reported(id);
  if (fit.beyondNumbers)
    Report({.did = Did::LineBeyondNumbers});
  else if (told && told->did == Did::LineBeyondNumbers)
    Report({});
}

// Without a line the statistics of the record stay.
void PlotForm::TakeEstimators(const analysis::Regression& fit) {
  record.Change([&fit](Given& given) {
    given.NInRange = fit.NInRange;
    if (!fit.line) return;
    given.regression = fit.estimators;
    given.inForce = fit.estimators ? Estimates::Regression : Estimates::RangeDegrees;
  });
  if (!fit.line || session.noEstimates) return;
  Computed& kept = record.Numbers();
  kept.GMu = StatFWinBAS::GMUnbiased(session.df, session.GM, session.GSD).value_or(0);
  kept.SDu = StatFWinBAS::FinneyVarianceMVU(session.df, session.GM, session.GSD);
}

void PlotForm::ShowLabels(const PlotWBas::Labels& labels) {
  for (screen::Control* control : controls) {
    if (control->kind != screen::Kind::PictureLabel) continue;
    const PlotWBas::Label* label = PlotWBas::FindLabel(labels, control->name);
    control->visible = label != nullptr;
    control->text = label ? label->text : std::string();
  }
}

}  // namespace plots
