#include "output/report_form.h"

#include "tests/output/log_user.h"

// The window in which the log is read.
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class TheReportWindow : public LogUser {
 protected:
  void OpenDescriptive() {
    OpenSeries();
    p.Tab("descript");
    p.program.TellState();
  }
  // The user chooses the item, whose caption follows.
  void Toggle() {
    p.box.shown.clear();
    p.Click("MenuReportOpen");
    p.program.TellState();
  }
  std::string Item() { return p.Text("MenuReportOpen"); }
  bool IsOpen() const { return form_.shown; }
  void LookFor(const std::string& words) { p.Enter("ReportForm.FindTxB", words); }
  std::string Selected() const {
    return form_.ReportTxb.text.substr(form_.ReportTxb.from, form_.ReportTxb.length);
  }

  output::ReportForm& form_ =
      dynamic_cast<output::ReportForm&>(*p.program.FormByName("ReportForm"));
};

TEST_F(TheReportWindow, DoesNotOpenBeforeTheFirstAppend) {
  folder_.Write("weld.LOG", "of last year");
  OpenDescriptive();
  Toggle();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Item(), "Show <name>.LOG");
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(TheReportWindow, OpensAndClosesInTurnAndItsItemSaysSo) {
  OpenDescriptive();
  Append();
  for (int i = 0; i < 3; ++i) {
    Toggle();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Item(), "Close <name>.LOG");
    Toggle();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Item(), "Show <name>.LOG");
  }
}

TEST_F(TheReportWindow, ShowsTheWholeLogFromItsEnd) {
  folder_.Write("weld.LOG", "of last year\r\n");
  OpenDescriptive();
  Append();
  Toggle();
  EXPECT_THAT(form_.ReportTxb.text, StartsWith("of last year\n"));
  EXPECT_THAT(form_.ReportTxb.text, HasSubstr("date: 7 Mar 2024\n"));
  EXPECT_EQ(form_.ReportTxb.from, form_.ReportTxb.text.size());
  EXPECT_EQ(form_.caption, Whole("weld.LOG"));
  EXPECT_TRUE(form_.ReportTxb.locked);
}

TEST_F(TheReportWindow, RenewsWithTheNextAppend) {
  OpenDescriptive();
  Append();
  Toggle();
  const std::string once = form_.ReportTxb.text;
  Append();
  EXPECT_EQ(form_.ReportTxb.text, once + once);
  EXPECT_TRUE(IsOpen());
}

TEST_F(TheReportWindow, RenewsWithWhatOthersWrite) {
  OpenDescriptive();
  Append();
  Toggle();
  std::ofstream(folder_.Path("weld.LOG"), std::ios::app) << "by another\r\n";
  form_.FileGrown();
  EXPECT_THAT(form_.ReportTxb.text, EndsWith("\nby another\n"));
}

TEST_F(TheReportWindow, KeepsWhatItShowsWhenTheLogIsTakenAway) {
  OpenDescriptive();
  Append();
  Toggle();
  const std::string shown = form_.ReportTxb.text;
  std::filesystem::remove(folder_.Path("weld.LOG"));
  form_.FileGrown();
  EXPECT_EQ(form_.ReportTxb.text, shown);
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(TheReportWindow, ClosedByTheUserGivesTheItemItsCaptionBack) {
  OpenDescriptive();
  Append();
  Toggle();
  form_.Closed();
  p.program.TellState();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Item(), "Show <name>.LOG");
}

TEST_F(TheReportWindow, ClosesWithTheData) {
  OpenDescriptive();
  Append();
  Toggle();
  p.Click("Menuclose");
  p.program.TellState();
  EXPECT_FALSE(IsOpen());
  OpenDescriptive();
  EXPECT_EQ(Item(), "Show <name>.LOG");
}

TEST_F(TheReportWindow, NamesALogThatCannotBeRead) {
  OpenDescriptive();
  Append();
  std::filesystem::remove(folder_.Path("weld.LOG"));
  Toggle();
  EXPECT_THAT(p.LastBox().text, HasSubstr("the log " + Whole("weld.LOG") + " can't be read"));
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Item(), "Show <name>.LOG");
}

TEST_F(TheReportWindow, FindsWordsInCapitalAndSmallLettersAlikeAndBeginsAnew) {
  folder_.Write("weld.LOG", "Alpha\r\nbeta\r\nALPHA\r\n");
  OpenDescriptive();
  Append();
  Toggle();
  LookFor("alpha");
  EXPECT_EQ(Selected(), "Alpha") << "from the end on, at the beginning";
  LookFor("alpha");
  EXPECT_EQ(Selected(), "ALPHA");
  LookFor("alpha");
  EXPECT_EQ(Selected(), "Alpha");
  p.Click("ReportForm.FindBackCmd");
  EXPECT_EQ(Selected(), "ALPHA");
  p.Click("ReportForm.FindBackCmd");
  EXPECT_EQ(Selected(), "Alpha");
  EXPECT_EQ(form_.FoundLbl.text, "");
}

TEST_F(TheReportWindow, SaysWhatItDoesNotFind) {
  OpenDescriptive();
  Append();
  Toggle();
  LookFor("gamma");
  EXPECT_EQ(form_.FoundLbl.text, "\"gamma\" does not occur.");
  EXPECT_EQ(Selected(), "");
  LookFor("");
  EXPECT_EQ(form_.FoundLbl.text, "");
}

// A log of many years opens as fast as a new one.
TEST_F(TheReportWindow, ShowsTheLastFourMebibytesOfALongerLog) {
  constexpr std::size_t kMost = std::size_t{4} << 20;
  OpenDescriptive();
  Append();
  folder_.Write("weld.LOG", std::string(kMost - 2, 'x') + "\r\n");
  Toggle();
  EXPECT_EQ(form_.ReportTxb.text.size(), kMost - 1) << "the whole log";
  Toggle();
  folder_.Write("weld.LOG", "first\r\nsecond\r\n" + std::string(kMost - 7, 'x') + "\r\nend");
  Toggle();
  EXPECT_THAT(form_.ReportTxb.text, StartsWith("Here are the last 4 MiB of this log.\n"));
  EXPECT_THAT(form_.ReportTxb.text, EndsWith("\nend"));
  EXPECT_THAT(form_.ReportTxb.text, testing::Not(HasSubstr("first")));
}

TEST_F(TheReportWindow, OpensALogOfThreeGigabytes) {
  OpenDescriptive();
  Append();
  std::filesystem::resize_file(folder_.Path("weld.LOG"), 3ULL << 30);
  std::ofstream(folder_.Path("weld.LOG"), std::ios::app) << "\r\nend\r\n";
  Toggle();
  EXPECT_EQ(form_.ReportTxb.text, "Here are the last 4 MiB of this log.\nend\n");
}

}  // namespace
