#include "compare/inference_on_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <utility>

#include "base/fault.h"
#include "stats/student.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/letters.h"

// The comparison with a reference sample or population: its figures, its question, its paths.
namespace {

using compare::Answer;
using compare::InferenceResult;
using support::Row;

class Comparison : public table::Delivered {
 protected:
  // Statistics of the current data and of the reference.
  void Given(double M, double GM, double GSD, double M2, double GM2, double GSD2) {
    s.M = M;
    s.df = M - 1;
    s.GM = GM;
    s.GSD = GSD;
    s.M2 = M2;
    s.GM2 = GM2;
    s.GSD2 = GSD2;
  }
  void GivenRow(const Row& row) {
    s.CompareMode = support::KindOf(row.Text("mode"));
    Given(row.Number("M"), row.Number("GM"), row.Number("GSD"), row.Number("M2"), row.Number("GM2"),
          row.Number("GSD2"));
    s.df = row.Number("df");
  }

  InferenceResult WithSample(Answer answer) {
    s.CompareMode = ReferenceKind::Sample;
    return compare::Inference(s, [answer](double) { return answer; });
  }
  InferenceResult WithPopulation() {
    s.CompareMode = ReferenceKind::Population;
    return compare::Inference(s, [](double) -> Answer {
      ADD_FAILURE() << "a population needs no question";
      return Answer::Cancel;
    });
  }

  ExposureSession s;
};

Answer AnswerOf(const Row& row) {
  const std::string& text = row.Text("answer");
  if (text == "Yes") return Answer::Yes;
  return text == "No" ? Answer::No : Answer::Cancel;
}

void ExpectNear(const Row& row, const std::string& column, double result, double tolerance) {
  table::Expect(row, {"mode", "M", "GM", "GSD", "M2", "GM2", "GSD2"}, column, tolerance,
                [&] { return result; });
}

// The percentages of a vanishing tail carry the cancellation of the finite series: those compare
// absolutely, to the last digit of 100.
void ExpectPercent(const Row& row, const std::string& column, double result) {
  EXPECT_NEAR(result, row.Number(column), 1e-9 * row.Number(column) + 1e-12)
      << row.Where() << " " << column << ": GM " << row.Text("GM") << ", GSD " << row.Text("GSD")
      << ", GM2 " << row.Text("GM2") << ", GSD2 " << row.Text("GSD2");
}

void ExpectSampleRow(const Row& row, const InferenceResult& result) {
  EXPECT_EQ(result.location.caption, static_cast<int>(row.Number("SampSizLbl3"))) << row.Where();
  if (row.Number("v_safe") == 1) {
    EXPECT_EQ(result.location.v, row.Number("SampSizTxb3")) << row.Where();
  }
  ExpectNear(row, "GMTxb3", result.both.GM, 1e-13);
  ExpectNear(row, "GSDTxb3", result.both.GSD, 1e-12);
}

TEST_F(Comparison, EveryRowOfTheTableGetsItsProbabilitiesAndItsCombinedStatistics) {
  for (const Row& row : support::ReadTable("comparison.csv")) {
    GivenRow(row);
    const InferenceResult result = compare::Inference(s, [&](double) { return AnswerOf(row); });
    const bool sample = row.Text("mode") == "S";
    ASSERT_TRUE(result.done) << row.Where();
    ASSERT_EQ(result.combined, sample) << row.Where();
    EXPECT_EQ(s.df2, s.M2 - 1) << row.Where();
    ExpectNear(row, "F_or_chi", result.dispersion.statistic, 1e-13);
    ExpectPercent(row, "GSDInfTxb", result.dispersion.A);
    ExpectNear(row, "t", result.location.t, 1e-12);
    if (!sample || row.Number("v_safe") == 1) ExpectPercent(row, "GMInfTxb", result.location.A);
    if (!sample) continue;
    EXPECT_EQ(s.GSDChoice, support::ChoiceOf(row.Text("GSDChoice"))) << row.Where();
    ExpectSampleRow(row, result);
  }
}

TEST_F(Comparison, EqualDispersionsOfEqualSamplesAreEqualForCertain) {
  Given(10, 0.3, 2, 10, 0.5, 2);
  const InferenceResult result = WithSample(Answer::No);
  EXPECT_EQ(result.dispersion.statistic, 1);
  EXPECT_EQ(result.dispersion.A, 100);
}

TEST_F(Comparison, AnUpperTailOfAHalfIs100PercentFromBothSides) {
  EXPECT_EQ(compare::TwoSidedPercent(0.5), 100);
  EXPECT_NEAR(compare::TwoSidedPercent(std::nextafter(0.5, 0)), 100, 1e-13);
  EXPECT_NEAR(compare::TwoSidedPercent(std::nextafter(0.5, 1)), 100, 1e-13);
  EXPECT_EQ(compare::TwoSidedPercent(0.25), 50);
  EXPECT_EQ(compare::TwoSidedPercent(0.75), 50);
  EXPECT_EQ(compare::TwoSidedPercent(0), 0);
  EXPECT_EQ(compare::TwoSidedPercent(1), 0);
}

TEST_F(Comparison, EqualGeometricMeansAreEqualForCertain) {
  Given(8, 1.7, 2, 12, 1.7, 3);
  for (Answer answer : {Answer::Yes, Answer::No}) {
    const InferenceResult result = WithSample(answer);
    EXPECT_EQ(result.location.t, 0);
    EXPECT_EQ(result.location.A, 100);
  }
  EXPECT_EQ(WithPopulation().location.A, 100);
}

TEST_F(Comparison, CombinedDegreesOfFreedomAreCutNeverRounded) {
  Given(10, 1, 2, 10, 1, 2.1);
  const double a = std::log(2.0) * std::log(2.0) / 10;
  const double b = std::log(2.1) * std::log(2.1) / 10;
  const double real = (a + b) * (a + b) * 9 / (a * a + b * b);
  ASSERT_GT(real, 17.8);
  ASSERT_LT(real, 18);
  const InferenceResult result = WithSample(Answer::Yes);
  EXPECT_EQ(result.location.v, 17);
  EXPECT_EQ(result.location.caption, 3140);
}

TEST_F(Comparison, CancellingTheQuestionGoesByTheProbabilityWithFivePooled) {
  EXPECT_EQ(compare::GSDChoiceFor(Answer::Cancel, 5), VarianceChoice::PooledByProbability);
  EXPECT_EQ(compare::GSDChoiceFor(Answer::Cancel, std::nextafter(5.0, 0)),
            VarianceChoice::SeparateByProbability);
  EXPECT_EQ(compare::GSDChoiceFor(Answer::Cancel, 0), VarianceChoice::SeparateByProbability);
  EXPECT_EQ(compare::GSDChoiceFor(Answer::Cancel, 100), VarianceChoice::PooledByProbability);
}

// The wording of the question says it the other way round.
TEST_F(Comparison, NoPoolsTheVariancesAndYesSeparatesThem) {
  Given(12, 1, 2, 20, 1.4, 3);
  const InferenceResult no = WithSample(Answer::No);
  EXPECT_EQ(s.GSDChoice, VarianceChoice::Pooled);
  EXPECT_EQ(no.location.v, 30);
  EXPECT_EQ(no.location.caption, 3130);
  const InferenceResult yes = WithSample(Answer::Yes);
  EXPECT_EQ(s.GSDChoice, VarianceChoice::Separate);
  EXPECT_LT(yes.location.v, 30);
  EXPECT_EQ(yes.location.caption, 3140);
}

TEST_F(Comparison, TheQuestionIsAskedAtEveryRunWithTheProbabilityAndOverwritesAnEarlierChoice) {
  Given(12, 1, 2, 20, 1.4, 3);
  s.CompareMode = ReferenceKind::Sample;
  s.GSDChoice = VarianceChoice::Separate;
  int asked = 0;
  for (int run = 0; run < 2; ++run) {
    double shown = -1;
    const InferenceResult result = compare::Inference(s, [&](double A) {
      ++asked;
      shown = A;
      return Answer::No;
    });
    EXPECT_EQ(shown, result.dispersion.A);
    EXPECT_EQ(s.GSDChoice, VarianceChoice::Pooled);
  }
  EXPECT_EQ(asked, 2);
}

TEST_F(Comparison, APopulationIsComparedAtOneDegreeOfFreedom) {
  Given(2, 1, 2, 9, 1, 3);
  const InferenceResult result = WithPopulation();
  EXPECT_DOUBLE_EQ(result.dispersion.statistic, std::log(2.0) / std::log(3.0));
  EXPECT_GT(result.dispersion.A, 0);
  EXPECT_EQ(result.location.v, 1);
  EXPECT_FALSE(result.combined);
}

TEST_F(Comparison, APopulationLeavesTheChoiceOnTheVariancesAndTheSizeOfTheReferenceAlone) {
  Given(7, 1, 2, 9, 1.5, 3);
  s.GSDChoice = VarianceChoice::Pooled;
  const InferenceResult with9 = WithPopulation();
  s.M2 = 30000;
  const InferenceResult with30000 = WithPopulation();
  EXPECT_EQ(s.GSDChoice, VarianceChoice::Pooled);
  EXPECT_EQ(with9.location.A, with30000.location.A);
  EXPECT_EQ(with9.dispersion.A, with30000.dispersion.A);
}

TEST_F(Comparison, TheSignOfTheDistanceDoesNotMatter) {
  Given(7, 1.2, 2, 9, 3.1, 2.4);
  const InferenceResult population = WithPopulation();
  const InferenceResult sample = WithSample(Answer::No);
  EXPECT_LT(population.location.t, 0);
  EXPECT_GT(sample.location.t, 0);
  std::swap(s.GM, s.GM2);
  EXPECT_NEAR(WithPopulation().location.A, population.location.A, 1e-11);
  EXPECT_NEAR(WithSample(Answer::No).location.A, sample.location.A, 1e-11);
}

TEST_F(Comparison, WithoutAKindOfReferenceNothingIsCompared) {
  Given(7, 1.2, 2, 9, 3.1, 2.4);
  s.CompareMode = ReferenceKind::None;
  s.GSDChoice = VarianceChoice::PooledByProbability;
  EXPECT_FALSE(compare::Inference(s, {}).done);
  EXPECT_EQ(s.df2, 8) << "is set at the start of every run";
  EXPECT_EQ(s.GSDChoice, VarianceChoice::PooledByProbability);
}

TEST_F(Comparison, WithoutAChoiceTheLocationTestHasNothingToGoBy) {
  Given(7, 1.2, 2, 9, 3.1, 2.4);
  s.GSDChoice = VarianceChoice::None;
  EXPECT_THROW(compare::SampleLocation(s), RunTimeError);
  for (const VarianceChoice choice :
       {VarianceChoice::Pooled, VarianceChoice::Separate, VarianceChoice::PooledByProbability,
        VarianceChoice::SeparateByProbability}) {
    s.GSDChoice = choice;
    EXPECT_NO_THROW(compare::SampleLocation(s));
  }
}

TEST_F(Comparison, TheSecondSampleWeighsOneMoreInTheCombinedDispersion) {
  Given(5, 1, 2, 6, std::exp(3.0), 2);
  const InferenceResult result = WithSample(Answer::No);
  const double L = 3;
  const double x = std::log(2.0) * std::log(2.0);
  const double mean = 6 * L / 11;
  const double Q = 4 * x + 5 * x + L * L * 7 - mean * mean * 11;
  EXPECT_NEAR(result.both.GM, std::exp(mean), 1e-12);
  EXPECT_NEAR(result.both.GSD, std::exp(std::sqrt(Q / 10)), 1e-12);
}

TEST_F(Comparison, AReferenceDispersionOf1IsAFault) {
  Given(7, 1.2, 2, 9, 3.1, 1);
  EXPECT_THROW(WithSample(Answer::No), RunTimeError);
  EXPECT_THROW(WithPopulation(), RunTimeError);
}

void ExpectPercentage(double A, const std::string& where) {
  EXPECT_GE(A, 0) << where;
  EXPECT_LE(A, 100) << where;
}

// A random session over the whole range of each field; the sizes in equal shares of each decade.
void Draw(std::mt19937_64& rng, ExposureSession& s) {
  std::uniform_real_distribution<double> part(0, 1);
  auto between = [&](double low, double high) { return low * std::pow(high / low, part(rng)); };
  s.M = std::floor(between(2, 2000.9));
  s.df = s.M - 1;
  s.M2 = std::floor(between(2, 30000.9));
  s.GM = between(1e-4, 1e4);
  s.GM2 = between(1e-4, 1e4);
  s.GSD = 1 + between(1e-3, 999);
  s.GSD2 = 1 + between(1e-3, 999);
}

std::string Described(const ExposureSession& s) {
  std::string text;
  for (double value : {s.M, s.GM, s.GSD, s.M2, s.GM2, s.GSD2})
    text += testing::PrintToString(value) + " ";
  return text;
}

TEST_F(Comparison, TwentyThousandRandomSessionsEndWithPercentagesAndWithoutAFault) {
  std::mt19937_64 rng(31401);
  for (int i = 0; i < 20000; ++i) {
    Draw(rng, s);
    const std::string where = Described(s);
    for (Answer answer : {Answer::Yes, Answer::No}) {
      InferenceResult result;
      ASSERT_NO_THROW(result = WithSample(answer)) << where;
      ExpectPercentage(result.dispersion.A, where);
      ExpectPercentage(result.location.A, where);
      EXPECT_GE(result.location.v, std::min(s.df, s.df2)) << where;
      EXPECT_LE(result.location.v, s.df + s.df2) << where;
      EXPECT_GT(result.both.GSD, 1) << where;
    }
    InferenceResult population;
    ASSERT_NO_THROW(population = WithPopulation()) << where;
    ExpectPercentage(population.dispersion.A, where);
    ExpectPercentage(population.location.A, where);
  }
}

}  // namespace
