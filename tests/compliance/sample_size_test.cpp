#include "compliance/sample_size.h"
#include "compliance/tests_on_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/letters.h"
#include "tests/support/record.h"

// The optimisation of the sample size: its cases, its boxes, its words.
namespace {

using compliance::SampleSizeBoxes;
using compliance::SampleSizeCase;
using compliance::SampleSizeResult;
using support::Row;

class SampleSize : public table::Delivered {};

ExposureSession Session(double M, double GM, double GSD, double OELV, double U = 95) {
  ExposureSession s = support::SampleRecord(M, GM, GSD, OELV);
  s.TestTag = Extrapolation::Wilks;
  s.CR = "\r";
  s.NInRange = static_cast<std::int16_t>(M);
  s.U = U;
  return s;
}

ExposureSession SessionOf(const Row& row) {
  ExposureSession s = Session(row.Number("M"), row.Number("GM"), row.Number("GSD"),
                              row.Number("OELV"), row.Number("U"));
  s.df = row.Number("df");
  return s;
}

// "3403+CR+3442" as the text that it stands for.
std::string Composed(const std::string& parts, const std::string& cr) {
  std::string text;
  for (std::size_t from = 0; from < parts.size();) {
    const std::size_t to = std::min(parts.find('+', from), parts.size());
    const std::string part = parts.substr(from, to - from);
    text += part == "CR" ? cr : LoadResString(std::stoi(part));
    from = to + 1;
  }
  return text;
}

std::string Caption(const std::optional<int>& row) { return row ? std::to_string(*row) : ""; }

// A box as the table writes it, against what it shows here.
void ExpectBox(const std::string& want, const std::optional<double>& value, bool infinite,
               const std::string& where) {
  if (want.starts_with("text:")) {
    EXPECT_EQ(want, "text:" + std::to_string(compliance::kInfinite)) << where;
    EXPECT_TRUE(infinite && !value) << where;
    return;
  }
  ASSERT_TRUE(value) << where;
  const Row plain({{"value", want.substr(6)}}, where);
  table::Expect(plain, {}, "value", 1e-12, [&] { return *value; });
}

// `columns`: what this table calls the frame's controls.
void ExpectRow(const Row& row, const SampleSizeResult& result, const ExposureSession& s,
               const std::map<std::string, std::string>& columns) {
  const SampleSizeBoxes& boxes = result.boxes;
  auto text = [&](const char* control) { return row.Text(columns.at(control)); };
  const std::string where = row.Where();
  EXPECT_EQ(boxes.ComMinLbl, Composed(text("ComMinLbl"), s.CR)) << where;
  EXPECT_EQ(Caption(boxes.DegrMinLbl), text("DegrMinLbl")) << where;
  EXPECT_EQ(Caption(boxes.PercExLbl3), text("PercExLbl3")) << where;
  EXPECT_EQ(Caption(boxes.SampMinLbl), text("SampMinLbl")) << where;
  ExpectBox(text("DegrMinTxb"), boxes.DegrMinTxb, boxes.infinite, where + " DegrMinTxb");
  ExpectBox(text("PercExTxB3"), boxes.PercExTxB3, false, where + " PercExTxB(3)");
  ExpectBox(text("SampMinTxB"), boxes.SampMinTxB, boxes.infinite, where + " SampMinTxB");
  table::Expect(row, {"U"}, columns.at("PercEx"), 1e-12, [&] { return s.PercEx; });
}

std::string CaseName(const SampleSizeResult& result) {
  if (result.outcome == SampleSizeCase::OneDegree) return "7.1";
  if (result.outcome == SampleSizeCase::AnySize) return "7.4";
  return result.Mopt >= 100 ? "7.3" : "7.2";
}

TEST_F(SampleSize, EveryRowOfTheTableGetsItsCaseItsBoxesAndItsWords) {
  std::map<std::string, std::string> columns;
  for (const char* name : {"ComMinLbl", "DegrMinLbl", "DegrMinTxb", "PercExLbl3", "PercExTxB3",
                           "SampMinLbl", "SampMinTxB", "PercEx"})
    columns[name] = name;
  for (const Row& row : support::ReadTable("sample_size_optimisation.csv")) {
    ASSERT_EQ(row.Text("state"), "ok") << row.Where();
    ExposureSession s = SessionOf(row);
    s.TestTag = support::TagOf(row.Text("TestTag"));
    s.NInRange = static_cast<std::int16_t>(row.Number("NInRange"));
    s.RegressionOn = row.Number("RegressionOn") == 1;
    const SampleSizeResult result = compliance::OptimiseSampleSize(s);
    EXPECT_EQ(CaseName(result), row.Text("case")) << row.Where();
    EXPECT_EQ(s.M, row.Number("M_after")) << row.Where();
    EXPECT_EQ(s.df, row.Number("df_after")) << row.Where();
    EXPECT_EQ(result.outcome == SampleSizeCase::AnySize, row.Text("messages") == "3400|3442");
    ExpectRow(row, result, s, columns);
  }
}

TEST_F(SampleSize, EverySessionOfTheComplianceTableGetsItsBoxes) {
  const std::map<std::string, std::string> columns{
      {"ComMinLbl", "Opt_ComMin"},   {"DegrMinLbl", "Opt_DegrLbl"}, {"DegrMinTxb", "Opt_Degr"},
      {"PercExLbl3", "Opt_PercLbl"}, {"PercExTxB3", "Opt_Perc"},    {"SampMinLbl", "Opt_SampLbl"},
      {"SampMinTxB", "Opt_Samp"},    {"PercEx", "Opt_PercEx"}};
  int looked = 0;
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    if (row.Text("Opt_state") != "ok" || !(row.Number("U") > 50)) continue;
    ExposureSession s = SessionOf(row);
    const SampleSizeResult result = compliance::OptimiseSampleSize(s);
    EXPECT_EQ(CaseName(result), row.Text("Opt_case")) << row.Where();
    EXPECT_EQ(result.Ur, row.Number("Ur")) << row.Where();
    ExpectRow(row, result, s, columns);
    ++looked;
  }
  EXPECT_GT(looked, 20);
}

TEST_F(SampleSize, FarBelowTheLimitOneDegreeOfFreedomIsEnough) {
  ExposureSession s = Session(10, 0.0001, 1.5, 1);
  const SampleSizeResult result = compliance::OptimiseSampleSize(s);
  EXPECT_EQ(result.outcome, SampleSizeCase::OneDegree);
  EXPECT_EQ(result.boxes.DegrMinLbl, 3413);
  EXPECT_EQ(result.Mopt, 2);
  EXPECT_EQ(s.M, 10) << "the size of the sample is put back";
  EXPECT_EQ(s.df, 9);
}

TEST_F(SampleSize, AGeometricMeanAboveTheLimitCompliesForNoSize) {
  for (double GM : {1.0, 3.0}) {
    ExposureSession s = Session(10, GM, 2, 1);
    const SampleSizeResult result = compliance::OptimiseSampleSize(s);
    EXPECT_EQ(result.outcome, SampleSizeCase::AnySize);
    EXPECT_TRUE(result.boxes.infinite);
    EXPECT_FALSE(result.boxes.SampMinLbl) << "its label stays as it stands";
    EXPECT_EQ(s.PercEx, result.boxes.PercExTxB3);
  }
}

// A session whose exceedance at one degree of freedom is 100 - U to the last digit.
ExposureSession AtTheBound() {
  for (double GM = 0.01; GM < 0.02; GM += 0.0001) {
    ExposureSession s = Session(10, GM, 2, 1, 80);
    EXPECT_EQ(compliance::OptimiseSampleSize(s).outcome, SampleSizeCase::OneDegree);
    s.U = 100 - s.PercEx;
    if (compliance::ComplianceRatio(s.PercEx, s.U) == 1) return s;
  }
  throw std::logic_error("no exceedance meets its coverage exactly");
}

TEST_F(SampleSize, AtTheVeryBoundTheSearchRunsAndDegreesRiseInTheFirstPass) {
  ExposureSession s = AtTheBound();
  const double percent = s.PercEx;
  std::vector<SampleSizeBoxes> shown;
  const SampleSizeResult result = compliance::OptimiseSampleSize(
      s, [&](const SampleSizeBoxes& boxes) { shown.push_back(boxes); });
  EXPECT_EQ(result.outcome, SampleSizeCase::Search);
  ASSERT_GE(shown.size(), 2u);
  EXPECT_EQ(shown[1].DegrMinTxb, 2);
  EXPECT_EQ(shown[1].PercExTxB3, percent) << "the probability is that of one degree";
}

TEST_F(SampleSize, TheSearchEndsAt99DegreesOfFreedomAtTheLatest) {
  ExposureSession s = Session(10, 0.315, 2, 1);
  const SampleSizeResult result = compliance::OptimiseSampleSize(s);
  EXPECT_EQ(result.df, 99);
  EXPECT_EQ(result.Mopt, 100);
  EXPECT_LE(result.evaluations, 99);
  EXPECT_EQ(result.boxes.ComMinLbl, LoadResString(3403) + LoadResString(3404) +
                                        LoadResString(3405) + s.CR + s.CR + LoadResString(3443) +
                                        LoadResString(3430));
}

TEST_F(SampleSize, TheBoxesShowTheNextDegreesBesideTheProbabilityOfTheLast) {
  ExposureSession s = Session(10, 0.3, 2, 1);
  std::vector<SampleSizeBoxes> shown;
  compliance::OptimiseSampleSize(s, [&](const SampleSizeBoxes& boxes) { shown.push_back(boxes); });
  ASSERT_EQ(shown.size(), 27u) << "the wording, then df 2 to 27";
  EXPECT_FALSE(shown[0].DegrMinTxb);
  EXPECT_EQ(shown[1].DegrMinTxb, 2);
  EXPECT_EQ(shown[1].SampMinTxB, 3);
  EXPECT_EQ(shown[26].DegrMinTxb, 27);
  EXPECT_GT(*shown[25].PercExTxB3, 5);
  EXPECT_LT(*shown[26].PercExTxB3, 5);
}

TEST_F(SampleSize, OnlyTheWilksTestIsOptimised) {
  for (const char* tag : {"", "Le", "Tu"}) {
    ExposureSession s = Session(10, 0.3, 2, 1);
    s.TestTag = support::TagOf(tag);
    s.PercEx = 12;
    EXPECT_EQ(compliance::OptimiseSampleSize(s).outcome, SampleSizeCase::NotWilks);
    EXPECT_EQ(s.PercEx, 12);
  }
}

TEST_F(SampleSize, ACoverageOfHalfGetsTheMessageOfTheEn689Test) {
  ExposureSession s = Session(10, 0.3, 2, 1, 50);
  s.PercEx = 12;
  EXPECT_EQ(compliance::OptimiseSampleSize(s).outcome, SampleSizeCase::CoverageTooLow);
  EXPECT_EQ(s.MsgText, "Desired population Coverage U% in Tab Limits must be more than 50%");
  EXPECT_EQ(s.PercEx, 12);
  s.U = 20;
  EXPECT_EQ(compliance::OptimiseSampleSize(s).outcome, SampleSizeCase::CoverageTooLow);
}

TEST_F(SampleSize, TheSizeOfTheSampleIsPutBackAlsoAfterAFault) {
  ExposureSession s = Session(20, 0.05, 2, 1);
  s.df = 6;
  s.RegressionOn = true;
  s.NInRange = 0;
  EXPECT_THROW(compliance::OptimiseSampleSize(s), RunTimeError);
  EXPECT_EQ(s.M, 20);
  EXPECT_EQ(s.df, 6);
  s.GM = 1e-9;
  EXPECT_THROW(compliance::OptimiseSampleSize(s), RunTimeError);
  EXPECT_EQ(s.M, 20);
  EXPECT_EQ(s.df, 6);
}

TEST_F(SampleSize, ALowerExposureNeverNeedsALargerSample) {
  double before = 101;
  for (int k = 0; k < 300; ++k) {
    ExposureSession s = Session(10, 0.33 * std::pow(0.98, k), 2, 1);
    const SampleSizeResult result = compliance::OptimiseSampleSize(s);
    if (result.outcome == SampleSizeCase::AnySize) continue;
    ASSERT_LE(result.Mopt, before) << "GM " << s.GM;
    before = result.Mopt;
  }
  EXPECT_EQ(before, 2);
}

}  // namespace
