#include "plots/density_view.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "compliance/compliance_tests.h"
#include "session/global_bas.h"
#include "stats/estimators.h"

namespace PlotWBas {
namespace {

constexpr drawing::Colour kPopulation{70, 70, 70};
constexpr drawing::Colour kUpperLimit{128, 64, 0};
constexpr drawing::Colour kLimitValue{192, 0, 0};
constexpr drawing::Colour kArithmetic{0, 110, 0};

std::string Percent(double value, const char* sign) {
  return GlobalBAS::FormatNumber(value, "##.0#") + sign;
}

std::string Number(const PictureNumbers& n, double value) {
  return GlobalBAS::FormatNumber(value, GlobalBAS::FormatMask(value, n.SigDigits));
}

std::string WithUnit(const PictureNumbers& n, double value) {
  return Number(n, value) + (n.Unit.empty() ? "" : " " + n.Unit);
}

void AddLimitValue(DensityData& data, const PictureNumbers& n, const char* exceedance) {
  if (!n.limit || !n.exceeded) return;
  std::string text = "H=" + WithUnit(n, *n.limit) + "\r" + exceedance + Percent(*n.exceeded, " %");
  if (!n.note.empty()) text += "\r" + n.note;
  data.marks.push_back({"VkrValLbl", text, Divide(*n.limit, n.GM), kLimitValue});
}

void AddTestMarks(DensityData& data, const PictureNumbers& n) {
  data.marks.push_back({"UTLLbl", "UTL " + Percent(n.U, " %") + "\r" + WithUnit(n, n.upperLimit),
                        Divide(n.upperLimit, n.GM), kUpperLimit});
  AddLimitValue(data, n, "A(C>H)=");
}

void AddMeanMarks(DensityData& data, const PictureNumbers& n) {
  data.marks.push_back({"AMuLbl", "AMu\r" + WithUnit(n, n.AMu), Divide(n.AMu, n.GM), kArithmetic});
  data.marks.push_back({"UCLLbl", "UCL " + Percent(n.D, "%") + "\r" + WithUnit(n, n.upperLimit),
                        Divide(n.upperLimit, n.GM), kUpperLimit});
  AddLimitValue(data, n, "A(AM>H)=");
}

void AddMarks(DensityData& data, const PictureNumbers& n) {
  data.marks.push_back({"GMLbl", "GM=" + WithUnit(n, n.GM) + "\r50%", 1, kPopulation});
  data.marks.push_back(
      {"GSDPercLbl", "GSD=" + Number(n, n.GSD) + "\rGM*GSD 84.13%", n.GSD, kPopulation});
  if (n.of == PictureOf::Test) AddTestMarks(data, n);
  if (n.of == PictureOf::Mean) AddMeanMarks(data, n);
}

std::optional<PictureNumbers> TestNumbers(const Record& record) {
  const TestResult* result = record.Test();
  return result ? NumbersOf(record.Now(), *result) : std::nullopt;
}

std::optional<PictureNumbers> MeanNumbers(const Record& record) {
  const ExposureSession& s = record.Now();
  const MeanResult* result = record.Mean();
  if (!result) return std::nullopt;
  const bool exact = result->method == Extrapolation::Land;
  PictureNumbers n = PopulationNumbers(s);
  n.of = PictureOf::Mean;
  n.window = exact ? "24a" : "24b";
  n.AMu = StatFWinBAS::FinneyMeanMVU(s.df, s.GM, s.GSD);
  // Where the box of the limit is empty there is nothing to draw.
  const bool shown = result->UCL < kLargestLogLimit;
  n.upperLimit = shown ? std::exp(result->UCL) : std::numeric_limits<double>::infinity();
  n.limit = s.OELV;
  n.exceeded = result->A;
  n.explanation = LoadResString(exact ? 2431 : 2430);
  return n;
}

}  // namespace

PictureNumbers PopulationNumbers(const ExposureSession& s) {
  PictureNumbers n;
  n.window = "20d";
  n.Name = s.Name;
  n.Unit = s.Unit;
  n.SigDigits = s.SigDigits;
  n.GM = s.GM;
  n.GSD = s.GSD;
  n.U = s.U;
  n.D = s.D;
  return n;
}

std::optional<PictureNumbers> NumbersOf(const ExposureSession& s, const TestResult& result) {
  const compliance::ComplianceTest* test = compliance::FindTest(result.test);
  if (!test || !result.PercEx.value || !result.UTL.value || result.olderLimit) return std::nullopt;
  PictureNumbers n = PopulationNumbers(s);
  n.of = PictureOf::Test;
  n.window = test->window;
  n.upperLimit = *result.UTL.value;
  n.limit = s.OELV;
  n.exceeded = result.PercEx.value;
  n.explanation = test->pictureWords(s, n.upperLimit);
  n.note = test->pictureNote(s);
  return n;
}

std::optional<PictureNumbers> NumbersOf(const Record& record) {
  const ExposureSession& s = record.Now();
  if (s.noEstimates || !(s.GM > 0) || !(s.GSD > 1)) return std::nullopt;
  if (s.CurrentTab == ScreenId::PercEx) return TestNumbers(record);
  if (s.CurrentTab == ScreenId::UCL) return MeanNumbers(record);
  return PopulationNumbers(s);
}

DensityExtent ExtentOf(const PictureNumbers& n) {
  const DensityExtent population{Power(n.GSD, -6), 1.5 * n.GSD, "1.5*GM*GSD"};
  if (n.of == PictureOf::Population) return population;
  const double E = n.upperLimit;
  const double H = n.limit.value_or(0);
  const bool byLimit = 0.5 * E < H && H <= 2 * E;
  const double ratio = Divide(byLimit ? H : E, n.GM);
  const bool test = n.of == PictureOf::Test;
  // Not checked: a power beyond the numbers is no place to start from, like one behind the end.
  DensityExtent extent{std::pow(ratio, -6), Checked(2 * ratio), test ? "2 * UTL" : "2 * UCL"};
  if (byLimit) extent.endText = "2 * Limit H";
  const bool usable = extent.xStart > 0 && extent.xStart < extent.xEnd;
  // The peak lies left of every limit that is near to GM.
  if (!usable || extent.xStart > population.xStart) extent.xStart = population.xStart;
  return extent;
}

bool Drawable(const PictureNumbers& n) {
  try {
    const DensityData data = DensityOf(n, {});
    drawing::DrawingRecord trial(11400, 8100);
    DrawDensity(trial, data);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

DensityData DensityOf(const PictureNumbers& n, const base::DateTime& time) {
  constexpr int kProduct = 17;
  constexpr int kOf = 1702;
  constexpr int kTestHeadline = 2510;
  constexpr int kHeadline = 5101;
  const DensityExtent extent = ExtentOf(n);
  DensityData data;
  data.GSD = n.GSD;
  data.xStart = extent.xStart;
  data.xEnd = extent.xEnd;
  AddMarks(data, n);
  data.endText = extent.endText;
  data.endValue = WithUnit(n, Checked(n.GM * extent.xEnd));
  data.header = GlobalBAS::Trim(LoadResString(kProduct)) + "\rdate: " + DateText(time) +
                "\rtime : " + TimeText(time);
  data.headline = LoadResString(n.of == PictureOf::Test ? kTestHeadline : kHeadline) + "\r" +
                  LoadResString(kOf) + GlobalBAS::Trim(n.Name);
  data.explanation = n.explanation;
  return data;
}

}  // namespace PlotWBas
