#include "plots/density_view.h"

#include <cmath>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "session/global_bas.h"

namespace PlotWBas {
namespace {

constexpr int kTests = 90;
constexpr int kMean = 92;

constexpr drawing::Colour kPopulation{70, 70, 70};
constexpr drawing::Colour kUpperLimit{128, 64, 0};
constexpr drawing::Colour kLimitValue{192, 0, 0};
constexpr drawing::Colour kArithmetic{0, 110, 0};

bool CalledFrom(const ExposureSession& s, int tab) { return s.CurrentTab == LoadResString(tab); }

// E: the upper limit that the calling screen has found.
double UpperLimit(const ExposureSession& s) { return CalledFrom(s, kMean) ? Exp(s.UCL) : s.UTL; }

std::string Percent(double value, const char* sign) {
  return GlobalBAS::FormatNumber(value, "##.0#") + sign;
}

std::string WithUnit(const ExposureSession& s, double value) {
  return GlobalBAS::Shown(s, value) + (s.Unit.empty() ? "" : " " + s.Unit);
}

// A text with a number in the place of its two marks.
std::string Filled(std::string text, const std::string& number) {
  if (const std::size_t at = text.find("##"); at != std::string::npos) text.replace(at, 2, number);
  return text;
}

// A caption's double & stands for one.
std::string SingleAmpersands(std::string text) {
  for (std::size_t at = text.find("&&"); at != std::string::npos; at = text.find("&&", at + 1))
    text.erase(at, 1);
  return text;
}

void AddLimitValue(DensityData& data, const ExposureSession& s, const char* exceedance) {
  if (!s.OELV) return;
  data.marks.push_back({"VkrValLbl",
                        "H=" + WithUnit(s, *s.OELV) + s.CR + exceedance + Percent(s.PercEx, " %"),
                        Divide(*s.OELV, s.GM), kLimitValue});
}

void AddTestMarks(DensityData& data, const ExposureSession& s) {
  data.marks.push_back({"UTLLbl", "UTL " + Percent(s.U, " %") + s.CR + WithUnit(s, s.UTL),
                        Divide(s.UTL, s.GM), kUpperLimit});
  AddLimitValue(data, s, "A(C>H)=");
}

void AddMeanMarks(DensityData& data, const ExposureSession& s) {
  data.marks.push_back(
      {"AMuLbl", "AMu" + s.CR + WithUnit(s, s.AMu), Divide(s.AMu, s.GM), kArithmetic});
  const double E = UpperLimit(s);
  data.marks.push_back(
      {"UCLLbl", "UCL " + Percent(s.D, "%") + s.CR + WithUnit(s, E), Divide(E, s.GM), kUpperLimit});
  AddLimitValue(data, s, "A(AM>H)=");
}

void AddMarks(DensityData& data, const ExposureSession& s) {
  data.marks.push_back({"GMLbl", "GM=" + WithUnit(s, s.GM) + s.CR + "50%", 1, kPopulation});
  data.marks.push_back({"GSDPercLbl", "GSD=" + GlobalBAS::Shown(s, s.GSD) + s.CR + "GM*GSD 84.13%",
                        s.GSD, kPopulation});
  if (CalledFrom(s, kTests)) AddTestMarks(data, s);
  if (CalledFrom(s, kMean)) AddMeanMarks(data, s);
}

// The words of the test about its limit.
std::string TestText(const ExposureSession& s) {
  const std::string U = GlobalBAS::ShownTrimmed(s, s.U);
  if (s.TestTag == "Le") return LoadResString(2501) + s.CR + Filled(LoadResString(2503), U);
  if (s.TestTag == "Wi")
    return LoadResString(2601) + s.CR + LoadResString(2603) + U + LoadResString(2604);
  if (s.TestTag == "Tu")
    return SingleAmpersands(LoadResString(2701)) + s.CR + LoadResString(2704) + U +
           LoadResString(2705) + LoadResString(2706) + GlobalBAS::ShownTrimmed(s, s.D) +
           LoadResString(2707) + " " + GlobalBAS::ShownTrimmed(s, s.UTL) +
           (s.Unit.empty() ? "" : " " + s.Unit);
  return {};
}

std::string Explanation(const ExposureSession& s) {
  if (CalledFrom(s, kTests)) return TestText(s);
  if (!CalledFrom(s, kMean)) return {};
  if (s.TestTag == "Ex") return LoadResString(2431);
  return s.TestTag == "Ap" ? LoadResString(2430) : std::string();
}

}  // namespace

DensityExtent ExtentOf(const ExposureSession& s) {
  const DensityExtent population{Power(s.GSD, -6), 1.5 * s.GSD, "1.5*GM*GSD"};
  const bool tests = CalledFrom(s, kTests);
  if (!tests && !CalledFrom(s, kMean)) return population;
  const double E = UpperLimit(s);
  const double H = s.OELV.value_or(0);
  const bool byLimit = 0.5 * E < H && H <= 2 * E;
  const double ratio = Divide(byLimit ? H : E, s.GM);
  // Not checked: a power beyond the numbers is no place to start from, like one behind the end.
  DensityExtent extent{std::pow(ratio, -6), 2 * ratio, tests ? "2 * UTL" : "2 * UCL"};
  if (byLimit) extent.endText = "2 * Limit H";
  if (!(extent.xStart > 0 && extent.xStart < extent.xEnd)) extent.xStart = population.xStart;
  return extent;
}

const char* DensityWindow(const ExposureSession& s) {
  if (CalledFrom(s, kTests)) return s.TestTag == "Wi" ? "26" : s.TestTag == "Tu" ? "27" : "25";
  if (CalledFrom(s, kMean)) return s.TestTag == "Ex" ? "24a" : "24b";
  return "20d";
}

DensityData DensityOf(const ExposureSession& s, const base::DateTime& time) {
  constexpr int kProduct = 17;
  constexpr int kOf = 1702;
  constexpr int kTestHeadline = 2510;
  constexpr int kHeadline = 5101;
  const DensityExtent extent = ExtentOf(s);
  DensityData data;
  data.GSD = s.GSD;
  data.xStart = extent.xStart;
  data.xEnd = extent.xEnd;
  AddMarks(data, s);
  data.endText = extent.endText;
  data.endValue = WithUnit(s, s.GM * extent.xEnd);
  data.header = GlobalBAS::Trim(LoadResString(kProduct)) + s.CR + "date: " + base::DateText(time) +
                s.CR + "time : " + base::TimeText(time);
  data.headline = LoadResString(CalledFrom(s, kTests) ? kTestHeadline : kHeadline) + s.CR +
                  LoadResString(kOf) + GlobalBAS::Trim(s.Name);
  data.explanation = Explanation(s);
  return data;
}

}  // namespace PlotWBas
