#include "plots/density_view.h"

#include <gmock/gmock.h>

#include <cmath>

#include "catalog/catalog.h"
#include "stats/estimators.h"
#include "tests/plots/picture_of.h"
#include "tests/support/letters.h"

namespace {

using picture::NumbersOf;
using PlotWBas::DensityData;
using PlotWBas::DensityExtent;
using PlotWBas::DensityMark;
using PlotWBas::DensityOf;
using PlotWBas::ExtentOf;

constexpr int kTests = 90;
constexpr int kMean = 92;

// GM 2, GSD 3, limit 10; UTL 8; ln UCL = ln 6.
ExposureSession CalledFrom(int tab, const char* TestTag = "") {
  ExposureSession s;
  s.CR = "\r";
  s.CurrentTab = picture::ScreenWith(tab);
  const bool none = *TestTag == 0;
  s.TestTag = support::TagOf(none && tab == kTests ? "Le" : none && tab == kMean ? "Ap" : TestTag);
  s.Name = " Welders ";
  s.Unit = "ppm";
  s.M = 12;
  s.df = 11;
  s.SigDigits = 3;
  s.GM = 2;
  s.GSD = 3;
  s.OELV = 10;
  s.U = 95;
  s.D = 70;
  s.UTL = 8;
  s.UCL = std::log(6);
  s.PercEx = 4.256;
  return s;
}

void ExpectExtent(const ExposureSession& s, double xStart, double xEnd, const std::string& text) {
  const DensityExtent extent = ExtentOf(NumbersOf(s));
  EXPECT_NEAR(extent.xStart, xStart, 1e-14 * xStart);
  EXPECT_NEAR(extent.xEnd, xEnd, 1e-14 * xEnd);
  EXPECT_EQ(extent.endText, text);
}

std::vector<std::string> Marks(const DensityData& data) {
  std::vector<std::string> names;
  for (const DensityMark& mark : data.marks) names.push_back(mark.name);
  return names;
}

const DensityMark& MarkOf(const DensityData& data, const std::string& name) {
  for (const DensityMark& mark : data.marks)
    if (mark.name == name) return mark;
  throw std::out_of_range(name);
}

TEST(DensityExtents, OfTheDataScreensEndAtOneAndAHalfGSD) {
  for (const int tab : {82, 84, 86})
    ExpectExtent(CalledFrom(tab), std::pow(3, -6), 4.5, "1.5*GM*GSD");
}

TEST(DensityExtents, OfAnyOtherScreenAreThoseOfTheDataScreens) {
  for (const int tab : {80, 100, 2850})
    ExpectExtent(CalledFrom(tab), std::pow(3, -6), 4.5, "1.5*GM*GSD");
}

TEST(DensityExtents, OfTheTestsEndAtTwiceTheLimitThatIsNearTheUTL) {
  ExpectExtent(CalledFrom(kTests), std::pow(5, -6), 10, "2 * Limit H");
}

TEST(DensityExtents, ALimitOfTwiceTheUTLEndsTheAxisAtTwiceTheLimit) {
  ExposureSession s = CalledFrom(kTests);
  s.OELV = 16;
  ExpectExtent(s, std::pow(8, -6), 16, "2 * Limit H");
  s.OELV = std::nextafter(16, 17);
  ExpectExtent(s, std::pow(4, -6), 8, "2 * UTL");
}

TEST(DensityExtents, ALimitOfHalfTheUTLEndsTheAxisAtTwiceTheUTL) {
  ExposureSession s = CalledFrom(kTests);
  s.OELV = 4;
  ExpectExtent(s, std::pow(4, -6), 8, "2 * UTL");
  s.OELV = std::nextafter(4, 5);
  ExpectExtent(s, std::pow(3, -6), 4, "2 * Limit H");
}

TEST(DensityExtents, OfTheMeanFollowTheUCLThatIsHeldAsALogarithm) {
  ExposureSession s = CalledFrom(kMean, "Ap");
  ExpectExtent(s, std::pow(5, -6), 10, "2 * Limit H");
  s.OELV = 2.9;
  ExpectExtent(s, std::pow(3, -6), 6, "2 * UCL");
  s.OELV = 12.5;
  ExpectExtent(s, std::pow(3, -6), 6, "2 * UCL");
}

TEST(DensityExtents, WithoutALimitTheTestsEndAtTwiceTheUTL) {
  ExposureSession s = CalledFrom(kTests);
  s.OELV.reset();
  ExpectExtent(s, std::pow(4, -6), 8, "2 * UTL");
}

// Near the geometric mean or below it, the sixth power of the ratio lies right of the peak: the
// picture would lack what it is about.
TEST(DensityExtents, ALimitNearTheGeometricMeanLeavesThePeakInThePicture) {
  ExposureSession s = CalledFrom(kMean, "Ap");
  s.GM = 1;
  s.GSD = 2;
  s.UCL = std::log(1.3);
  s.OELV = 1.1;
  ExpectExtent(s, std::pow(2, -6), 2.2, "2 * Limit H");
}

TEST(DensityExtents, AStartBehindTheEndIsThatOfTheDataScreens) {
  ExposureSession s = CalledFrom(kTests);
  s.UTL = 1.5;
  s.OELV = 1;
  ExpectExtent(s, std::pow(3, -6), 1, "2 * Limit H");
}

// So far away that the sixth power is nothing or beyond all numbers.
TEST(DensityExtents, AStartBeyondTheNumbersIsThatOfTheDataScreens) {
  ExposureSession s = CalledFrom(kTests);
  s.UTL = 2E60;
  ExpectExtent(s, std::pow(3, -6), 2E60, "2 * UTL");
  s.UTL = 2E-60;
  ExpectExtent(s, std::pow(3, -6), 2E-60, "2 * UTL");
}

TEST(DensityMarks, FromTheDescriptiveScreenAreGMAndGSDOnly) {
  const DensityData data = DensityOf(NumbersOf(CalledFrom(84)), {});
  EXPECT_THAT(Marks(data), testing::ElementsAre("GMLbl", "GSDPercLbl"));
  EXPECT_EQ(MarkOf(data, "GMLbl").x, 1);
  EXPECT_EQ(MarkOf(data, "GMLbl").text, "GM=     2 ppm\r50%");
  EXPECT_EQ(MarkOf(data, "GSDPercLbl").x, 3);
  EXPECT_EQ(MarkOf(data, "GSDPercLbl").text, "GSD=     3\rGM*GSD 84.13%");
  EXPECT_EQ(data.endText, "1.5*GM*GSD");
  EXPECT_EQ(data.endValue, "     9 ppm");
  EXPECT_EQ(data.headline, "The lognormal probability density distribution\rof Welders");
  EXPECT_EQ(data.explanation, "");
}

TEST(DensityMarks, FromTheTestsAreUTLAndLimitToo) {
  const DensityData data = DensityOf(NumbersOf(CalledFrom(kTests, "Le")), {});
  EXPECT_THAT(Marks(data), testing::ElementsAre("GMLbl", "GSDPercLbl", "UTLLbl", "VkrValLbl"));
  EXPECT_EQ(MarkOf(data, "UTLLbl").x, 4);
  EXPECT_EQ(MarkOf(data, "UTLLbl").text, "UTL 95.0 %\r     8 ppm");
  EXPECT_EQ(MarkOf(data, "VkrValLbl").x, 5);
  EXPECT_EQ(MarkOf(data, "VkrValLbl").text, "H=    10 ppm\rA(C>H)=4.26 %");
}

TEST(DensityMarks, OfEN689SayWhatItsPercentageIs) {
  const DensityData data = DensityOf(NumbersOf(CalledFrom(kTests, "Tu")), {});
  EXPECT_EQ(MarkOf(data, "VkrValLbl").text,
            "H=    10 ppm\rA(C>H)=4.26 %\rconfidence that less than 5% exceeds H");
}

TEST(DensityMarks, FromTheMeanAreItsEstimateItsUCLAndTheLimit) {
  const DensityData data = DensityOf(NumbersOf(CalledFrom(kMean, "Ex")), {});
  EXPECT_THAT(Marks(data),
              testing::ElementsAre("GMLbl", "GSDPercLbl", "AMuLbl", "UCLLbl", "VkrValLbl"));
  EXPECT_EQ(MarkOf(data, "AMuLbl").x, StatFWinBAS::FinneyMeanMVU(11.0, 2.0, 3.0) / 2);
  EXPECT_NEAR(MarkOf(data, "UCLLbl").x, 3, 1e-14);
  EXPECT_EQ(MarkOf(data, "UCLLbl").text, "UCL 70.0%\r     6 ppm");
  EXPECT_EQ(MarkOf(data, "VkrValLbl").text, "H=    10 ppm\rA(AM>H)=4.26 %");
  EXPECT_EQ(data.headline, "The lognormal probability density distribution\rof Welders");
}

TEST(DensityMarks, WithoutAUnitNoneIsShown) {
  ExposureSession s = CalledFrom(84);
  s.Unit.clear();
  const DensityData data = DensityOf(NumbersOf(s), {});
  EXPECT_EQ(MarkOf(data, "GMLbl").text, "GM=     2\r50%");
  EXPECT_EQ(data.endValue, "     9");
}

TEST(DensityHeadlines, OfTheTestsTellTheMethodAndItsLimit) {
  auto words = [](const char* TestTag) {
    const DensityData data = DensityOf(NumbersOf(CalledFrom(kTests, TestTag)), {});
    EXPECT_EQ(data.headline, LoadResString(2510) + "\rof Welders");
    return data.explanation;
  };
  EXPECT_EQ(words("Le"),
            "Maximum likelihood test of Leidel (1977)/IHStat\rThe maximum likelihood estimate of "
            "the 95-percent upper tolerance limit of the exposure distribution");
  EXPECT_EQ(words("Wi"), " Wilks (1941)\rThe 95 % upper tolerance limit");
  EXPECT_EQ(words("Tu"),
            "EN689 (2018) &  BOHS/NVvA (2011) & Code du Travail (2009)\rThe 95%-tile upper "
            "tolerance limit with 70% confidence = 8 ppm");
}

TEST(DensityHeadlines, OfTheMeanTellTheMethod) {
  EXPECT_EQ(DensityOf(NumbersOf(CalledFrom(kMean, "Ex")), {}).explanation, LoadResString(2431));
  EXPECT_EQ(DensityOf(NumbersOf(CalledFrom(kMean, "Ap")), {}).explanation, LoadResString(2430));
}

TEST(DensityHeadlines, TellProgramDateAndTime) {
  EXPECT_EQ(DensityOf(NumbersOf(CalledFrom(84)), {2024, 3, 7, 9, 5, 30}).header,
            "VALKORIN\rdate: 7 Mar 2024\rtime : 09:05:30");
}

TEST(DensityWindowNumber, FollowsTheScreenAndItsTest) {
  EXPECT_EQ(NumbersOf(CalledFrom(82)).window, "20d");
  EXPECT_EQ(NumbersOf(CalledFrom(84)).window, "20d");
  EXPECT_EQ(NumbersOf(CalledFrom(86)).window, "20d");
  EXPECT_EQ(NumbersOf(CalledFrom(kTests, "Le")).window, "25");
  EXPECT_EQ(NumbersOf(CalledFrom(kTests, "Wi")).window, "26");
  EXPECT_EQ(NumbersOf(CalledFrom(kTests, "Tu")).window, "27");
  EXPECT_EQ(NumbersOf(CalledFrom(kMean, "Ex")).window, "24a");
  EXPECT_EQ(NumbersOf(CalledFrom(kMean, "Ap")).window, "24b");
}

}  // namespace
