#include "analysis/shapiro.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "analysis/rankits.h"
#include "base/fault.h"
#include "stats/coefficients.h"
#include "stats/normal.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"

namespace {

using analysis::FillShapiroWeights;
using analysis::ShapiroResult;
using analysis::ShapiroText;
using analysis::ShapiroWeights;
using analysis::ShapiroWilk;

class ShapirosTest : public table::Delivered {};

ShapiroResult OfPowers(int M, int first, int last) {
  ShapiroWeights weights;
  return ShapiroWilk(fit_data::OpenedPowers(M).C, M, first, last, weights);
}

TEST_F(ShapirosTest, OfFiveHasOneWeightByThePolynomialAndOfSixTwo) {
  const auto m = [](int M, int i) {
    return -StatFWinBAS::NormalUpperInverse((i - 0.375) / (M + 0.25));
  };
  ShapiroWeights weights;
  FillShapiroWeights(5, weights);
  const auto five = weights.ShapiroCoeffs;
  FillShapiroWeights(6, weights);
  const auto six = weights.ShapiroCoeffs;
  const auto byPolynomial = [&](int M, int i) {
    double S2 = 0;
    for (int k = 1; k <= M / 2; ++k) S2 += 2 * m(M, k) * m(M, k);
    return StatFWinBAS::RoystonPoly(1 / std::sqrt(M), 5, i) - m(M, i) / std::sqrt(S2);
  };
  EXPECT_NEAR(five[1], byPolynomial(5, 1), 1e-14);
  EXPECT_GT(std::abs(five[2] - byPolynomial(5, 2)), 1e-4);
  EXPECT_NEAR(six[1], byPolynomial(6, 1), 1e-14);
  EXPECT_NEAR(six[2], byPolynomial(6, 2), 1e-14);
}

// The weights of every sample are those of a unit vector.
TEST_F(ShapirosTest, HasWeightsOfUnitLengthAtEverySampleSize) {
  ShapiroWeights weights;
  for (int M = 3; M <= 2000; ++M) {
    FillShapiroWeights(M, weights);
    double squares = 0;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(M / 2); ++i)
      squares += 2 * weights.ShapiroCoeffs[i] * weights.ShapiroCoeffs[i];
    ASSERT_NEAR(squares, 1, 1e-12) << M;
  }
}

TEST_F(ShapirosTest, OfThreeHasANegativeProbability) {
  const auto result = OfPowers(3, 1, 3);
  EXPECT_TRUE(result.tested);
  EXPECT_LT(result.PW, 0);
  ExposureSession s = fit_data::OpenedPowers(3);
  EXPECT_NE(ShapiroText(s, {0.97, -0.5, 0, true}).find("W=0.9700\rA(W)=-50%\r"), std::string::npos);
  EXPECT_NE(ShapiroText(s, {0.99995, -0.5, 0, true}).find("W=1.00\rA(W)=100%\r"),
            std::string::npos);
}

TEST_F(ShapirosTest, OfThreeInOneLineIsAPerfectFit) {
  ShapiroWeights weights;
  const auto result = ShapiroWilk({0, 1, 2, 3}, 3, 1, 3, weights);
  EXPECT_TRUE(result.tested);
  EXPECT_NEAR(result.W, 1, 1e-15);
  EXPECT_LE(result.W, 1);
}

TEST_F(ShapirosTest, WithOneOfNineteenCensoredIsNotPossible) {
  const auto result = OfPowers(19, 2, 19);
  EXPECT_EQ(result.fault, 4);
  EXPECT_FALSE(result.tested);
  EXPECT_EQ(result.W, 0);
  EXPECT_EQ(result.PW, 1);
  EXPECT_EQ(OfPowers(19, 1, 19).fault, 0);
}

TEST_F(ShapirosTest, WithOneOfTwentyCensoredTakesTheCorrection) {
  const auto censored = OfPowers(20, 2, 20);
  EXPECT_TRUE(censored.tested);
  EXPECT_EQ(censored.fault, 0);
  const double W1 = 1 - censored.W;
  const double XX = std::log(20.0);
  const double m = StatFWinBAS::RoystonPoly(XX, 3, 5);
  const double sd = std::exp(StatFWinBAS::RoystonPoly(XX, 2, 6));
  const double uncorrected = StatFWinBAS::NormalUpperHill((std::log(W1) - m) / sd);
  EXPECT_GT(std::abs(uncorrected - censored.PW), 1e-3);
}

TEST_F(ShapirosTest, WithFourFifthsCensoredIsDoneAndWithMoreNotPossible) {
  EXPECT_TRUE(OfPowers(50, 1, 10).tested) << "40 of 50 outside";
  EXPECT_EQ(OfPowers(50, 1, 9).fault, 5) << "41 of 50 outside";
  const auto most = OfPowers(50, 1, 5);
  EXPECT_EQ(most.fault, 5) << "45 of 50 outside";
  ExposureSession s = fit_data::OpenedPowers(50);
  EXPECT_TRUE(ShapiroText(s, most).ends_with("\rnot possible\r"));
}

TEST_F(ShapirosTest, WithFewerThanThreeInRangeIsNotPossible) {
  for (const auto& result : {OfPowers(50, 7, 8), OfPowers(50, 7, 7), OfPowers(50, 8, 7)}) {
    EXPECT_FALSE(result.tested);
    EXPECT_EQ(result.fault, 0);
    EXPECT_TRUE(ShapiroText(fit_data::OpenedPowers(50), result).ends_with("\rnot possible\r"));
  }
}

TEST_F(ShapirosTest, KeepsItsWeightsUntilTheSampleSizeChanges) {
  const auto twelve = fit_data::OpenedPowers(12);
  ShapiroWeights weights;
  const double W = ShapiroWilk(twelve.C, 12, 1, 12, weights).W;
  weights.ShapiroCoeffs[1] *= 1.1;
  EXPECT_NE(ShapiroWilk(twelve.C, 12, 1, 12, weights).W, W) << "computed anew at the same M";
  ShapiroWilk(fit_data::OpenedPowers(13).C, 13, 1, 13, weights);
  EXPECT_EQ(weights.ShapiroN, 13);
  EXPECT_EQ(weights.ShapiroCoeffs.size(), 7u);
  EXPECT_EQ(ShapiroWilk(twelve.C, 12, 1, 12, weights).W, W) << "not computed anew";
}

// Of eleven the probability goes by the third-order form in M, of twelve by that in ln M.
TEST_F(ShapirosTest, OfElevenAndOfTwelveTakesItsTwoForms) {
  const auto eleven = OfPowers(11, 1, 11);
  const auto twelve = OfPowers(12, 1, 12);
  const auto poly = [](double x, int degree, int column) {
    return StatFWinBAS::RoystonPoly(x, degree, column);
  };
  const double Y = -std::log(poly(11, 1, 10) - std::log(1 - eleven.W));
  EXPECT_NEAR(eleven.PW,
              StatFWinBAS::NormalUpperHill((Y - poly(11, 3, 3)) / std::exp(poly(11, 3, 4))), 1e-12);
  const double XX = std::log(12.0);
  EXPECT_NEAR(twelve.PW,
              StatFWinBAS::NormalUpperHill((std::log(1 - twelve.W) - poly(XX, 3, 5)) /
                                           std::exp(poly(XX, 2, 6))),
              1e-12);
  EXPECT_NEAR(eleven.PW, twelve.PW, 0.05);
}

// ln(1 - W) would have to reach gamma = 0.459 M - 2.273 for the probability to be 0. The worst fit
// of four, three equal values and one apart, does not: W is never below 4 a(1)^2 / 3.
TEST_F(ShapirosTest, OfTheWorstFitOfAFewStillHasAProbabilityAbove0) {
  for (int M = 4; M <= 11; ++M) {
    std::vector<double> values(static_cast<std::size_t>(M) + 1, 1.0);
    values.back() = 100;
    ShapiroWeights weights;
    const auto result = ShapiroWilk(values, M, 1, M, weights);
    const double a1 = weights.ShapiroCoeffs[1];
    EXPECT_NEAR(result.W, M * a1 * a1 / (M - 1), 1e-14) << M;
    EXPECT_LT(std::log(1 - result.W), StatFWinBAS::RoystonPoly(M, 1, 10)) << M;
    EXPECT_GT(result.PW, 0) << M;
    EXPECT_LT(result.PW, 0.01) << M;
  }
}

TEST_F(ShapirosTest, OfEqualValuesIsADivisionByZero) {
  ShapiroWeights weights;
  try {
    ShapiroWilk(std::vector<double>(11, 2.5), 10, 1, 10, weights);
    FAIL() << "no fault";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Kind(), FaultKind::DivisionByZero);
  }
}

TEST_F(ShapirosTest, OfARangeOutsideTheSeriesIsASubscriptFault) {
  ShapiroWeights weights;
  EXPECT_THROW(ShapiroWilk(fit_data::OpenedPowers(20).C, 30, 1, 30, weights), RunTimeError);
  EXPECT_THROW(ShapiroWilk(fit_data::OpenedPowers(20).C, 20, 0, 12, weights), RunTimeError);
  EXPECT_EQ(ShapiroWilk(fit_data::OpenedPowers(20).C, 10, 1, 12, weights).fault, 4)
      << "more in range than there are";
}

TEST_F(ShapirosTest, AlwaysShowsFourDecimalsOfW) {
  ExposureSession s = fit_data::OpenedPowers(20);
  const auto shown = [&](double W) {
    const std::string text = ShapiroText(s, {W, 0.5, 0, true});
    const std::size_t at = text.find("W=");
    return text.substr(at, text.find('\r', at) - at);
  };
  EXPECT_EQ(shown(0.5), "W=0.5000");
  EXPECT_EQ(shown(0.95), "W=0.9500");
  EXPECT_EQ(shown(0.98769999), "W=0.9876") << "cut off, not rounded";
  EXPECT_EQ(shown(0.9999), "W=0.9999");
  EXPECT_EQ(shown(std::nextafter(0.9999, 1.0)), "W=1.00");
  EXPECT_EQ(shown(0.012213085961185199), "W=0.0122");
  EXPECT_EQ(shown(0.0083095941660525918), "W=0.0083");
  EXPECT_EQ(shown(0.00012), "W=0.0001");
  EXPECT_EQ(shown(0.000012), "W=0.0000");
  EXPECT_EQ(shown(0.0), "W=0.0000");
  EXPECT_EQ(shown(-1e-17), "W=0.0000");
  EXPECT_EQ(shown(1.0), "W=1.00");
}

// W and its probability stay where they belong, whatever the sample and the range.
TEST_F(ShapirosTest, StaysWithinItsRangeForRandomSamplesOfEverySize) {
  std::mt19937 random(94);
  std::normal_distribution<double> normal;
  ShapiroWeights weights;
  int tested = 0;
  for (int M = 4; M <= 2000; M += M < 60 ? 1 : 41)
    for (int k = 0; k < 8; ++k) {
      std::vector<double> y(static_cast<std::size_t>(M) + 1);
      for (double& v : y) v = k % 2 == 0 ? normal(random) : std::exp(3 * normal(random));
      std::sort(y.begin() + 1, y.end());
      const int first = k < 4 ? 1 : 1 + M / 3;
      const int last = k % 4 < 2 ? M : M - M / 4;
      const auto result = ShapiroWilk(y, M, first, last, weights);
      ASSERT_TRUE(result.W >= 0 && result.W <= 1) << M << " " << result.W;
      ASSERT_TRUE(result.PW >= 0 && result.PW <= 1) << M << " " << result.PW;
      tested += result.tested ? 1 : 0;
    }
  EXPECT_GT(tested, 500);
}

// A sample in the form of the weights themselves leaves nothing of 1 - W but rounding.
TEST_F(ShapirosTest, OfAPerfectFitIsAtMost1AndSureAtEverySampleSize) {
  int atOne = 0;
  for (int M = 4; M <= 300; ++M) {
    ShapiroWeights weights;
    FillShapiroWeights(M, weights);
    std::vector<double> values = {0};
    for (int i = 1; i <= M; ++i) values.push_back(analysis::Score(weights.ShapiroCoeffs, M, i));
    const auto result = ShapiroWilk(values, M, 1, M, weights);
    ASSERT_LE(result.W, 1) << M;
    ASSERT_NEAR(result.W, 1, 1e-14) << M;
    ASSERT_GT(result.PW, 0.99) << M;
    atOne += result.W == 1 ? 1 : 0;
  }
  EXPECT_GT(atOne, 0);
}

// A shift and a stretch of the scale change nothing.
TEST_F(ShapirosTest, DependsOnTheFormOfTheSampleOnly) {
  const auto values = fit_data::OpenedPowers(40).C;
  auto moved = values;
  for (double& v : moved) v = 3.5 * v - 20;
  ShapiroWeights weights;
  const auto before = ShapiroWilk(values, 40, 3, 38, weights);
  const auto after = ShapiroWilk(moved, 40, 3, 38, weights);
  EXPECT_NEAR(after.W, before.W, 1e-14);
  EXPECT_NEAR(after.PW, before.PW, 1e-12);
}

}  // namespace
