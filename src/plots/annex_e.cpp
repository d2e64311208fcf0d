#include "plots/annex_e.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "analysis/transformations.h"
#include "base/fault.h"
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "plots/paper_labels.h"
#include "plots/regression_line.h"
#include "session/global_bas.h"
#include "stats/normal.h"

namespace PlotWBas {
namespace {

using drawing::Across;
using drawing::Colour;
using drawing::Down;
using drawing::Point;
using drawing::TextStyle;

constexpr Colour kFrame{0, 0, 0};
constexpr Colour kFineGrid{222, 226, 232};
constexpr Colour kGrid{180, 188, 200};
constexpr Colour kPoint{0, 0, 170};
constexpr Colour kOutside{150, 150, 150};  // a point that the line does not follow
constexpr Colour kLine{190, 0, 0};
constexpr Colour kMark{0, 110, 0};

constexpr double kHair = 10;
constexpr double kPen = drawing::kTwipsPerPixel;
constexpr double kLinePen = 22;
constexpr double kHalfCross = 60;
constexpr double kTick = 60;
constexpr double kInside = 90;  // from the frame to what stands within it

std::string ProbabilityLabel(int percent) {
  return "LblYas_" + GlobalBAS::GeneralText(percent) + "_procent";
}

// What is read off the line, in the words for a scale; none for the others.
struct ReadOff {
  std::string_view scale;
  const char* at50;
  const char* at85;
};
constexpr std::array<ReadOff, 2> kReadOffs = {{
    {"Log", "GM~Median=C50%", "GM*GSD~C85%"},
    {"Unt", "Xgem~Median=C50%", "Xgem+S~C85%"},
}};

// Draws one plot.
class Annex {
 public:
  Annex(drawing::DrawSurface& surface, Labels& labels, const PlotData& data)
      : surface_(surface),
        labels_(labels),
        data_(data),
        paper_(surface, data),
        f_(paper_.Edges()) {}

  void DrawGrid();
  void DrawPoints();
  void PutTitles();
  void DrawLine(const analysis::Regression& fit);
  void DrawReadOffs(const analysis::Regression& fit);
  void PutTexts(const analysis::Regression& fit);

 private:
  TextStyle StyleOf(double size, Across across, Down down) const {
    return Style(surface_.ScaleWidth(), surface_.ScaleHeight(), size, across, down);
  }
  void DrawProbability(double p, const std::string& label, const std::string& text);
  void DrawExposures();
  void PutExposures(const std::vector<DecadeTick>& ticks);
  bool PutExposure(const DecadeTick& tick, std::vector<std::pair<double, double>>& taken);
  void DrawReadOff(double p, double transformed, std::optional<double> otherX, const char* label,
                   const char* words);

  drawing::DrawSurface& surface_;
  Labels& labels_;
  const PlotData& data_;
  AnnexPaper paper_;
  const Frame& f_;
};

void Annex::DrawProbability(double p, const std::string& label, const std::string& text) {
  const double y = paper_.Y(p);
  surface_.Line({f_.XasStart, y}, {f_.XasEinde, y}, kGrid, kHair);
  surface_.Line({f_.XasStart - kTick, y}, {f_.XasStart, y}, kFrame, kPen);
  labels_.push_back(
      {label, text, {f_.XasStart - kBeside, y}, StyleOf(8, Across::Right, Down::Middle)});
}

// A value without a place on the transformed scale has no line, nor has one outside of the frame.
void Annex::DrawExposures() {
  std::vector<DecadeTick> placed;
  for (const DecadeTick& tick : TicksOf(paper_.Bounds())) {
    try {
      const double x = paper_.X(analysis::TransformValue(data_.Transformation, tick.value));
      if (x < f_.XasStart - 1 || x > f_.XasEinde + 1) continue;
      const Colour colour = tick.digit == 1 ? kGrid : kFineGrid;
      surface_.Line({x, f_.YasTop}, {x, f_.YasBot}, colour, kHair);
      surface_.Line({x, f_.YasBot}, {x, f_.YasBot + kTick}, kFrame, kPen);
      placed.push_back(tick);
    } catch (const RunTimeError&) {
      continue;
    }
  }
  PutExposures(placed);
}

bool Annex::PutExposure(const DecadeTick& tick, std::vector<std::pair<double, double>>& taken) {
  const TextStyle style = StyleOf(8, Across::Centre, Down::Top);
  const std::string text = GlobalBAS::FileText(tick.value);
  const double x = paper_.X(analysis::TransformValue(data_.Transformation, tick.value));
  const double half = TextWidth(text, style) / 2 + 30;
  for (const auto& [left, right] : taken)
    if (x - half < right && left < x + half) return false;
  taken.push_back({x - half, x + half});
  labels_.push_back({"LblC_" + text, text, {x, f_.YasBot + kTick + 30}, style});
  return true;
}

// Decades first, then what finds room between them.
void Annex::PutExposures(const std::vector<DecadeTick>& ticks) {
  std::vector<std::pair<double, double>> taken;
  for (const int digit : {1, 3, 5, 7})
    for (const DecadeTick& tick : ticks)
      if (tick.digit == digit) PutExposure(tick, taken);
}

void Annex::DrawGrid() {
  DrawExposures();
  const double edge = paper_.Axis().edge;
  for (const int percent : AnnexProbabilities())
    DrawProbability(percent / 100.0, ProbabilityLabel(percent),
                    GlobalBAS::GeneralText(percent) + "%");
  if (edge < 0.01) {
    DrawProbability(edge, "LblYas_begin", "0.1%");
    DrawProbability(1 - edge, "LblYas_einde", "99.9%");
  }
  surface_.Line({f_.XasStart, f_.YasTop}, {f_.XasStart, f_.YasBot}, kFrame, kPen);
  surface_.Line({f_.XasStart, f_.YasBot}, {f_.XasEinde, f_.YasBot}, kFrame, kPen);
  surface_.Line({f_.XasStart, f_.YasTop}, {f_.XasEinde, f_.YasTop}, kFrame, kPen);
  surface_.Line({f_.XasEinde, f_.YasTop}, {f_.XasEinde, f_.YasBot}, kFrame, kPen);
}

void Annex::DrawPoints() {
  const ExposureSession& s = data_.s;
  for (int i = 1; i <= SampleCount(s); ++i) {
    const Point at{paper_.X(paper_.Transformed(i)), paper_.Y(paper_.Position(i))};
    const int place = paper_.Reversed() ? SampleCount(s) + 1 - i : i;
    const bool followed = place >= s.FirstInRange && place <= s.LastInRange;
    const Colour colour = followed ? kPoint : kOutside;
    surface_.Line({at.x - kHalfCross, at.y - kHalfCross}, {at.x + kHalfCross, at.y + kHalfCross},
                  colour, kPen);
    surface_.Line({at.x - kHalfCross, at.y + kHalfCross}, {at.x + kHalfCross, at.y - kHalfCross},
                  colour, kPen);
  }
}

void Annex::PutTitles() {
  PutHeadlines(labels_, surface_.ScaleWidth(), surface_.ScaleHeight(), data_);
  const TextStyle above = StyleOf(8.5, Across::Right, Down::Bottom);
  labels_.push_back({"LblYasTop",
                     OwnText(Own::AnnexProbability) + data_.s.CR + "Pk x 100",
                     {f_.XasStart - kBeside, f_.YasTop - 1.2 * RowHeight(above)},
                     above});
  // The axis that is labelled "Results" in the other kinds, with the same words below.
  const std::string results = OutcomesTitle(data_.s, data_.Transformation);
  const Fitted title =
      FittedNumbers(OwnText(Own::AnnexExposure) + results.substr(results.find('\r')),
                    RightRoom(surface_.ScaleWidth()), StyleOf(8.5, Across::Left, Down::Bottom));
  labels_.push_back(
      {"LblXasEinde", title.text, {f_.XasEinde + kBeside, f_.YasBot + 60}, title.style});
}

void Annex::DrawLine(const analysis::Regression& fit) {
  const AnnexLine line = AnnexLineOf(paper_, data_, fit);
  surface_.Line(line.lower, line.upper, kLine, kLinePen);
}

// From the axis of the probabilities to the line, and down to the exposure. The words stand at the
// end of the level that is farther from the line, unless the upper mark's way down, at `otherX`,
// passes there.
void Annex::DrawReadOff(double p, double transformed, std::optional<double> otherX,
                        const char* label, const char* words) {
  const Point at{paper_.X(transformed), paper_.Y(p)};
  if (at.x < f_.XasStart || at.x > f_.XasEinde) return;
  surface_.Line({f_.XasStart, at.y}, at, kMark, kPen);
  surface_.Line(at, {at.x, f_.YasBot}, kMark, kPen);
  if (!words) return;
  TextStyle style = StyleOf(8, Across::Right, Down::Bottom);
  style.colour = kMark;
  const double rightEdge = f_.XasEinde - kInside;
  const bool crossed =
      otherX && *otherX > rightEdge - TextWidth(words, style) && *otherX < rightEdge;
  const bool left = crossed || at.x - f_.XasStart > f_.XasEinde - at.x;
  if (left) style.across = Across::Left;
  labels_.push_back({label, words, {left ? f_.XasStart + kInside : rightEdge, at.y - 20}, style});
}

void Annex::DrawReadOffs(const analysis::Regression& fit) {
  const auto* words =
      std::ranges::find(kReadOffs, data_.Transformation.substr(0, 3), &ReadOff::scale);
  const bool known = words != kReadOffs.end();
  const double z85 = StatFWinBAS::NormalUpperInverse(0.15);
  const double up = paper_.Reversed() ? -fit.b : fit.b;
  const double at85 = fit.a + up * z85;
  DrawReadOff(0.5, fit.a, paper_.X(at85), "LblC50", known ? words->at50 : nullptr);
  DrawReadOff(0.85, at85, std::nullopt, "LblC85", known ? words->at85 : nullptr);
}

void Annex::PutTexts(const analysis::Regression& fit) {
  PutRegressionTexts(labels_, surface_, data_, fit,
                     AboveAxisTitle(f_, surface_.ScaleWidth(), surface_.ScaleHeight()));
}

}  // namespace

std::vector<std::string> AnnexLabelNames() {
  std::vector<std::string> names = {"LblC50", "LblC85"};
  for (const int percent : AnnexProbabilities()) names.push_back(ProbabilityLabel(percent));
  return names;
}

void DrawAnnexE(drawing::DrawSurface& surface, Labels& labels, const PlotData& data) {
  Annex annex(surface, labels, data);
  surface.Clear();
  annex.DrawGrid();
  annex.DrawPoints();
  annex.PutTitles();
}

AnnexLine AnnexLineOf(const AnnexPaper& paper, const PlotData& data,
                      const analysis::Regression& fit) {
  const double R1 = data.RankitTable[1];
  const double outermost = StatFWinBAS::NormalUpperInverse(paper.Position(1));
  const bool reversed = paper.Reversed();
  AnnexLine line{{paper.X(reversed ? fit.yHigh : fit.yLow), paper.YOfScore(-R1)},
                 {paper.X(reversed ? fit.yLow : fit.yHigh), paper.YOfScore(R1)}};
  if (line.lower.x < paper.Edges().XasStart)
    line.lower = {paper.Edges().XasStart, paper.YOfScore(-outermost)};
  if (line.upper.x > paper.Edges().XasEinde)
    line.upper = {paper.Edges().XasEinde, paper.YOfScore(outermost)};
  return line;
}

void DrawAnnexRegression(drawing::DrawSurface& surface, Labels& labels, const PlotData& data,
                         const analysis::Regression& fit) {
  Annex annex(surface, labels, data);
  annex.PutTexts(fit);
  if (!fit.line) return;
  annex.DrawReadOffs(fit);
  annex.DrawLine(fit);
}

}  // namespace PlotWBas
