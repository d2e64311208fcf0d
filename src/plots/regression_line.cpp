#include "plots/regression_line.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "analysis/transformations.h"
#include "base/fault.h"
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "plots/paper_labels.h"
#include "session/global_bas.h"
#include "session/limit_checks.h"

namespace PlotWBas {
namespace {

using drawing::Across;
using drawing::Down;
using drawing::Point;

constexpr drawing::Colour kLine{190, 0, 0};
constexpr double kPen = 22;

// Up to which value of the transformed scale, from which, an outcome is shown.
struct Guard {
  std::string_view letters;
  bool (*allows)(double y);
};

constexpr std::array<Guard, 5> kGuards = {{
    {"Lg(", [](double y) { return y < 6.5; }},
    {"Log", [](double y) { return y < 700; }},
    {"Sqr", [](double y) { return y < 1E+150; }},
    {"Unt", [](double) { return true; }},
    {"x^2", [](double y) { return y > 0; }},
}};

// With the digits of the series also below zero, where the line may well end and the mask has all.
std::string Shown(const ExposureSession& s, double outcome) {
  return (outcome < 0 ? "-" : "") + GlobalBAS::ShownTrimmed(s, std::abs(outcome));
}

// The label of the outcome at the lower end stands among those of the axis, at or below the lowest.
void PutLowerEnd(Labels& labels, const Paper& paper, const std::string& text, double yLow) {
  const Frame& f = paper.Edges();
  const bool up = paper.OutcomesUp();
  Label label = OutcomeLabel(paper, "LblCBegin", text, yLow);
  label.style.colour = kLine;
  if (up)
    label.at.y = std::min(label.at.y, f.YasBot + 2 * RowHeight(label.style));
  else
    label.at.x = std::max(label.at.x, f.XasStart - TextWidth(label.text, label.style));
  labels.push_back(label);
}

// The one at the upper end stands outside of the frame where the line leaves it, but above `texts`,
// where the texts to the right begin.
void PutUpperEnd(Labels& labels, const Paper& paper, const std::string& text, double yHigh,
                 double texts) {
  const Frame& f = paper.Edges();
  const double W = paper.ScaleWidth();
  const bool up = paper.OutcomesUp();
  drawing::TextStyle style = Style(W, paper.ScaleHeight(), 8.5, up ? Across::Left : Across::Centre,
                                   up ? Down::Middle : Down::Bottom);
  style.colour = kLine;
  const Fitted fitted = FittedNumbers(text, RightRoom(W), style);
  const double row = RowHeight(fitted.style);
  const double place = paper.OutcomePlace(yHigh);
  Point at = {f.XasEinde + kBeside, std::max(f.YasTop - row, std::min(place, texts - row))};
  // Over the frame, and so not over the title of the other axis.
  if (!up)
    at = {std::clamp(place, f.XasStart + TextWidth(fitted.text, fitted.style) / 2, f.XasEinde),
          UpperLabelFoot(paper.ScaleHeight())};
  labels.push_back({"LblCEinde", fitted.text, at, fitted.style});
}

void PutEndLabels(Labels& labels, const Paper& paper, const PlotData& data,
                  const analysis::Regression& fit) {
  const Label& texts = *FindLabel(labels, "LblDescrip");
  const double top = texts.at.y - TextHeight(texts.text, texts.style);
  if (const auto low = OutcomeAtEnd(data.Transformation, fit.yLow))
    PutLowerEnd(labels, paper, Shown(data.s, *low), fit.yLow);
  if (const auto high = OutcomeAtEnd(data.Transformation, fit.yHigh))
    PutUpperEnd(labels, paper, Shown(data.s, *high), fit.yHigh, top);
}

std::string RangeText(const ExposureSession& s) {
  const bool lower = s.FirstInRange > 1;
  const bool upper = s.LastInRange < SampleCount(s);
  if (lower && upper) return LoadResString(1753);
  if (lower) return LoadResString(1755);
  return upper ? LoadResString(1756) : std::string();
}

// The estimates and whose they are, or nothing without any.
std::string EstimatesText(const ExposureSession& s, const analysis::Regression& fit) {
  if (!fit.estimates) return {};
  const std::string word = s.RegressionLabel.substr(0, s.RegressionLabel.find(' '));
  return word + s.CR + LoadResString(1758) + s.CR + "Rankit" + s.CR + LoadResString(1760) + s.CR +
         fit.EstimatesText + s.CR;
}

}  // namespace

LineEnds RegressionEnds(const Paper& paper, const analysis::Regression& fit) {
  const Frame& f = paper.Edges();
  const bool up = paper.OutcomesUp();
  LineEnds ends;
  if (fit.yLow > paper.Lowest()) {
    const double place = paper.OutcomePlace(fit.yLow);
    ends.lower = up ? Point{f.XasStart, place} : Point{place, f.YasBot};
  } else {
    ends.lower = paper.At(paper.Lowest(), Divide(paper.Lowest() - fit.a, fit.b));
  }
  if (fit.yHigh < paper.Highest()) {
    const double place = paper.OutcomePlace(fit.yHigh);
    ends.upper = up ? Point{f.XasEinde, place} : Point{place, f.YasTop};
  } else {
    ends.upper = paper.At(paper.Highest(), Divide(paper.Highest() - fit.a, fit.b));
  }
  return ends;
}

std::optional<LineEnds> LineOf(const Paper& paper, const analysis::Regression& fit) {
  if (!fit.line) return std::nullopt;
  return RegressionEnds(paper, fit);
}

std::optional<double> OutcomeAtEnd(const std::string& Transformation, double y) {
  const std::string letters = Transformation.substr(0, 3);
  const auto* guard = std::ranges::find(kGuards, letters, &Guard::letters);
  if (guard == kGuards.end() || !guard->allows(y)) return std::nullopt;
  return analysis::InverseTransform(Transformation, y);
}

std::string RegresText(const ExposureSession& s, const std::string& Transformation,
                       const std::string& name) {
  const std::string series = Transformation == "Unt" ? std::string(OwnText(Own::DataOf))
                                                     : Transformation + LoadResString(1751);
  return LoadResString(1750) + series + name + s.CR + RangeText(s);
}

std::string DescripText(const ExposureSession& s, const analysis::Regression& fit) {
  std::string text = EstimatesText(s, fit);
  if (!s.DetecOn)
    return text + LoadResString(1765) + s.CR + "M= " + GlobalBAS::ShownTrimmed(s, s.M);
  if (s.LOQ > kBelowLowest * s.C[1]) text += "LOQ " + GlobalBAS::Shown(s, s.LOQ) + s.CR;
  if (s.URR < kAboveHighest * s.C[static_cast<std::size_t>(SampleCount(s))])
    text += "URR " + GlobalBAS::Shown(s, s.URR) + s.CR;
  return text + LoadResString(1761) + s.CR + LoadResString(1762) +
         GlobalBAS::ShownTrimmed(s, s.NInRange) + s.CR + LoadResString(1763) +
         GlobalBAS::ShownTrimmed(s, s.M) + LoadResString(1764);
}

// What stands below the frame, around the name of the series.
void PutThrough(Labels& labels, double W, double H, const PlotData& data) {
  constexpr double kCorner = 1000;  // left to the title of the axis
  drawing::TextStyle style = Style(W, H, 8, Across::Centre, Down::Top);
  // The numbers of the horizontal axis stand between.
  const double under = 0.9 * H + 120 + 1.2 * RowHeight(style);
  const auto text = [&](const std::string& name) {
    return RegresText(data.s, data.Transformation, name);
  };
  const Fitted fitted =
      FittedName(text, GlobalBAS::Trim(data.s.Name), W - 2 * kCorner * TextScale(W, H), style);
  labels.push_back({"LblRegres", fitted.text, {0.5 * W, under}, fitted.style});
}

void PutRegressionTexts(Labels& labels, const drawing::DrawSurface& surface, const PlotData& data,
                        const analysis::Regression& fit, Point column) {
  const double W = surface.ScaleWidth();
  const double H = surface.ScaleHeight();
  const drawing::TextStyle beside = Style(W, H, 8, Across::Left, Down::Bottom);
  const Fitted test = FittedNumbers(fit.TestText, RightRoom(W), beside);
  const Fitted estimates = FittedNumbers(DescripText(data.s, fit), RightRoom(W), beside);
  labels.push_back({"LblShapiro", test.text, column, test.style});
  const double above = TextHeight(test.text, test.style) + 0.6 * RowHeight(beside);
  labels.push_back(
      {"LblDescrip", estimates.text, {0.8 * W + kBeside, column.y - above}, estimates.style});
  if (fit.line) PutThrough(labels, W, H, data);
}

void DrawRegression(drawing::DrawSurface& surface, Labels& labels, const Paper& paper,
                    const PlotData& data, const analysis::Regression& fit) {
  PutRegressionTexts(labels, surface, data, fit, RightColumn(paper));
  if (!fit.line) return;
  const LineEnds ends = RegressionEnds(paper, fit);
  surface.Line(ends.lower, ends.upper, kLine, kPen);
  PutEndLabels(labels, paper, data, fit);
}

}  // namespace PlotWBas
