#include <cmath>

#include "tests/compare/comparison_screen.h"
#include "tests/support/csv.h"
#include "tests/support/letters.h"

// The results of the comparison screen, and the decision on the variances.
namespace {

using screen::Answer;
using support::Row;

class ComparisonResults : public ComparisonScreen {
 protected:
  // The data and the reference of a row, on the screen.
  void Given(double M, double GM, double GSD, double M2, double GM2, double GSD2) {
    ExposureSession& s = p.Record();
    s.M = M;
    s.df = M - 1;
    s.GM = GM;
    s.GSD = GSD;
    s.M2 = M2;
    s.GM2 = GM2;
    s.GSD2 = GSD2;
    if (s.CompareMode == ReferenceKind::None) s.CompareMode = ReferenceKind::Sample;
    Start();
  }
  void ExpectText(const screen::Control& box, const Row& row, const std::string& column,
                  double factor = 1) {
    EXPECT_EQ(box.text, Number(factor * row.Number(column)))
        << row.Where() << " " << box.name << " " << column;
  }

  const screen::Colour blue{0, 0, 255};
};

Answer AnswerOf(const Row& row) {
  const std::string& text = row.Text("answer");
  if (text == "Yes") return Answer::Yes;
  return text == "No" ? Answer::No : Answer::Cancel;
}

TEST_F(ComparisonResults, EveryRowOfTheTableStandsOnTheScreen) {
  p.Record().SigDigits = 7;
  for (const Row& row : support::ReadTable("comparison.csv")) {
    const bool sample = row.Text("mode") == "S";
    p.Record().CompareMode = support::KindOf(row.Text("mode"));
    Given(row.Number("M"), row.Number("GM"), row.Number("GSD"), row.Number("M2"), row.Number("GM2"),
          row.Number("GSD2"));
    p.Record().df = row.Number("df");
    Calculate(AnswerOf(row));
    EXPECT_EQ(p.box.shown.size(), sample ? 1u : 0u) << row.Where();
    p.box.answers.clear();
    EXPECT_TRUE(form.DescrInfFrm.visible) << row.Where();
    EXPECT_EQ(form.PooledFrm.visible, sample) << row.Where();
    ExpectText(form.GSDInfTxb, row, "GSDInfTxb");
    if (!sample || row.Number("v_safe") == 1) ExpectText(form.GMInfTxb, row, "GMInfTxb");
    if (!sample) continue;
    EXPECT_EQ(p.Record().GSDChoice, support::ChoiceOf(row.Text("GSDChoice"))) << row.Where();
    EXPECT_EQ(form.SampSizLbl3.text, row.Text("SampSizLbl3") == "3130"
                                         ? "Summed number of degrees of freedom="
                                         : "Combined number of degrees of freedom=")
        << row.Where();
    if (row.Number("v_safe") == 1) ExpectText(form.SampSizTxb3, row, "SampSizTxb3");
    ExpectText(form.GMTxb3, row, "GMTxb3");
    ExpectText(form.GSDTxb3, row, "GSDTxb3");
  }
}

TEST_F(ComparisonResults, TheWorkedExamplesOfOtherProgramsStandOnTheScreen) {
  p.Record().SigDigits = 5;
  for (const Row& row : support::ReadTable("two_sample_derived.csv")) {
    Given(row.Number("n1"), row.Number("GM1"), row.Number("GSD1"), row.Number("n2"),
          row.Number("GM2"), row.Number("GSD2"));
    Calculate(Answer::No);
    // The statistics are given with twelve digits, which a vanishing tail does not survive.
    if (row.Number("p_F_two_sided") > 1e-9)
      ExpectText(form.GSDInfTxb, row, "p_F_two_sided", 100);
    else
      EXPECT_LT(GlobalBAS::Val(form.GSDInfTxb.text), 1e-7) << row.Where();
    ExpectText(form.GMInfTxb, row, "p_pooled", 100);
    ExpectText(form.SampSizTxb3, row, "df_pooled");
    p.Click("DifferOpt");
    Calculate(Answer::Yes);
    ExpectText(form.GMInfTxb, row, "p_welch_df_truncated", 100);
    EXPECT_EQ(form.SampSizTxb3.text, Number(std::floor(row.Number("df_welch")))) << row.Where();
  }
}

// A normal sample as the logarithms of a lognormal one; a scale leaves t and the probabilities
// alone.
struct Statistics {
  double M = 0;
  double GM = 0;
  double GSD = 0;
};
Statistics Logarithms(const std::string& series) {
  constexpr double scale = 1000;
  double n = 0, mean = 0, squares = 0;
  for (const Row& row : support::ReadTable("published_series.csv")) {
    if (row.Text("series") != series) continue;
    const double step = row.Number("value") / scale - mean;
    mean += step / ++n;
    squares += step * (row.Number("value") / scale - mean);
  }
  return {n, std::exp(mean), std::exp(std::sqrt(squares / (n - 1)))};
}

// Printed with fractions of a degree of freedom, which are cut off here.
TEST_F(ComparisonResults, PublishedSeparateTestsDifferByTheCutOfTheirDegreesOfFreedomOnly) {
  for (const Row& row : support::ReadTable("two_sample_published.csv")) {
    const double sides = row.Text("quantity") == "p_welch_one_sided" ? 2 : 1;
    if (sides == 1 && row.Text("quantity") != "p_welch_two_sided") continue;
    if (row.Text("case") == "sleep") {
      Given(10, 2.11700001661, 5.9835237948, 10, 10.277941533, 7.40569083043);
    } else {
      const Statistics one = Logarithms(row.Text("sample1"));
      const Statistics two = Logarithms(row.Text("sample2"));
      ASSERT_EQ(one.M, 8) << row.Where();
      Given(one.M, one.GM, one.GSD, two.M, two.GM, two.GSD);
    }
    Calculate(Answer::Yes);
    const double published = 100 * sides * row.Number("published");
    const double shown = GlobalBAS::Val(form.GMInfTxb.text);
    EXPECT_GT(shown, published) << row.Where();
    EXPECT_LT(shown, 1.02 * published) << row.Where();
  }
}

TEST_F(ComparisonResults, TheQuestionStandsOverTheProbabilityOfTheDispersions) {
  Given(30, 0.3, 1.5, 25, 0.4, 4);
  std::string dispersions, locations, combined;
  p.box.watch = [&] {
    dispersions = form.GSDInfTxb.text;
    locations = form.GMInfTxb.text;
    combined = form.GMTxb3.text;
  };
  Calculate();
  EXPECT_EQ(dispersions, form.GSDInfTxb.text);
  EXPECT_EQ(locations, kBlanks);
  EXPECT_EQ(combined, "");
  const screen::Message question = TakeBox();
  EXPECT_EQ(question.title, "GSDs from the same population?");
  EXPECT_EQ(question.text, "If A(GSD=GSDref) is small press <No>, otherwise press <Yes>");
  EXPECT_EQ(question.icon, screen::Icon::Question);
  EXPECT_EQ(question.buttons, screen::Buttons::YesNoCancel);
  EXPECT_EQ(question.defaultAnswer, Answer::No);
}

// The wording of the question says it the other way round.
TEST_F(ComparisonResults, NoPoolsTheVariancesAndYesSeparatesThem) {
  Given(12, 1, 2, 20, 1.4, 3);
  Calculate(Answer::No);
  EXPECT_EQ(p.Record().GSDChoice, VarianceChoice::Pooled);
  EXPECT_EQ(form.SampSizLbl3.text, "Summed number of degrees of freedom=");
  EXPECT_EQ(form.SampSizTxb3.text, Number(30));
  p.Click("SampOpt");
  Calculate(Answer::Yes);
  EXPECT_EQ(p.Record().GSDChoice, VarianceChoice::Separate);
  EXPECT_EQ(form.SampSizLbl3.text, "Combined number of degrees of freedom=");
  EXPECT_LT(GlobalBAS::Val(form.SampSizTxb3.text), 30);
}

TEST_F(ComparisonResults, CancelGoesByTheProbabilityOfTheDispersions) {
  Given(30, 0.3, 1.5, 25, 0.4, 4);
  Calculate(Answer::Cancel);
  EXPECT_EQ(p.Record().GSDChoice, VarianceChoice::SeparateByProbability);
  EXPECT_EQ(form.SampSizTxb3.text, Number(27)) << "27.4 cut, never rounded";
  Given(30, 0.3, 1.5, 25, 0.4, 1.6);
  Calculate(Answer::Cancel);
  EXPECT_EQ(p.Record().GSDChoice, VarianceChoice::PooledByProbability);
  EXPECT_EQ(form.SampSizTxb3.text, Number(53));
}

TEST_F(ComparisonResults, EqualGeometricMeansHaveAProbabilityOf100) {
  Given(8, 1.7, 2, 12, 1.7, 3);
  Calculate();
  EXPECT_EQ(form.GMInfTxb.text, Number(100));
  EXPECT_NE(form.GSDInfTxb.text, Number(100));
}

TEST_F(ComparisonResults, EqualDispersionsOfEqualSamplesHaveAProbabilityOf100) {
  Given(10, 0.3, 2, 10, 0.5, 2);
  Calculate();
  EXPECT_EQ(form.GSDInfTxb.text, Number(100));
}

TEST_F(ComparisonResults, TwoOutcomesAreComparedWithAPopulation) {
  Given(2, 1, 2, 9, 1, 3);
  p.Click("PopOpt");
  Calculate();
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_TRUE(Results());
  EXPECT_FALSE(form.PooledFrm.visible);
  EXPECT_EQ(form.GMInfTxb.text, Number(100));
}

TEST_F(ComparisonResults, TheAnswerOverwritesAChoiceThatWasMadeBefore) {
  Given(12, 1, 2, 20, 1.4, 3);
  p.Click("DifferOpt");
  EXPECT_EQ(p.Record().GSDChoice, VarianceChoice::Separate);
  Calculate(Answer::No);
  EXPECT_EQ(p.Record().GSDChoice, VarianceChoice::Pooled);
  EXPECT_TRUE(form.EqualOpt.ticked) << "the options tell the path that was taken";
  EXPECT_FALSE(form.DifferOpt.ticked);
}

TEST_F(ComparisonResults, TheChosenOptionIsBlueAndTheOtherPlain) {
  Given(12, 1, 2, 20, 1.4, 3);
  EXPECT_EQ(form.EqualOpt.colour, std::nullopt);
  EXPECT_EQ(form.DifferOpt.colour, std::nullopt);
  p.Click("EqualOpt");
  EXPECT_EQ(p.Record().GSDChoice, VarianceChoice::Pooled);
  EXPECT_EQ(form.EqualOpt.colour, blue);
  EXPECT_EQ(form.DifferOpt.colour, std::nullopt);
  p.Click("DifferOpt");
  EXPECT_EQ(p.Record().GSDChoice, VarianceChoice::Separate);
  EXPECT_EQ(form.EqualOpt.colour, std::nullopt);
  EXPECT_EQ(form.DifferOpt.colour, blue);
}

// What does not depend on the variances stays, since it helps to decide on them.
TEST_F(ComparisonResults, AnotherChoiceOnTheVariancesTakesAwayWhatRestsOnIt) {
  Given(12, 1, 2, 20, 1.4, 3);
  for (const char* option : {"EqualOpt", "DifferOpt"}) {
    Calculate();
    const std::string dispersions = form.GSDInfTxb.text;
    p.Click(option);
    EXPECT_TRUE(form.CalcCmb.visible) << option;
    EXPECT_FALSE(form.PooledFrm.visible) << option;
    EXPECT_EQ(form.GMInfTxb.text, kBlanks) << option;
    EXPECT_EQ(form.GSDInfTxb.text, dispersions) << option;
    EXPECT_FALSE(form.MenuPrint.visible) << option;
  }
}

TEST_F(ComparisonResults, ACalculationTakesItsButtonAwayAndOffersTheReport) {
  Given(12, 1, 2, 20, 1.4, 3);
  EXPECT_FALSE(form.MenuPrint.visible);
  Calculate();
  EXPECT_FALSE(form.CalcCmb.visible);
  EXPECT_TRUE(form.MenuPrint.visible);
}

TEST_F(ComparisonResults, AFaultIsToldAndLeavesNoResultOfAnEarlierRun) {
  Given(12, 1, 2, 20, 1.4, 3);
  Calculate();
  p.box.shown.clear();
  p.Record().GSD = 1;
  p.Record().GSD2 = 1.001;
  p.Record().GM = 0;
  p.Click("SampOpt");
  Calculate();
  ASSERT_EQ(p.box.shown.size(), 2u) << "the question, and what failed";
  EXPECT_EQ(p.box.shown.back().text.rfind("This step could not be finished: ", 0), 0u);
  EXPECT_EQ(form.GMInfTxb.text, kBlanks);
  EXPECT_EQ(form.GMTxb3.text, "");
  EXPECT_FALSE(form.MenuPrint.visible);
  EXPECT_TRUE(form.CalcCmb.visible);
}

}  // namespace
