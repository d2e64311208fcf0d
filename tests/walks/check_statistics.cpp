// The descriptive screen, the plot and the picture of the distribution.
#include <cmath>

#include "catalog/catalog.h"
#include "drive/text.h"
#include "tests/walks/checks.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

// Of the outcomes only where nothing else was tried or cut off.
bool FromOutcomes(const Seen& now) { return now.Mode == "R" && !now.DetecOn && !now.ModifyMode; }

void CheckMoments(const View& view) {
  const Seen& now = view.Now();
  const auto expected = ExpectedDescriptive(view.Estimates(), now.M,
                                            FromOutcomes(now) ? view.model.Series() : Outcomes());
  if (!expected) return;
  view.Number("descriptive", "GMuTxB", expected->GMu);
  view.Number("descriptive", "AMmlTxb", expected->AMml);
  view.Number("descriptive", "AMuTxb", expected->AMu);
  view.Number("descriptive", "SDUTxb", expected->SDu);
  view.Number("descriptive", "AmlinTxb", expected->XM);
  for (const auto& [box, value] :
       {std::pair{"AMmvTxb", expected->AMmv}, std::pair{"SDlinTxb", expected->SDlin}}) {
    if (value)
      view.Number("descriptive", box, *value);
    else if (!BlankOrUnknown(view.page.Text(box)))
      view.Wrong("descriptive", std::string(box) + " shows " + view.page.Text(box));
  }
}

void CheckRange(const View& view) {
  const Seen& now = view.Now();
  // Values that are tried on top of the sample have no range of their own.
  const bool ranged = now.DetecOn && !now.ModifyMode;
  if (ranged != view.page.Visible("DetecFrame"))
    view.Wrong("descriptive", "the frame of the range does not follow the range");
  if (!ranged || !now.Count()) return;
  view.Number("descriptive", "DetecLTxb", now.LOQ);
  view.Number("descriptive", "DetecUTxb", now.URR);
  view.Number("descriptive", "DegreesTxb", now.df);
  view.Number("descriptive", "DegreesLbl(5)", now.FirstInRange - 1);
  view.Number("descriptive", "DegreesLbl(9)", now.M - now.LastInRange);
  view.Number("descriptive", "DegreesLbl(11)", now.NInRange);
}

// GMg and GSDg, or x and s, as the plot lists them.
void CheckListed(const View& view) {
  const Seen& now = view.Now();
  const std::string& text = view.page.Text("LblDescrip");
  if (!now.DetecOn || now.scale != "MenuLog" || text.find("GMg=") == std::string::npos) return;
  const auto line = LineThrough(view.model.Series(), {now.FirstInRange, now.LastInRange});
  if (!line) return view.Wrong("plot", "estimates without a line");
  if (!ShowsAtSomeWidth(text.substr(text.find("GMg=")), line->GM) ||
      !ShowsAtSomeWidth(text.substr(text.find("GSDg=")), line->GSD))
    view.Wrong("plot", "listed are " + drive::Quoted(text) + ", right are " + Word(line->GM) +
                           " and " + Word(line->GSD));
}

void CheckFit(const View& view) {
  const Seen& now = view.Now();
  const std::string& text = view.page.Text("LblShapiro");
  const Range all{1, now.Count()};
  const Range range{now.FirstInRange, now.LastInRange};
  const auto fit = ExpectedFit(view.model.Series(), now.scale, now.DetecOn ? range : all);
  if (!fit) return;
  const std::size_t at = text.find("W=");
  if (fit->tested != (at != std::string::npos))
    return view.Wrong("plot", "the fit reads " + drive::Quoted(text));
  if (!fit->tested) return;
  const double W = NumberIn(text.substr(at)).value_or(0);
  if (fit->W <= 0.9999 && std::abs(W - fit->W) > 1.1E-4)
    view.Wrong("plot", "W is shown as " + Word(W) + ", right is " + Word(fit->W));
}

void CheckEnds(const View& view) {
  const Outcomes& series = view.model.Series();
  for (const auto& [label, value] :
       {std::pair{"LblC1", series.front()}, std::pair{"LblCm", series.back()}}) {
    const std::string& text = view.page.Text(label);
    const std::size_t at = text.find('=');
    if (!view.page.Visible(label) || at == std::string::npos) continue;
    if (!ShowsAtSomeWidth(text.substr(at + 1), value))
      view.Wrong("plot", std::string(label) + " shows " + drive::Quoted(text));
  }
}

// One number of the picture against the box that it was taken from; either may be rounded further.
void Same(const View& view, const char* label, int line, const std::string& box) {
  if (!view.page.Visible(label)) return;
  const std::string shown = LineOf(view.page.Text(label), line);
  const std::string& boxed = view.page.Text(box);
  const auto drawn = NumberIn(shown);
  if (!drawn || !NumberIn(boxed))
    return view.Wrong("picture", std::string(label) + " shows " + drive::Quoted(shown) +
                                     " beside an empty " + box);
  const bool bound = boxed.find_first_of("<>") != std::string::npos;
  if (!bound && !SameRounded(shown, boxed))
    view.Wrong("picture", std::string(label) + " shows " + drive::Quoted(shown) + ", " + box + " " +
                              drive::Quoted(boxed));
}

// The limit of the mean may lie beyond the numbers; then no box shows it.
void CheckMarks(const View& view) {
  const std::string& from = view.Now().CurrentTab;
  if (from == LoadResString(90)) {
    Same(view, "UTLLbl", 1, "PercExForm.PercExTxB(1)");
    Same(view, "VkrValLbl", 1, "PercExForm.PercExTxB(0)");
  } else if (from == LoadResString(92)) {
    Same(view, "AMuLbl", 1, "UCLForm.AMuTxb");
    Same(view, "UCLLbl", 1, "UCLForm.UCLTxB");
    Same(view, "VkrValLbl", 1, "UCLForm.PercExTxB");
  }
}

}  // namespace

void CheckDescriptive(const View& view) {
  if (!view.model.Known()) return;
  const Seen& now = view.Now();
  view.Number("descriptive", "SampSizTxB", now.M);
  view.Number("descriptive", "GMTxB", now.GM);
  view.Number("descriptive", "GSDTxB", now.GSD);
  CheckMoments(view);
  CheckRange(view);
}

void CheckPlot(const View& view) {
  if (!view.model.Known() || !view.scene.step.boxes.empty()) return;
  CheckEnds(view);
  CheckListed(view);
  CheckFit(view);
}

void CheckPicture(const View& view) {
  const Seen& now = view.Now();
  if (!view.model.Known()) return;
  if (!view.page.Visible("GMLbl")) return view.Wrong("picture", "the picture is empty");
  if (!ShowsAtSomeWidth(view.page.Text("GMLbl"), now.GM) ||
      !ShowsAtSomeWidth(view.page.Text("GSDPercLbl"), now.GSD))
    view.Wrong("picture", "GM and GSD are " + view.page.Text("GMLbl") + " and " +
                              view.page.Text("GSDPercLbl"));
  CheckMarks(view);
}

}  // namespace walks
