#include "analysis/transformations.h"
#include "analysis/regression_on_record.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using analysis::FillCTransf;
using analysis::InverseTransform;
using analysis::TransformValue;
using support::Row;

TEST(Transformations, OfOneValueAreThoseOfTheReferenceTable) {
  for (const Row& row : support::ReadTable("transform_values.csv")) {
    const std::string& name = row.Text("name");
    const double x = row.Number("x");
    table::Expect(row, {"name", "x"}, "TransformValue", 1e-13,
                  [&] { return TransformValue(name, x); });
    table::Expect(row, {"name", "x"}, "InverseTransform", 1e-13,
                  [&] { return InverseTransform(name, x); });
  }
}

TEST(Transformations, OfASeriesAreThoseOfTheReferenceTable) {
  for (const Row& row : support::ReadTable("ctransf.csv")) {
    ExposureSession s = fit_data::Opened(fit_data::SortedSeries().at(row.Text("series")));
    s.LnC[0] = -5;
    ASSERT_TRUE(FillCTransf(s, fit_data::NameOfMenu(row.Text("menu"))));
    const auto i = static_cast<std::size_t>(row.Number("i"));
    table::Expect(row, {"series", "menu", "i"}, "CTransf (element 0 was -5 before)", 1e-14,
                  [&] { return s.LnC.at(i); });
  }
}

TEST(Transformations, AreAcceptedOrRefusedWithTheirReasonAsTheTableSays) {
  for (const Row& row : support::ReadTable("transform_menus.csv")) {
    SCOPED_TRACE(row.Where());
    ExposureSession s = fit_data::Opened(fit_data::SortedSeries().at(row.Text("series")));
    const auto before = s.LnC;
    const bool accepted = FillCTransf(s, fit_data::NameOfMenu(row.Text("menu")));
    EXPECT_EQ(accepted, row.Text("accepted") == "1");
    EXPECT_EQ(s.MsgTitle, row.Text("MsgTitle"));
    EXPECT_EQ(s.MsgText, fit_data::Unescaped(row.Text("MsgText")));
    if (!accepted) {
      EXPECT_EQ(s.LnC, before);
    }
  }
}

TEST(Transformations, StandInTheMenuInTheirOrder) {
  int row = 1901;
  for (const analysis::Transformation& entry : analysis::kTransformations) {
    EXPECT_EQ(entry.menuRow, row++);
    EXPECT_FALSE(LoadResString(entry.menuRow).empty());
  }
  EXPECT_EQ(row, 1908);
}

TEST(Transformations, TakeTheDoubleLogarithmOnlyOfOutcomesAbove1) {
  ExposureSession s = fit_data::Opened({2, 1, 2, 3});
  EXPECT_FALSE(FillCTransf(s, "Lg(Lg(x))")) << "1 itself";
  s.C[1] = std::nextafter(1.0, 2.0);
  EXPECT_TRUE(FillCTransf(s, "Lg(Lg(x))"));
}

TEST(Transformations, TakeTheExponentialOfOutcomesUpTo44) {
  ExposureSession s = fit_data::Opened({2, 1, 2, 44});
  EXPECT_TRUE(FillCTransf(s, "Exp(x)")) << "44 itself";
  s.C[3] = std::nextafter(44.0, 45.0);
  EXPECT_FALSE(FillCTransf(s, "Exp(x)"));
}

// Also the reciprocal, whose order is turned round; the median stays in the middle.
TEST(Transformations, KeepTheOrderOfEverySeries) {
  for (const auto& [name, outcomes] : fit_data::SortedSeries())
    for (const analysis::Transformation& entry : analysis::kTransformations) {
      ExposureSession s = fit_data::Opened(outcomes);
      const auto M = outcomes.size() - 1;
      if (!FillCTransf(s, entry.name)) continue;
      for (std::size_t i = 2; i <= M; ++i)
        ASSERT_LE(s.LnC[i - 1], s.LnC[i]) << name << " " << entry.name << " " << i;
      if (M % 2 == 1 && entry.name != "1/x") {
        ASSERT_EQ(s.LnC[0], s.LnC[M / 2 + 1]) << name;
      }
    }
}

TEST(Transformations, ComeBackByTheirInverse) {
  for (const analysis::Transformation& entry : analysis::kTransformations)
    for (double x = 1.05; x < 44; x *= 1.07) {
      const double back = InverseTransform(entry.name, TransformValue(entry.name, x));
      EXPECT_NEAR(back / x, 1, 4e-14) << entry.name << " " << x;
    }
}

TEST(Transformations, AreChosenByTheFirstThreeLettersOfTheName) {
  EXPECT_EQ(TransformValue("Squ", 4), 0) << "unknown";
  EXPECT_EQ(TransformValue("Sqrt", 4), 2);
  EXPECT_EQ(InverseTransform("1/", 4), 0) << "too short";
  EXPECT_EQ(TransformValue("", 4), 0);
}

TEST(Transformations, ThatFailMidwayLeaveTheScaleAsItWas) {
  ExposureSession s = fit_data::Opened({2, 1, 2, 1e200});
  const auto before = s.LnC;
  EXPECT_THROW(FillCTransf(s, "x^2"), RunTimeError);
  EXPECT_EQ(s.LnC, before);
  s.M = 5;
  EXPECT_THROW(FillCTransf(s, "Unt"), RunTimeError) << "a series shorter than M";
}

}  // namespace
