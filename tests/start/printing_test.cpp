// Screens, tables and reports on their way to the printer.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "tests/support/start_screen.h"
#include "tests/support/temp_folder.h"

namespace {

using screen::Answer;
using support::ProgramSession;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr char kTitle[] = "Print error";
constexpr char kText[] = "The form can't be printed.";

std::vector<std::string> WordsOf(const screen::PrintJob& job) {
  std::vector<std::string> words;
  for (const drawing::DrawingRecord& page : job.pages)
    for (const auto& item : page.Items())
      if (const auto* text = std::get_if<drawing::DrawnText>(&item)) words.push_back(text->text);
  return words;
}

class Printing : public testing::Test {
 protected:
  void Describe() {
    user_.OpenSeries({1, 2, 4, 8, 16});
    user_.Tab("descript");
    ASSERT_EQ(user_.Shown().name, "DescriptForm");
  }
  // So many reports in the open document.
  void Gather(int reports) {
    Describe();
    for (int i = 0; i < reports; ++i) user_.Click("MenuRapport");
    ASSERT_EQ(user_.Text("MenuGathered"),
              "Print the &gathered reports now (" + std::to_string(reports) + ")");
  }
  void Leave(std::initializer_list<Answer> answers) {
    user_.box.answers.assign(answers);
    user_.Click("MenuExit");
  }

  ProgramSession user_;
};

// The print menu of each screen.

TEST_F(Printing, OfTheFormIsOnEveryScreenThatHasAName) {
  EXPECT_FALSE(user_.At("MenuPrinterPrint").enabled) << "nothing is there to print yet";
  Describe();
  for (const char* tab : {"basis", "raw", "grenzen", "descript", "plot"}) {
    ASSERT_TRUE(user_.Tab(tab)) << tab;
    EXPECT_TRUE(user_.At("MenuPrinterPrint").enabled) << tab;
    EXPECT_EQ(user_.Text("MenuPrinterPrint"), "Form to printer");
    user_.printer.jobs.clear();
    user_.Click("MenuPrinterPrint");
    ASSERT_EQ(user_.printer.jobs.size(), 1U) << tab;
    EXPECT_EQ(user_.printer.jobs[0].pages.size(), 1U) << tab;
  }
  EXPECT_TRUE(user_.box.shown.empty());
}

TEST_F(Printing, OfTheTableIsOnTheRawDataScreenOnly) {
  Describe();
  EXPECT_EQ(user_.Shown().Find("menuPrintgrid"), nullptr);
  user_.Tab("raw");
  EXPECT_EQ(user_.Text("menuPrintgrid"), "Displayed grid to printer");
}

TEST_F(Printing, OfAReportIsOnItsThreeScreensOnly) {
  Describe();
  std::vector<std::string> with;
  for (screen::Form* form : user_.program.Forms())
    if (form->Find("MenuRapport")) with.push_back(form->name);
  EXPECT_THAT(with, ElementsAre("DescriptForm", "PercExForm", "UCLForm"));
  EXPECT_EQ(user_.Text("MenuRapport"), "Report to printer");
}

// The form.

TEST_F(Printing, RedrawsTheWindowBeforeItIsPrinted) {
  Describe();
  const int before = user_.surface.repaints;
  user_.Click("MenuPrinterPrint");
  EXPECT_GT(user_.surface.repaints, before);
}

TEST_F(Printing, PutsNameDateAndWindowNumberBelowTheForm) {
  Describe();
  user_.Click("MenuPrinterPrint");
  const std::vector<std::string> words = WordsOf(user_.printer.jobs.at(0));
  EXPECT_THAT(words, Contains("date: 7 Mar 2024     window " + user_.Text("WindnrLbl")));
  std::string whole;
  for (const std::string& word : words) whole += word;
  EXPECT_THAT(whole, HasSubstr("series.vkr"));
}

TEST_F(Printing, TellsInOneBoxOfAFormThatCannotBePrinted) {
  Describe();
  user_.printer.fails = true;
  user_.Click("MenuPrinterPrint");
  ASSERT_EQ(user_.box.shown.size(), 1U);
  EXPECT_EQ(user_.LastBox().title, kTitle);
  EXPECT_EQ(user_.LastBox().text, kText);
}

TEST_F(Printing, PrintsTheFrequencyPictureAsAPicture) {
  Describe();
  user_.Click("MenuVerd");
  ASSERT_EQ(user_.Shown().name, "VerdelingForm");
  user_.Click("MenuPrinterPrint");
  EXPECT_THAT(WordsOf(user_.printer.jobs.at(0)), Contains(HasSubstr("GM")));
}

// The table.

TEST_F(Printing, OfTheTableHasEveryOutcome) {
  user_.OpenSeries({1, 2, 4, 8, 16});
  user_.Click("menuPrintgrid");
  const auto& grid = static_cast<screen::Grid&>(user_.At("DBGridVkr"));
  const std::vector<std::string> words = WordsOf(user_.printer.jobs.at(0));
  for (const screen::Grid::Column& column : grid.columns)
    EXPECT_THAT(words, Contains(column.caption));
  for (int row = 0; row < grid.rowCount; ++row) EXPECT_THAT(words, Contains(grid.Cell(row, 1)));
}

// Where it goes.

TEST_F(Printing, AsksForThePrinterOncePerRun) {
  Describe();
  for (int i = 0; i < 3; ++i) user_.Click("MenuPrinterPrint");
  EXPECT_EQ(user_.printer.asked, 1);
  EXPECT_EQ(user_.printer.jobs.size(), 3U);
  user_.Click("MenuPrinter");
  EXPECT_EQ(user_.printer.asked, 2) << "another one may be chosen";
}

TEST_F(Printing, PrintsNothingAndSaysNothingWhenTheDialogIsCancelled) {
  Describe();
  user_.printer.chooses = false;
  user_.Click("MenuPrinterPrint");
  EXPECT_TRUE(user_.printer.jobs.empty());
  EXPECT_TRUE(user_.box.shown.empty());
  user_.Click("MenuPrinterPrint");
  EXPECT_EQ(user_.printer.asked, 2) << "no printer has been chosen yet";
}

TEST_F(Printing, OffersAFileBesideTheSeriesWhereThereIsNoPrinter) {
  Describe();
  user_.printer.there = false;
  user_.dialog.answers.push_back("/tmp/chosen.pdf");
  user_.Click("MenuPrinterPrint");
  EXPECT_EQ(user_.printer.asked, 0);
  const screen::FileDialog::Request& request = user_.dialog.asked.back();
  EXPECT_TRUE(request.save);
  const std::string name = user_.Record().Name;
  EXPECT_EQ(request.fileName, name.substr(0, name.size() - 4) + ".pdf");
  ASSERT_EQ(user_.printer.written.size(), 1U);
  EXPECT_EQ(user_.printer.written[0].first, "/tmp/chosen.pdf");
  EXPECT_TRUE(user_.box.shown.empty());
}

TEST_F(Printing, WritesNoFileWhenThatIsCancelledAndNamesOneThatCannotBeWritten) {
  Describe();
  user_.printer.there = false;
  user_.Click("MenuPrinterPrint");
  EXPECT_TRUE(user_.printer.written.empty());
  EXPECT_TRUE(user_.box.shown.empty());
  user_.printer.writes = false;
  user_.dialog.answers.push_back("/nowhere/chosen.pdf");
  user_.Click("MenuPrinterPrint");
  ASSERT_EQ(user_.box.shown.size(), 1U);
  EXPECT_THAT(user_.LastBox().text, HasSubstr("/nowhere/chosen.pdf"));
}

TEST_F(Printing, WritesNoFileOverTheSeriesWhateverThatIsCalledByNow) {
  TempFolder folder;
  const std::string path = folder.Write("weld.pdf", "1\r\n2\r\n4\r\n8\r\n");
  user_.OpenFile(path);
  user_.printer.there = false;
  user_.dialog.answers = {path, path};
  user_.Click("MenuPrinterPrint");
  user_.Tab("basis");
  user_.Type("NameTxB", "hall");
  user_.Click("MenuPrinterPrint");
  EXPECT_TRUE(user_.printer.written.empty());
  ASSERT_EQ(user_.box.shown.size(), 2U);
  EXPECT_EQ(user_.LastBox().title, kTitle);
  EXPECT_EQ(user_.LastBox().text, path + " holds the series itself: choose another name.");
}

TEST_F(Printing, NoDocumentOfAllResultsReplacesTheSeriesWhateverThatIsCalledByNow) {
  TempFolder folder;
  const std::string path = folder.Write("weld.txt", "1\r\n2\r\n4\r\n8\r\n");
  user_.OpenFile(path);
  user_.Tab("basis");
  user_.Click("OriModiCmd");
  ASSERT_EQ(user_.Record().Name, path + " (Modified)");
  user_.Tab("descript");
  user_.dialog.answers.push_back(path);
  user_.Click("MenuDocument");
  EXPECT_THAT(user_.LastBox().text, StartsWith(path + " holds the series itself"));
  EXPECT_EQ(TempFolder::Bytes(path), "1\r\n2\r\n4\r\n8\r\n");
}

TEST_F(Printing, SaysSoWhenAPrinterIsToBeChosenAndThereIsNone) {
  Describe();
  user_.printer.there = false;
  user_.Click("MenuPrinter");
  ASSERT_EQ(user_.box.shown.size(), 1U);
  EXPECT_THAT(user_.LastBox().text, HasSubstr("no printer"));
}

// Reports.

TEST_F(Printing, LinesOfAReportGoToTheOpenDocumentAtTheClick) {
  Describe();
  user_.Click("MenuRapport");
  EXPECT_TRUE(user_.printer.jobs.empty()) << "the document stays open";
  EXPECT_EQ(user_.printer.asked, 0);
  ASSERT_FALSE(user_.printer.open.empty());
  EXPECT_THAT(user_.printer.open, Contains(HasSubstr("date: 7 Mar 2024")));
  EXPECT_THAT(user_.Text("StatusLbl"), StartsWith("The report waits"));
}

TEST_F(Printing, ReportsRunOnBehindEachOtherWithoutLosingALine) {
  Gather(1);
  const std::vector<std::string> once = user_.printer.open;
  user_.Click("MenuRapport");
  user_.Click("MenuRapport");
  ASSERT_EQ(user_.printer.open.size(), 3 * once.size());
  for (std::size_t i = 0; i < user_.printer.open.size(); ++i)
    EXPECT_EQ(user_.printer.open[i], once[i % once.size()]);
  EXPECT_THAT(user_.Text("StatusLbl"), StartsWith("3 reports wait"));
}

TEST_F(Printing, TellsOfEachLineThatFailsAndGoesOn) {
  Gather(1);
  const std::size_t lines = user_.printer.open.size();
  user_.printer.takesLines = false;
  user_.Click("MenuRapport");
  ASSERT_EQ(user_.box.shown.size(), lines) << "one box a line";
  for (const screen::Message& box : user_.box.shown) {
    EXPECT_EQ(box.title, kTitle);
    EXPECT_EQ(box.text, kText);
  }
  EXPECT_EQ(user_.Text("MenuGathered"), "Print the &gathered reports now (1)");
  EXPECT_EQ(user_.Record().MsgTitle, kTitle);
}

TEST_F(Printing, OfTheGatheredReportsIsOneJobOnDemand) {
  Gather(2);
  const std::vector<std::string> lines = user_.printer.open;
  EXPECT_TRUE(user_.At("MenuGathered").enabled);
  user_.Click("MenuGathered");
  ASSERT_EQ(user_.printer.jobs.size(), 1U);
  std::vector<std::string> words = WordsOf(user_.printer.jobs[0]);
  for (const std::string& line : lines)
    EXPECT_TRUE(line.empty() || std::ranges::find(words, line) != words.end()) << line;
  EXPECT_FALSE(user_.At("MenuGathered").enabled);
  EXPECT_EQ(user_.Text("MenuGathered"), "Print the &gathered reports now (0)");
  EXPECT_TRUE(user_.printer.open.empty());
}

TEST_F(Printing, OfAFormLeavesTheGatheredReportsGathered) {
  Gather(2);
  user_.Click("MenuPrinterPrint");
  EXPECT_EQ(user_.Text("MenuGathered"), "Print the &gathered reports now (2)");
  EXPECT_FALSE(user_.printer.open.empty());
}

TEST_F(Printing, ARefusedDocumentIsToldInOneBoxAndKeptForAnotherTry) {
  Gather(2);
  const std::vector<std::string> lines = user_.printer.open;
  user_.printer.fails = true;
  user_.Click("MenuGathered");
  ASSERT_EQ(user_.box.shown.size(), 1U);
  EXPECT_EQ(user_.LastBox().title, kTitle);
  EXPECT_EQ(user_.LastBox().text, kText);
  EXPECT_EQ(user_.printer.open, lines);
  user_.printer.fails = false;
  user_.Click("MenuGathered");
  EXPECT_EQ(user_.printer.jobs.size(), 1U);
  EXPECT_EQ(user_.printer.asked, 1) << "the choice holds";
}

// Close all data, and the end.

TEST_F(Printing, CloseAllDataPrintsTheGatheredReports) {
  Gather(2);
  user_.Click("Menuclose");
  EXPECT_EQ(user_.printer.jobs.size(), 1U);
  EXPECT_EQ(user_.Shown().name, "BasisForm");
}

TEST_F(Printing, WhatCloseAllDataCannotPrintIsOfferedAtTheEnd) {
  Gather(1);
  user_.printer.fails = true;
  user_.Click("Menuclose");
  EXPECT_EQ(user_.Shown().name, "BasisForm");
  EXPECT_FALSE(user_.printer.open.empty());
  user_.printer.fails = false;
  Leave({Answer::Yes, Answer::Print});
  EXPECT_EQ(user_.printer.jobs.size(), 1U);
  EXPECT_TRUE(user_.program.EndRequested());
}

TEST_F(Printing, AtTheEndAsksForTheReportsBehindTheSeries) {
  Gather(2);
  user_.Tab("raw");
  user_.printer.fails = false;
  support::EditOutcome(user_, 0, "1.5");
  user_.box.shown.clear();
  Leave({Answer::Yes, Answer::Discard, Answer::Print});
  ASSERT_EQ(user_.box.shown.size(), 3U);
  EXPECT_EQ(user_.box.shown[0].buttons, screen::Buttons::YesNo);
  EXPECT_EQ(user_.box.shown[1].buttons, screen::Buttons::SaveDiscardCancel);
  EXPECT_EQ(user_.box.shown[2].buttons, screen::Buttons::PrintKeepDropCancel);
  EXPECT_THAT(user_.box.shown[2].text, StartsWith("2 gathered reports"));
  EXPECT_EQ(user_.printer.jobs.size(), 1U);
  EXPECT_TRUE(user_.program.EndRequested());
}

TEST_F(Printing, AtTheEndCancelInEitherQuestionStays) {
  Gather(1);
  user_.Tab("raw");
  support::EditOutcome(user_, 0, "1.5");
  Leave({Answer::Yes, Answer::Cancel});
  EXPECT_FALSE(user_.program.EndRequested());
  Leave({Answer::Yes, Answer::Discard, Answer::Cancel});
  EXPECT_FALSE(user_.program.EndRequested());
  EXPECT_FALSE(user_.printer.open.empty());
}

TEST_F(Printing, AtTheEndNoIsAskedAboutNothing) {
  Gather(1);
  Leave({Answer::No});
  EXPECT_EQ(user_.box.shown.size(), 1U);
  EXPECT_FALSE(user_.printer.open.empty());
}

TEST_F(Printing, AtTheEndARefusedDocumentKeepsTheProgramThere) {
  Gather(1);
  user_.printer.fails = true;
  Leave({Answer::Yes, Answer::Print});
  EXPECT_EQ(user_.LastBox().text, kText);
  EXPECT_FALSE(user_.program.EndRequested());
  EXPECT_FALSE(user_.printer.open.empty());
  Leave({Answer::Yes, Answer::Drop});
  EXPECT_TRUE(user_.program.EndRequested());
  EXPECT_TRUE(user_.printer.jobs.empty());
}

TEST_F(Printing, AtTheEndReportsAreKeptBesideTheLog) {
  Gather(1);
  Leave({Answer::Yes, Answer::Keep});
  ASSERT_EQ(user_.printer.written.size(), 1U);
  const std::string name = user_.Record().Name;
  EXPECT_EQ(user_.printer.written[0].first, name.substr(0, name.find('.')) + " reports.pdf");
  EXPECT_THAT(user_.LastBox().advice, HasSubstr(user_.printer.written[0].first));
  EXPECT_TRUE(user_.program.EndRequested());
}

TEST_F(Printing, AtTheEndReportsThatCannotBeKeptKeepTheProgramThere) {
  Gather(1);
  user_.printer.writes = false;
  Leave({Answer::Yes, Answer::Keep});
  EXPECT_THAT(user_.LastBox().text, HasSubstr("They are still there"));
  EXPECT_FALSE(user_.program.EndRequested());
  EXPECT_FALSE(user_.printer.open.empty());
}

TEST_F(Printing, AtTheEndReportsThatCannotStandBesideTheLogMayStandElsewhere) {
  Gather(1);
  const std::string name = user_.Record().Name;
  user_.printer.refused = name.substr(0, name.find('.'));
  user_.dialog.answers = {"elsewhere.pdf"};
  Leave({Answer::Yes, Answer::Keep});
  ASSERT_EQ(user_.printer.written.size(), 1U);
  EXPECT_EQ(user_.printer.written[0].first, "elsewhere.pdf");
  EXPECT_TRUE(user_.program.EndRequested());
  EXPECT_TRUE(user_.printer.open.empty());
}

TEST_F(Printing, AtTheCloseOfTheWindowTheReportsAreAskedForToo) {
  Gather(1);
  user_.box.answers = {Answer::Ok, Answer::Cancel};
  EXPECT_FALSE(user_.program.MayUnload());
  user_.box.answers = {Answer::Ok, Answer::Print};
  EXPECT_TRUE(user_.program.MayUnload());
  EXPECT_EQ(user_.printer.jobs.size(), 1U);
}

TEST_F(Printing, AtAnEndWithoutQuestionsTheReportsAreKept) {
  Gather(1);
  user_.program.EndUnasked();
  EXPECT_EQ(user_.printer.written.size(), 1U);
  EXPECT_TRUE(user_.box.shown.empty());
}

TEST_F(Printing, AtAnEndWithoutQuestionsReportsThatCannotStandBesideTheLogStandInTheHomeFolder) {
  TempFolder home;
  const char* before = std::getenv("HOME");
  const std::string kept = before ? before : "";
  ::setenv("HOME", home.Path("").c_str(), 1);
  Gather(1);
  const std::string name = user_.Record().Name;
  user_.printer.refused = name.substr(0, name.find('.'));
  user_.program.EndUnasked();
  ::setenv("HOME", kept.c_str(), 1);
  ASSERT_EQ(user_.printer.written.size(), 1U);
  EXPECT_TRUE(std::filesystem::equivalent(
      std::filesystem::path(user_.printer.written[0].first).parent_path(), home.Path(".")));
  EXPECT_TRUE(user_.printer.open.empty());
}

// The trial of a printer's font.

class FontTrial : public testing::Test {
 protected:
  FontTrial() { user_.Click("MenuPrinterFont"); }
  ProgramSession user_;
};

TEST_F(FontTrial, BeginsWithArialWhereThePrinterHasIt) {
  EXPECT_EQ(user_.Shown().name, "frmPrintkeu");
  EXPECT_EQ(user_.Text("CmbFonts"), "Arial");
  EXPECT_THAT(user_.At("CmbFonts").items, ElementsAre("Arial", "Courier"));
  EXPECT_EQ(user_.Text("TxbCorps"), "12");
  EXPECT_EQ(user_.Text("TxbBrief"), "The quick brown fox measures 0.123 mg/m3");
  EXPECT_EQ(user_.At("TxbBrief").font, (screen::Font{"Arial", 12}));
}

TEST(FontTrialWithoutArial, BeginsWithTheFirstFont) {
  ProgramSession user;
  user.printer.fonts = {"Courier", "Dutch"};
  user.Click("MenuPrinterFont");
  EXPECT_EQ(user.Text("CmbFonts"), "Courier");
}

// The recording printer's letters are half as wide as high: 40 of 6 points by 12 points.
TEST_F(FontTrial, MeasuresPaperAndText) {
  EXPECT_EQ(user_.Text("LblInfo"),
            "Papierformaat in cm (b x h):21.00 cm  x 29.70cm\r"
            "deze regel neemt (b x h):8.47 cm x 0.42 cm");
}

TEST_F(FontTrial, MeasuresAnewAfterEachChange) {
  user_.Type("TxbBrief", "ten letter");
  EXPECT_THAT(user_.Text("LblInfo"), HasSubstr("(b x h):2.12 cm x 0.42 cm"));
  user_.Type("TxbCorps", "24");
  EXPECT_THAT(user_.Text("LblInfo"), HasSubstr("(b x h):4.23 cm x 0.85 cm"));
  user_.Pick("CmbFonts", "Courier");
  EXPECT_EQ(user_.At("TxbBrief").font, (screen::Font{"Courier", 24}));
}

TEST_F(FontTrial, KeepsItsSizeWhileNoneIsTyped) {
  for (const char* text : {"", "x", "0", "-3", "1e9"}) {
    user_.Type("TxbCorps", text);
    EXPECT_EQ(user_.At("TxbBrief").font->points, 12) << text;
  }
  user_.Type("TxbCorps", "7,5");
  EXPECT_EQ(user_.At("TxbBrief").font->points, 7.5);
}

TEST_F(FontTrial, PrintsItsTextInItsFontAsAJobOfItsOwn) {
  user_.Type("TxbCorps", "24");
  EXPECT_EQ(user_.Text("CmdAfdrukken"), "Afdrukken");
  user_.Click("CmdAfdrukken");
  ASSERT_EQ(user_.printer.jobs.size(), 1U);
  const auto& items = user_.printer.jobs[0].pages.at(0).Items();
  ASSERT_EQ(items.size(), 1U);
  const auto& text = std::get<drawing::DrawnText>(items[0]);
  EXPECT_EQ(text.text, "The quick brown fox measures 0.123 mg/m3");
  EXPECT_EQ(text.style.family, "Arial");
  EXPECT_EQ(text.style.size, 24);
}

TEST_F(FontTrial, LeadsBackToTheStartScreen) {
  user_.Click("Menuclose");
  EXPECT_EQ(user_.Shown().name, "BasisForm");
}

}  // namespace
