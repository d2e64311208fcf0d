#include "session/record.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/fault.h"
#include "session/derivation.h"

namespace {

void GiveSeries(Given& given, std::vector<double> outcomes) {
  given.Mode = DataMode::Raw;
  given.Name = "series.vkr";
  given.M = static_cast<double>(outcomes.size());
  given.C.assign(1, 0.0);
  given.C.insert(given.C.end(), outcomes.begin(), outcomes.end());
}

class TheRecord : public testing::Test {
 protected:
  void Series(const std::vector<double>& outcomes) {
    record.Change([&](Given& given) { GiveSeries(given, outcomes); });
  }
  void Known(double GM, double GSD) {
    record.Change([&](Given& given) {
      given.Mode = DataMode::Statistics;
      given.Name = "Welders";
      given.M = 10;
      given.TypedGM = GM;
      given.TypedGSD = GSD;
      given.OELV = 1;
      given.U = 95;
      given.D = 70;
    });
  }
  void RangeOn(double LOQ) {
    record.Change([&](Given& given) {
      given.DetecOn = true;
      ControleOndergrens(given, LOQ);
      given.inForce = Estimates::RangeDegrees;
    });
  }
  static TestResult Leidel() {
    TestResult result;
    result.test = Extrapolation::Leidel;
    result.PercEx.value = 4;
    result.UTL.value = 0.9;
    return result;
  }

  Record record;
  const ExposureSession& s = record.Now();
};

TEST_F(TheRecord, DerivesAllThatFollowsFromASeriesAtOnce) {
  Series({8, 1, 4, 2});
  EXPECT_EQ(s.C, (std::vector<double>{3, 1, 2, 4, 8}));
  EXPECT_DOUBLE_EQ(s.GM, std::sqrt(8.0));
  EXPECT_EQ(s.df, 3);
  EXPECT_EQ(s.LastInRange, 4);
  EXPECT_EQ(s.NInRange, 4);
  EXPECT_DOUBLE_EQ(s.URR, 8.4);
  EXPECT_EQ(s.SigDigits, 1);
  EXPECT_TRUE(s.IdentOk && s.DescOk);
}

// Two roads to the same outcomes.
TEST_F(TheRecord, TheSameGivenHasTheSameConsequences) {
  Series({8, 1, 4, 2});
  const ExposureSession first = s;
  Series({3, 3, 9});
  Series({2, 4, 1, 8});
  EXPECT_EQ(static_cast<const Given&>(s), static_cast<const Given&>(first));
  EXPECT_EQ(s.GSD, first.GSD);
  EXPECT_EQ(s.LnC, first.LnC);
}

TEST_F(TheRecord, AFaultInAChangeChangesNothing) {
  Series({1, 2, 4});
  const ExposureSession before = s;
  const double beyond = std::numeric_limits<double>::infinity();
  EXPECT_THROW(record.Change([&](Given& given) { given.C[2] = beyond; }), RunTimeError);
  EXPECT_EQ(static_cast<const Given&>(s), static_cast<const Given&>(before));
  EXPECT_EQ(s.GM, before.GM);
  EXPECT_EQ(s.LnC, before.LnC);
}

TEST_F(TheRecord, ASmallerSampleSizeKeepsTheOutcomesBeyondIt) {
  Series({1, 2, 3, 4});
  record.Change([](Given& given) { given.M = 3; });
  EXPECT_DOUBLE_EQ(s.GM, std::cbrt(6.0));
  EXPECT_EQ(s.LastInRange, 3);
  EXPECT_EQ(s.C.size(), 5u);
  record.Change([](Given& given) { given.M = 4; });
  EXPECT_EQ(s.C[4], 4);
  EXPECT_EQ(s.LastInRange, 4);
}

TEST_F(TheRecord, OutcomesWithoutSpreadGiveNoEstimates) {
  Series({2, 2, 2});
  EXPECT_TRUE(s.noEstimates);
  EXPECT_EQ(s.spread, Spread::None);
  EXPECT_FALSE(s.DescOk);
  record.AcceptSeries();
  EXPECT_FALSE(s.DescOk) << "no screen can accept them";
}

TEST_F(TheRecord, AnIncompleteSeriesHasNoStatisticsOfTheOneBefore) {
  Series({1, 2, 4});
  record.Change([](Given& given) { given.C[2] = 0; });
  EXPECT_TRUE(s.RawIncomplete);
  EXPECT_EQ(s.GM, 0);
  EXPECT_EQ(s.GSD, 0);
  EXPECT_FALSE(s.DescOk);
}

TEST_F(TheRecord, TheDeviationHasTheDegreesOfFreedomOfTheRangeAsItsDivisor) {
  Series({1, 2, 3, 4, 5, 6, 7, 8, 9});
  const double squares = 8 * std::log(s.GSD) * std::log(s.GSD);
  RangeOn(3.5);
  EXPECT_EQ(s.FirstInRange, 4);
  EXPECT_EQ(s.df, 6);
  EXPECT_NEAR(s.GSD, std::exp(std::sqrt(squares / 6)), 1e-13);
}

TEST_F(TheRecord, ASeriesThatChangesUnderARangeHasItsLimitsCheckedAnew) {
  Series({1, 2, 3, 4, 5, 6, 7, 8, 9});
  RangeOn(6.5);
  EXPECT_EQ(s.FirstInRange, 7);
  const LimitComplaint complaint = record.Change([](Given& given) { given.M = 7; });
  EXPECT_NE(complaint.MsgText, "");
  EXPECT_EQ(s.LOQ, 4) << "the limit that leaves three";
}

TEST_F(TheRecord, ALimitThatNobodyStatedFollowsTheSeries) {
  Series({1, 2, 3, 4, 5, 6, 7, 8, 9});
  RangeOn(3.5);
  const LimitComplaint complaint = record.Change([](Given& given) { given.C[9] = 20; });
  EXPECT_EQ(complaint.MsgText, "");
  EXPECT_DOUBLE_EQ(s.URR, 21);
  EXPECT_EQ(s.LOQ, 3.5);
  EXPECT_EQ(s.FirstInRange, 4);
}

TEST_F(TheRecord, AStatedLimitOutlivesARowThatIsNotFilled) {
  Series({1, 2, 3, 4, 5, 6, 7, 8, 9});
  RangeOn(0.97);
  record.Change([](Given& given) { given.C[5] = 0; });
  record.Change([](Given& given) { given.C[5] = 5; });
  EXPECT_EQ(s.LOQ, 0.97) << "below the lowest outcome, and not the default";
  EXPECT_DOUBLE_EQ(s.URR, 9.45);
  record.Change([](Given& given) { given.C[9] = 10; });
  EXPECT_DOUBLE_EQ(s.URR, 10.5) << "nobody stated it";
}

TEST_F(TheRecord, AStatedLimitThatMeetsTheDefaultStaysStated) {
  Series({1, 2, 3, 4});
  RangeOn(0.95 * 1.02);
  record.Change([](Given& given) { given.C[1] = 1.02; });
  EXPECT_EQ(s.LOQ, 0.95 * 1.02);
  record.Change([](Given& given) { given.C[1] = 1; });
  EXPECT_EQ(s.LOQ, 0.95 * 1.02);
}

TEST_F(TheRecord, ARangeThatIsPutAsideTakesItsLimitsAlong) {
  Series({1, 2, 3, 4, 5});
  RangeOn(1.5);
  record.Change([](Given& given) { given.DetecOn = false; });
  record.Change([](Given& given) { given.DetecOn = true; });
  record.Change([](Given& given) { given.C[1] = 2; });
  EXPECT_DOUBLE_EQ(s.LOQ, 0.95 * 2);
}

TEST_F(TheRecord, ALineIsNotThatOfAnotherRangeOrSeries) {
  Series({1, 2, 3, 4, 5, 6, 7, 8, 9});
  RangeOn(3.5);
  const auto fit = [](Given& given) {
    given.regression = {4.4, 2.2};
    given.inForce = Estimates::Regression;
  };
  record.Change(fit);
  EXPECT_TRUE(s.RegressionOn);
  EXPECT_EQ(s.GM, 4.4);
  record.Change([](Given& given) { ControleOndergrens(given, 4.5); });
  EXPECT_FALSE(s.RegressionOn);
  EXPECT_EQ(s.inForce, Estimates::RangeDegrees);
  record.Change(fit);
  record.Change([](Given& given) { given.C[9] = 10; });
  EXPECT_FALSE(s.RegressionOn);
}

TEST_F(TheRecord, ResetBringsBackExactlyWhatModifySetAside) {
  Series({1, 2, 3, 4, 5, 6, 7, 8, 9});
  RangeOn(3.5);
  const ExposureSession before = s;
  record.Change([&](Given& given) {
    given.original = {given.Name,     given.M,          given.TypedGM,
                      given.TypedGSD, given.typedWidth, given.inForce};
    given.M = s.df + 1;
    given.TypedGM = 77;
    given.TypedGSD = 3;
  });
  EXPECT_EQ(s.GM, 77);
  EXPECT_EQ(s.FirstInRange, 4) << "the series is left alone";
  record.Change([](Given& given) {
    const Original original = *given.original;
    given.original.reset();
    given.M = original.M;
    given.TypedGM = original.TypedGM;
    given.TypedGSD = original.TypedGSD;
    given.inForce = original.inForce;
  });
  EXPECT_EQ(static_cast<const Given&>(s), static_cast<const Given&>(before));
  EXPECT_EQ(s.GSD, before.GSD);
  EXPECT_EQ(s.df, before.df);
}

// Each field of the basis, so that none can be forgotten.
TEST_F(TheRecord, ATestsResultIsThereForItsSampleAndItsLimitsOnly) {
  Known(0.3, 2);
  record.Flow().TestTag = Extrapolation::Leidel;
  record.Keep(Leidel());
  ASSERT_NE(record.Test(), nullptr);
  const std::function<void(ExposureSession&)> changes[] = {
      [](ExposureSession& r) { r.M = 11; },
      [](ExposureSession& r) { r.df = 8; },
      [](ExposureSession& r) { r.GM = 0.31; },
      [](ExposureSession& r) { r.GSD = 2.1; },
      [](ExposureSession& r) { r.OELV = 1.1; },
      [](ExposureSession& r) { r.U = 90; },
      [](ExposureSession& r) { r.D = 80; },
      [](ExposureSession& r) { r.NInRange = 3; },
      [](ExposureSession& r) { r.RegressionOn = true; }};
  for (const auto& change : changes) {
    const ExposureSession before = s;
    change(record.Script());
    EXPECT_EQ(record.Test(), nullptr);
    EXPECT_FALSE(record.StandingUTL());
    record.Script() = before;
    EXPECT_NE(record.Test(), nullptr);
    EXPECT_EQ(record.StandingUTL(), 0.9);
  }
}

TEST_F(TheRecord, TheNumbersOfATestGoWithWhatTheyRestOn) {
  Known(0.3, 2);
  record.Flow().TestTag = Extrapolation::Leidel;
  record.Keep(Leidel());
  EXPECT_EQ(s.UTL, 0.9);
  EXPECT_EQ(s.PercEx, 4);
  record.Change([](Given& given) { given.Unit = "ppm"; });
  EXPECT_EQ(s.UTL, 0.9) << "a unit is only told";
  record.Change([](Given& given) { given.OELV = 2; });
  EXPECT_EQ(s.UTL, 0);
  EXPECT_EQ(s.PercEx, 0);
}

TEST_F(TheRecord, AResultIsThatOfTheTestOnShow) {
  Known(0.3, 2);
  record.Flow().TestTag = Extrapolation::Leidel;
  record.Keep(Leidel());
  record.Flow().TestTag = Extrapolation::Wilks;
  EXPECT_EQ(record.Test(), nullptr);
  EXPECT_EQ(record.StandingUTL(), 0.9) << "whichever test found it";
}

TEST_F(TheRecord, AMeansResultIsThatOfItsMethodSampleAndLimits) {
  Known(0.3, 2);
  record.Flow().TestTag = Extrapolation::Jahr;
  record.Keep(MeanResult{Extrapolation::Jahr, -0.5, 3});
  ASSERT_NE(record.Mean(), nullptr);
  record.Flow().TestTag = Extrapolation::Land;
  EXPECT_EQ(record.Mean(), nullptr) << "a number of one method under the other's name";
  record.Flow().TestTag = Extrapolation::Jahr;
  EXPECT_NE(record.Mean(), nullptr);
  record.Change([](Given& given) { given.D = 95; });
  EXPECT_EQ(record.Mean(), nullptr);
  EXPECT_EQ(record.Now().UCL, 0);
}

TEST_F(TheRecord, AComparisonIsThatOfItsReference) {
  Known(0.3, 2);
  record.Change([](Given& given) {
    given.CompareMode = ReferenceKind::Sample;
    given.M2 = 12;
    given.GM2 = 0.5;
    given.GSD2 = 2;
  });
  record.Keep(ComparisonResult{});
  EXPECT_NE(record.Comparison(), nullptr);
  record.Change([](Given& given) { given.GM2 = 0.6; });
  EXPECT_EQ(record.Comparison(), nullptr);
}

TEST_F(TheRecord, CloseLeavesOnlyTheLimitsAndWhatIsTheProgramsOwn) {
  Series({1, 2, 3, 4, 5});
  RangeOn(1.5);
  record.Change([](Given& given) {
    given.OELV = 25;
    given.U = 90;
    given.D = 80;
    given.CompareMode = ReferenceKind::Population;
    given.M2 = given.GM2 = given.GSD2 = 3;
  });
  record.StatusFlags();
  record.Flow().VersionText = "version";
  record.Flow().CR = "\r";
  record.Flow().TestTag = Extrapolation::Leidel;
  record.Numbers().AMu = 7;
  record.Close();
  Given fresh = Record().Now();
  fresh.OELV = 25;
  fresh.U = 90;
  fresh.D = 80;
  EXPECT_EQ(static_cast<const Given&>(s), fresh);
  EXPECT_EQ(s.VersionText + s.CR, "version\r");
  EXPECT_EQ(s.TestTag, Extrapolation::None);
  EXPECT_EQ(s.AMu, 0);
  EXPECT_EQ(s.SigDigits, 0);
  EXPECT_FALSE(s.IdentOk || s.DescOk || s.LimitsOk);
}

TEST_F(TheRecord, ADerivedValueThatAScriptSetsHoldsUntilWhatItFollowsFromChanges) {
  Known(0.3, 2);
  record.Script().GM = 5;
  record.Change([](Given& given) { given.OELV = 2; });
  EXPECT_EQ(s.GM, 5);
  record.Change([](Given& given) { given.TypedGSD = 3; });
  EXPECT_EQ(s.GM, 0.3);
  EXPECT_EQ(s.GSD, 3);
}

// Of 1,000 outcomes with 3 in range all 1,000 squares are divided by 6.
TEST_F(TheRecord, ALineHoldsWhereTheRangesFewDegreesMakeAllOutcomesSpreadTooWidely) {
  std::vector<double> outcomes;
  outcomes.reserve(1000);
  for (int i = 0; i < 1000; ++i) outcomes.push_back(std::pow(1.01, i - 500));
  Series(outcomes);
  record.Change([](Given& given) {
    given.DetecOn = true;
    given.FirstInRange = 499;
    given.LastInRange = 501;
    given.NInRange = 3;
    given.inForce = Estimates::RangeDegrees;
  });
  EXPECT_EQ(s.spread, Spread::TooLarge);
  EXPECT_TRUE(s.noEstimates);
  record.Change([](Given& given) {
    given.regression = RegressionEstimates{1.1, 2.5};
    given.inForce = Estimates::Regression;
  });
  EXPECT_TRUE(s.RegressionOn && s.DescOk);
  EXPECT_EQ(s.GSD, 2.5);
  EXPECT_FALSE(s.noEstimates);
}

// Whichever way the line comes back: by a drawing, or by a step done again.
TEST_F(TheRecord, ALineIsNamedByTheEndsOfItsRange) {
  Series({1, 2, 4, 8, 16});
  record.Flow().RegressionLabel = "Non censored";
  record.Change([](Given& given) {
    given.DetecOn = true;
    given.FirstInRange = 2;
    given.NInRange = 4;
    given.regression = RegressionEstimates{3, 2.5};
    given.inForce = Estimates::Regression;
  });
  EXPECT_EQ(s.RegressionLabel, "Single censored");
}

TEST_F(TheRecord, AFileThatWasRefusedIsNoSeries) {
  record.Change([](Given& given) {
    given.Mode = DataMode::Raw;
    given.Name = "refused.vkr";
    given.M = 3;
    given.refusedFile = true;
  });
  EXPECT_FALSE(s.IdentOk || s.DescOk || s.RawIncomplete);
  record.StatusFlags();
  EXPECT_FALSE(s.IdentOk);
}

// The refused one has a size and no outcomes to compare with; the address checks see a read of
// them.
TEST_F(TheRecord, ASeriesOfTheSizeOfARefusedFileIsAnotherSeries) {
  record.Change([](Given& given) {
    given.Mode = DataMode::Raw;
    given.Name = "refused.vkr";
    given.M = 4;
    given.refusedFile = true;
  });
  record.Change([](Given& given) {
    given = Given{};
    GiveSeries(given, {8, 1, 4, 2});
  });
  EXPECT_EQ(s.C, (std::vector<double>{3, 1, 2, 4, 8}));
  EXPECT_TRUE(s.IdentOk && s.DescOk);
}

}  // namespace
