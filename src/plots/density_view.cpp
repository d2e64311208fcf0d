#include "plots/density_view.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "session/global_bas.h"

namespace PlotWBas {
namespace {

constexpr drawing::Colour kPopulation{70, 70, 70};
constexpr drawing::Colour kUpperLimit{128, 64, 0};
constexpr drawing::Colour kLimitValue{192, 0, 0};
constexpr drawing::Colour kArithmetic{0, 110, 0};

constexpr char kLineEnd[] = "\r";

bool OfTest(PictureOf of) {
  return of == PictureOf::Leidel || of == PictureOf::Wilks || of == PictureOf::En689;
}

bool OfMean(PictureOf of) { return of == PictureOf::MeanExact || of == PictureOf::MeanApproximate; }

std::string Percent(double value, const char* sign) {
  return GlobalBAS::FormatNumber(value, "##.0#") + sign;
}

std::string Shown(const PictureNumbers& n, double value) {
  return GlobalBAS::FormatNumber(value, GlobalBAS::FormatMask(value, n.SigDigits));
}

std::string ShownTrimmed(const PictureNumbers& n, double value) {
  return GlobalBAS::Trim(Shown(n, value));
}

std::string WithUnit(const PictureNumbers& n, const std::string& value) {
  return value + (n.Unit.empty() ? "" : " " + n.Unit);
}

std::string WithUnit(const PictureNumbers& n, double value) { return WithUnit(n, Shown(n, value)); }

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

void AddLimit(DensityData& data, const PictureNumbers& n, const char* exceedance) {
  if (!n.limit) return;
  std::string text = "H=" + WithUnit(n, *n.limit);
  if (n.exceeded) text += kLineEnd + (exceedance + Percent(*n.exceeded, " %"));
  data.marks.push_back({"VkrValLbl", text, Divide(*n.limit, n.GM), kLimitValue});
}

void AddTestMarks(DensityData& data, const PictureNumbers& n) {
  data.marks.push_back({"UTLLbl",
                        "UTL " + Percent(n.U, " %") + kLineEnd + WithUnit(n, n.upperLimit),
                        Divide(n.upperLimit, n.GM), kUpperLimit});
  AddLimit(data, n, "A(C>H)=");
}

void AddMeanMarks(DensityData& data, const PictureNumbers& n) {
  data.marks.push_back({"AMuLbl", std::string("AMu") + kLineEnd + WithUnit(n, n.AMu),
                        Divide(n.AMu, n.GM), kArithmetic});
  data.marks.push_back({"UCLLbl", "UCL " + Percent(n.D, "%") + kLineEnd + WithUnit(n, n.upperLimit),
                        Divide(n.upperLimit, n.GM), kUpperLimit});
  AddLimit(data, n, "A(AM>H)=");
}

void AddMarks(DensityData& data, const PictureNumbers& n) {
  data.marks.push_back({"GMLbl", "GM=" + WithUnit(n, n.GM) + kLineEnd + "50%", 1, kPopulation});
  data.marks.push_back(
      {"GSDPercLbl", "GSD=" + Shown(n, n.GSD) + kLineEnd + "GM*GSD 84.13%", n.GSD, kPopulation});
  if (OfTest(n.of)) AddTestMarks(data, n);
  if (OfMean(n.of)) AddMeanMarks(data, n);
}

// The words of the test or of the mean about its limit.
std::string Explanation(const PictureNumbers& n) {
  const std::string U = ShownTrimmed(n, n.U);
  switch (n.of) {
    case PictureOf::Population:
      return {};
    case PictureOf::Leidel:
      return LoadResString(2501) + kLineEnd + Filled(LoadResString(2503), U);
    case PictureOf::Wilks:
      return LoadResString(2601) + kLineEnd + LoadResString(2603) + U + LoadResString(2604);
    case PictureOf::En689:
      return SingleAmpersands(LoadResString(2701)) + kLineEnd + LoadResString(2704) + U +
             LoadResString(2705) + LoadResString(2706) + ShownTrimmed(n, n.D) +
             LoadResString(2707) + " " + WithUnit(n, ShownTrimmed(n, n.upperLimit));
    case PictureOf::MeanExact:
      return LoadResString(2431);
    case PictureOf::MeanApproximate:
      return LoadResString(2430);
  }
  return {};
}

PictureOf CallerOf(const ExposureSession& s) {
  constexpr int kTests = 90;
  constexpr int kMean = 92;
  if (s.CurrentTab == LoadResString(kTests))
    return s.TestTag == "Wi"   ? PictureOf::Wilks
           : s.TestTag == "Tu" ? PictureOf::En689
                               : PictureOf::Leidel;
  if (s.CurrentTab == LoadResString(kMean))
    return s.TestTag == "Ex" ? PictureOf::MeanExact : PictureOf::MeanApproximate;
  return PictureOf::Population;
}

}  // namespace

PictureNumbers NumbersOf(const ExposureSession& s) {
  PictureNumbers n;
  n.of = CallerOf(s);
  n.Name = GlobalBAS::Trim(s.Name);
  n.Unit = s.Unit;
  n.SigDigits = s.SigDigits;
  n.GM = s.GM;
  n.GSD = s.GSD;
  if (n.of == PictureOf::Population) return n;
  n.AMu = s.AMu;
  n.U = s.U;
  n.D = s.D;
  n.upperLimit = OfMean(n.of) ? Exp(s.UCL) : s.UTL;
  n.limit = s.OELV;
  n.exceeded = s.PercEx;
  return n;
}

DensityExtent ExtentOf(const PictureNumbers& n) {
  const DensityExtent population{Power(n.GSD, -6), 1.5 * n.GSD, "1.5*GM*GSD"};
  if (n.of == PictureOf::Population) return population;
  const double E = n.upperLimit;
  const double H = n.limit.value_or(0);
  const bool byLimit = 0.5 * E < H && H <= 2 * E;
  const double ratio = Divide(byLimit ? H : E, n.GM);
  DensityExtent extent = population;
  extent.xEnd = 2 * ratio;
  extent.endText = byLimit ? "2 * Limit H" : OfTest(n.of) ? "2 * UTL" : "2 * UCL";
  // Never behind the left tail, which would leave the peak out. Not checked: a power beyond the
  // numbers is no place to start from.
  if (const double start = std::pow(ratio, -6); start > 0)
    extent.xStart = std::min(start, population.xStart);
  return extent;
}

const char* DensityWindow(PictureOf of) {
  switch (of) {
    case PictureOf::Population:
      return "20d";
    case PictureOf::Leidel:
      return "25";
    case PictureOf::Wilks:
      return "26";
    case PictureOf::En689:
      return "27";
    case PictureOf::MeanExact:
      return "24a";
    case PictureOf::MeanApproximate:
      return "24b";
  }
  return "";
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
  data.endValue = WithUnit(n, n.GM * extent.xEnd);
  data.header = GlobalBAS::Trim(LoadResString(kProduct)) + kLineEnd +
                "date: " + base::DateText(time) + kLineEnd + "time : " + base::TimeText(time);
  data.headline = LoadResString(OfTest(n.of) ? kTestHeadline : kHeadline) + kLineEnd +
                  LoadResString(kOf) + n.Name;
  data.explanation = Explanation(n);
  return data;
}

}  // namespace PlotWBas
