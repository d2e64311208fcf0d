#include "tests/compare/comparison_screen.h"

// The up-down pairs of the comparison screen, clicked.
namespace {

using screen::Answer;

class ReferencePairs : public ComparisonScreen {
 protected:
  ReferencePairs() { Start(); }
};

TEST_F(ReferencePairs, EachPairStepsItsValueAndHidesTheResults) {
  struct Step {
    const char* pair;
    const char* box;
    double ExposureSession::*field;
    double up, down;
  };
  for (const Step& step : {Step{"SampSiz2_UpD", "SampSizTxB2", &ExposureSession::M2, 11, 10},
                           Step{"GM2_UpD", "GMTxB2", &ExposureSession::GM2, 0.4, 0.3},
                           Step{"GSD2_UpD", "GSDTxB2", &ExposureSession::GSD2, 2.1, 2}}) {
    Calculate();
    ASSERT_TRUE(Results()) << step.pair;
    p.Up(step.pair);
    EXPECT_DOUBLE_EQ(p.Record().*step.field, step.up);
    EXPECT_EQ(p.Text(step.box), GlobalBAS::ShownTrimmed(p.Record(), step.up));
    ExpectNoResults(step.pair);
    EXPECT_TRUE(form.CalcCmb.visible) << step.pair;
    p.Down(step.pair);
    EXPECT_DOUBLE_EQ(p.Record().*step.field, step.down);
  }
}

TEST_F(ReferencePairs, ASampleSizeOf2DoesNotStepDownAndOf30000DoesNotStepUp) {
  p.Record().M2 = 2;
  Visit(Answer::Yes);
  p.Down("SampSiz2_UpD");
  EXPECT_EQ(p.Record().M2, 2);
  p.Record().M2 = 30000;
  Visit(Answer::Yes);
  p.Up("SampSiz2_UpD");
  EXPECT_EQ(p.Record().M2, 30000);
  EXPECT_EQ(p.Record().MsgText, "");
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(ReferencePairs, AStepStartsFromTheTextThatIsBeingTyped) {
  form.SampSizTxB2.text = "40000";
  form.SampSizTxB2.touched = true;
  p.Down("SampSiz2_UpD");
  EXPECT_EQ(TakeBox().text, "A Sample size M of more than thirty thousand is too large");
  EXPECT_EQ(p.Record().M2, 29999);
  EXPECT_EQ(form.SampSizTxB2.text, "29999");
  form.GMTxB2.text = "25";
  form.GMTxB2.touched = true;
  p.Up("GM2_UpD");
  EXPECT_EQ(p.Record().GM2, 35);
}

TEST_F(ReferencePairs, TheEndsOfThePairsAreKeptAsAMessageWithoutABox) {
  struct End {
    const char* pair;
    double ExposureSession::*field;
    double value;
    bool up;
    double end;
    const char* text;
  };
  for (const End& end : {End{"GM2_UpD", &ExposureSession::GM2, 0.00019, false, 0.0001,
                             "0.0001 is the smallest value possible"},
                         End{"GM2_UpD", &ExposureSession::GM2, 9900, true, 10000,
                             "10000 is the largest value possible"},
                         End{"GSD2_UpD", &ExposureSession::GSD2, 1.001, false, 1.001,
                             "1.001 is the smallest value possible"},
                         End{"GSD2_UpD", &ExposureSession::GSD2, 1000, true, 1000,
                             "1000 is the largest value possible"}}) {
    p.Record().*end.field = end.value;
    p.Record().MsgText.clear();
    Visit(Answer::Yes);
    end.up ? p.Up(end.pair) : p.Down(end.pair);
    EXPECT_EQ(p.Record().*end.field, end.end) << end.text;
    EXPECT_EQ(p.Record().MsgText, end.text);
    EXPECT_TRUE(p.box.shown.empty()) << end.text;
  }
}

}  // namespace
