// Every number of the document is that of the screens, text by text: everything is pressed there,
// and what the boxes then show is looked for in the document.
#include "catalog/catalog.h"
#include "compliance/compliance_tests.h"
#include "tests/document/document_session.h"

namespace {

class DocumentAndScreens : public DocumentSession {
 protected:
  void ExpectDescriptive(const std::string& GM = "Geometric Mean GM",
                         const std::string& GSD = "Geometric Standard Deviation GSD") {
    ASSERT_TRUE(p.Tab("descript"));
    const std::pair<std::string, const char*> boxes[] = {{GM, "GMTxB"},
                                                         {GSD, "GSDTxB"},
                                                         {"GM unbiased", "GMuTxB"},
                                                         {"AM max. likelihood", "AMmlTxb"},
                                                         {"AM unbiased", "AMuTxb"},
                                                         {"AM mean sqr. err.", "AMmvTxb"},
                                                         {"SD unbiased", "SDUTxb"}};
    for (const auto& [name, box] : boxes) EXPECT_EQ(ValueOf(name), Box(box)) << box;
    if (p.Record().Mode != DataMode::Raw) return;
    EXPECT_EQ(ValueOf("XM normal arithmetic mean"), Box("AmlinTxb"));
    EXPECT_EQ(ValueOf("SD normal standard deviation"), Box("SDlinTxb"));
  }

  // Presses the three tests, and compares what their boxes and the table beside them show.
  void ExpectTests() {
    ASSERT_TRUE(p.Tab("extrapolation"));
    const std::string text = Text();
    for (const char* row : {"(0)", "(1)", "(2)"})
      for (const char* column : {"VerdictTestLbl", "VerdictPercLbl", "VerdictUTLLbl", "VerdictLbl"})
        EXPECT_NE(text.find(p.Text(std::string(column) + row)), std::string::npos) << column << row;
    EXPECT_NE(text.find(p.Text("VerdictsLbl")), std::string::npos);
    const std::string unit = "%";
    for (const auto& [button, method] :
         {std::pair{"LeidelCmb", "Leidel"}, {"WilksCmb", "Wilks"}, {"TuggleCmb", "EN689"}}) {
      p.Click(button);
      ExpectOf(method, Box("PercExTxB(0)"));
      ExpectOf(method, Box("PercExTxB(1)"));
    }
    ExpectOf("EN689", Box("PercExTxB(2)"));
  }
  void ExpectOf(const std::string& method, const std::string& value) {
    const auto results = ResultsOf(Made());
    EXPECT_TRUE(std::ranges::any_of(results,
                                    [&](const document::Result& result) {
                                      return result.value == value &&
                                             result.method.find(method) != std::string::npos;
                                    }))
        << method << " " << value;
  }

  void ExpectSampleSize() {
    ASSERT_TRUE(p.Tab("extrapolation"));
    p.Click("WilksCmb");
    p.Click("SampSizeCkb");
    for (const char* box : {"DegrMinTxb", "PercExTxB(3)", "SampMinTxB"}) {
      if (!Box(box).empty()) ExpectOf("Wilks", Box(box));
    }
  }

  void ExpectMean(bool land) {
    ASSERT_TRUE(p.Tab("mean"));
    for (const auto& [button, method] : {std::pair{"JahrCmb", "Jahr"}, {"LandCmb", "Land"}}) {
      if (!land && method == std::string("Land")) continue;
      p.Click(button);
      ExpectOf(method, Box("UCLTxB"));
      ExpectOf(method, Box("PercExTxB"));
    }
  }
};

TEST_F(DocumentAndScreens, ASeriesHasTheNumbersOfEveryScreen) {
  OpenTwelve();
  StateLimit("5");
  ExpectDescriptive();
  ExpectTests();
  ExpectSampleSize();
  ExpectMean(true);
}

TEST_F(DocumentAndScreens, TheOutcomesAreThoseOfTheTable) {
  OpenTwelve();
  p.Click("DetecChB");
  p.Type("DetecLTxb", "0.8");
  p.Type("DetecUTxb", "4");
  auto& grid = static_cast<screen::Grid&>(p.At("DBGridVkr"));
  ASSERT_EQ(grid.rowCount, 12);
  for (int row = 0; row < grid.rowCount; ++row) {
    const std::string place = GlobalBAS::Trim(grid.Cell(row, 0));
    const std::string sign = grid.Cell(row, 1) == "=" ? "" : grid.Cell(row, 1);
    EXPECT_EQ(ValueOf(place), sign + GlobalBAS::Trim(grid.Cell(row, 2)));
  }
  EXPECT_EQ(ValueOf("3"), "<0.7");
  EXPECT_EQ(ValueOf("11"), ">4.2");
}

TEST_F(DocumentAndScreens, ADetectionRangeHasTheNumbersOfItsLine) {
  OpenThirty();
  p.Click("DetecChB");
  p.Type("DetecLTxb", "2.5");
  ASSERT_TRUE(p.Tab("plot"));
  const std::string fit = p.Text("LblShapiro");
  const std::string W = ValueOf("Shapiro and Wilk's W");
  EXPECT_NE(fit.find("W=" + W + "\r"), std::string::npos) << fit;
  EXPECT_NE(fit.find("A(W)=" + ValueOf("Probability A(W)") + "%"), std::string::npos) << fit;
  StateLimit("5");
  ExpectDescriptive("Single censored Rankit estimate GMg", "Single censored Rankit estimate GSDg");
  EXPECT_EQ(ValueOf("Degrees of Freedom df"), Box("DegreesTxb"));
  EXPECT_EQ(ValueOf("Lower limit LOQ"), Box("DetecLTxb"));
  EXPECT_EQ(ValueOf("Upper Limit UL"), Box("DetecUTxb"));
  EXPECT_EQ(ValueOf("Outcome below LOQ"), Box("DegreesLbl(5)"));
  ExpectTests();
  ExpectSampleSize();
  ExpectMean(true);
}

TEST_F(DocumentAndScreens, KnownStatisticsHaveTheNumbersOfEveryScreen) {
  p.EnterStatistics("Welders", "10", "2", "2.5");
  StateLimit("5");
  ExpectDescriptive();
  ExpectTests();
  ExpectSampleSize();
  ExpectMean(true);
}

TEST_F(DocumentAndScreens, ClampedNumbersHaveTheTextsOfTheirBoxes) {
  p.EnterStatistics("Welders", "3", "0.001", "1.01");
  StateLimit("5");
  ExpectDescriptive();
  ExpectTests();
  ExpectMean(true);
  EXPECT_EQ(ValueOf("AM mean sqr. err."), "unknown");
}

TEST_F(DocumentAndScreens, AComparisonWithASampleHasTheNumbersOfItsScreen) {
  p.EnterStatistics("Welders", "10", "2", "2.5");
  p.box.answers = {screen::Answer::Yes};
  ASSERT_TRUE(p.Tab("Compare"));
  p.Type("SampSizTxB2", "15");
  p.box.answers = {screen::Answer::No};
  p.Click("CalcCmb");
  EXPECT_EQ(ValueOf(p.Text("GSDinferLbl").substr(0, p.Text("GSDinferLbl").find(" ="))),
            Box("GSDInfTxb"));
  ExpectOf("one pooled variance", Box("GMInfTxb"));
  ExpectOf("one pooled variance", Box("SampSizTxb3"));
  EXPECT_EQ(ValueOf("Combined GMcomb"), Box("GMTxb3"));
  EXPECT_EQ(ValueOf("Combined GSDcomb"), Box("GSDTxb3"));
  EXPECT_EQ(ValueOf("Reference sample size Mref"), "15");
}

TEST_F(DocumentAndScreens, AComparisonWithAPopulationHasTheNumbersOfItsScreen) {
  p.EnterStatistics("Welders", "10", "2", "2.5");
  p.box.answers = {screen::Answer::Yes};
  ASSERT_TRUE(p.Tab("Compare"));
  p.Click("PopOpt");
  p.Type("GMTxB2", "1.5");
  p.Click("CalcCmb");
  ExpectOf("chi-square", Box("GSDInfTxb"));
  ExpectOf("Student's t", Box("GMInfTxb"));
}

}  // namespace
