// The mean and the comparison screen.
#include <cmath>

#include "catalog/catalog.h"
#include "drive/text.h"
#include "tests/walks/checks.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

constexpr double kLargestExponent = 701;  // beyond it a limit is told, and not shown as a number

void CheckPercent(const View& view, double percent) {
  const std::string& text = view.page.Text("PercExTxB");
  if (percent == 0 && text.find('<') != std::string::npos) return;
  view.Number("mean", "PercExTxB", percent);
}

// The caption names the confidence that the limit has.
void CheckCaption(const View& view) {
  if (!ShowsAtSomeWidth(view.page.Text("UCLLbl"), view.Now().D))
    view.Wrong("mean", "the limit stands under " + view.page.Text("UCLLbl"));
}

void CheckUpper(const View& view) {
  const std::string& text = view.page.Text("UCLTxB");
  const std::string& percent = view.page.Text("PercExTxB");
  if (!view.page.Visible("UCLTxB") || (Blank(text) && Blank(percent))) return;
  const bool land = view.page.Text("Methodlbl") == LoadResString(2431);
  const auto upper = land ? ExpectedLand(view.Estimates(), view.Given(), view.Now().M)
                          : ExpectedJahr(view.Estimates(), view.Given());
  if (!upper) return;
  if (upper->UCL < kLargestExponent)
    view.Number("mean", "UCLTxB", std::exp(upper->UCL));
  else if (NumberIn(text))
    view.Wrong("mean", "UCLTxB shows " + text + " for a limit beyond the numbers");
  CheckPercent(view, upper->PercEx);
  CheckCaption(view);
}

void CheckResults(const View& view, const Reference& reference) {
  const std::string dispersion = view.page.Text("GSDInfTxb");
  const std::string location = view.page.Text("GMInfTxb");
  const bool shown = view.page.Visible("GSDInfTxb");
  if (!shown || (BlankOrUnknown(dispersion) && BlankOrUnknown(location))) return;
  const auto expected = ExpectedCompare(view.Estimates(), reference);
  if (!expected) return;
  view.Number("compare", "GSDInfTxb", expected->dispersion);
  view.Number("compare", "GMInfTxb", expected->location);
  if (reference.mode != "S" || BlankOrUnknown(location)) return;
  view.Number("compare", "SampSizTxb3", expected->df);
  view.Number("compare", "GMTxb3", expected->GM);
  view.Number("compare", "GSDTxb3", expected->GSD);
}

// What the user chose is what is ticked.
void CheckTicks(const View& view, const Reference& reference) {
  const auto ticked = [&](const char* name) {
    return view.page.Visible(name) && view.page.Control(name).ticked;
  };
  if (ticked("SampOpt") && reference.mode != "S") view.Wrong("compare", "the sample is ticked");
  if (ticked("PopOpt") && reference.mode != "P") view.Wrong("compare", "the population is ticked");
  const bool equal = reference.choice == "Y" || reference.choice == "P";
  if (ticked("EqualOpt") && !equal) view.Wrong("compare", "equal variances are ticked");
  if (ticked("DifferOpt") && equal) view.Wrong("compare", "different variances are ticked");
}

// The answers are the wrong way round against the question's wording, and users know them so.
void CheckAnswer(const View& view, const Reference& reference) {
  const Step& step = view.scene.step;
  for (std::size_t i = 0; i < step.boxes.size(); ++i) {
    if (step.boxes[i].buttons != screen::Buttons::YesNoCancel) continue;
    const auto expected = ExpectedCompare(view.Estimates(), reference);
    const std::string byCancel = expected && expected->dispersion < 5 ? "A" : "P";
    const std::string wanted = step.answers[i] == screen::Answer::Yes  ? "N"
                               : step.answers[i] == screen::Answer::No ? "Y"
                                                                       : byCancel;
    if (reference.choice != wanted)
      view.Wrong("compare", "the answer has led to " + reference.choice + ", not " + wanted);
  }
}

}  // namespace

void CheckMean(const View& view) {
  if (!view.model.Known()) return;
  const Seen& now = view.Now();
  view.Number("mean", "DegreesLbl", now.df);
  view.Number("mean", "GSDLbl(1)", now.GSD);
  if (NumberIn(view.page.Text("SampSizLbl")) != now.M)
    view.Wrong("mean", "SampSizLbl shows " + view.page.Text("SampSizLbl"));
  if (now.OELV && !ShowsAtSomeWidth(view.page.Text("VkrValLbl"), *now.OELV))
    view.Wrong("mean", "the limit value shown is " + view.page.Text("VkrValLbl"));
  if (const auto mean = ExpectedMean(view.Estimates())) {
    view.Number("mean", "GMuLbl(1)", mean->GMu);
    view.Number("mean", "AMuTxb", mean->AMu);
  }
  CheckUpper(view);
}

void CheckComparison(const View& view) {
  if (!view.model.Known()) return;
  const Seen& now = view.Now();
  view.Number("compare", "SampSizTxB", now.M);
  view.Number("compare", "GMTxB", now.GM);
  view.Number("compare", "GSDTxB", now.GSD);
  const auto field = [&](const char* name, double value) {
    if (!view.page.Control(name).touched) view.Number("compare", name, value);
  };
  field("SampSizTxB2", now.M2);
  field("GMTxB2", now.GM2);
  field("GSDTxB2", now.GSD2);
  const Reference reference{now.CompareMode, now.GSDChoice, now.GM2, now.GSD2, now.M2};
  CheckResults(view, reference);
  CheckTicks(view, reference);
  CheckAnswer(view, reference);
}

}  // namespace walks
