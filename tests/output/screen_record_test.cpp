#include "output/screen_record.h"

#include <algorithm>

#include "tests/output/log_user.h"
#include "tests/support/csv.h"

// The lines of a record, by the tables of their columns. What the screens themselves say in every
// state is compared by the scripts tests/window/records_*.session.
namespace {

using output::Medium;

class Records : public LogUser {
 protected:
  std::string Record(Medium medium = Medium::Log) {
    return output::ScreenRecord(p.Shown(), p.Record(), {2024, 1, 3, 12, 0, 0}, medium);
  }
  void Say(const std::string& control, const std::string& text) { p.At(control).text = text; }
  // The line that holds the mark; empty without one.
  std::string LineWith(char mark) {
    const std::string record = Record();
    const std::size_t at = record.find(mark);
    if (at == std::string::npos) return "";
    const std::size_t begin = record.rfind('\n', at) + 1;
    return record.substr(begin, record.find('\r', at) - begin);
  }
  int ColumnOf(char mark) {
    const std::size_t at = LineWith(mark).find(mark);
    return at == std::string::npos ? 0 : static_cast<int>(at) + 1;
  }
};

struct Marked {
  const char* tab;
  const char* value;
  const char* duration;  // what stands in the unit column of the sample size; null without any
};

const std::pair<const char*, Marked> kMarked[] = {
    {"DataCtrlForm", {"raw", "C1Lbl", nullptr}},
    {"GrenzenForm", {"grenzen", "VkrValTxB", "DurationLbl"}},
    {"TwoSampCompForm", {"Compare", "GMTxB", "RefDurLbl"}},
    {"DescriptForm", {"descript", "GMTxB", "RefDurLbl"}},
    {"PercExForm", {"extrapolation", "GMLbl", nullptr}},
    {"UCLForm", {"mean", "GMuLbl(1)", nullptr}},
};

TEST_F(Records, HaveTheColumnsOfTheirScreen) {
  OpenSeries();
  for (const support::Row& row : support::ReadTable("log_columns.csv")) {
    SCOPED_TRACE(row.Where());
    const auto screen =
        std::ranges::find(kMarked, row.Text("screen"), [](const auto& each) { return each.first; });
    ASSERT_NE(screen, std::end(kMarked));
    const Marked& marked = screen->second;
    p.Tab("basis");
    p.Tab("raw");
    p.Tab(marked.tab);
    ASSERT_EQ(p.Shown().name, row.Text("screen"));
    p.Record().Unit = "#";
    for (screen::Control* control : p.Shown().controls)
      if (control->name.starts_with("DimLbl")) control->text = "#";
    Say(marked.value, "@");
    const std::string line = LineWith('@');
    EXPECT_EQ(ColumnOf('@'), row.Number("value_column"));
    EXPECT_EQ(static_cast<double>(line.find('#') + 1), row.Number("unit_column"));
    if (!marked.duration) continue;
    Say(marked.duration, "~");
    EXPECT_EQ(ColumnOf('~'), row.Number("unit_column_sample_size"));
  }
}

// The texts of the boxes are those of the table; what the screen makes of this series is no matter.
TEST_F(Records, OfTheRawDataStandAsTheTableHasThem) {
  folder_.Write("four.vkr", "7.25\r\n1.5\r\n10\r\n2\r\n");
  p.OpenFile("four.vkr");
  std::string wanted[2];
  for (const support::Row& row : support::ReadTable("log_record.csv"))
    wanted[row.Text("DetecOn") == "1"] += row.Text("text") + "\r\n";
  Say("RangeFrame", "Range of the sample outcome");
  Say("SampSzLbl(0)", "Sample size");
  Say("SampSzLbl", "     4");
  Say("C1Lbl(0)", "Lowest outcome\r\n");
  Say("CnLbl(0)", "&Highest outcome");
  EXPECT_EQ(Record(), wanted[0]);
  p.Click("DetecChB");
  p.Type("DetecLTxb", "2");
  p.Type("DetecUTxb", "10");
  Say("DetecChB", "Detection range");
  Say("DegreesLbl(0)", "Number");
  Say("DegreesLbl", "     2");
  Say("DetcLbl(0)", "LOQ=");
  Say("DetcLbl(1)", "URR=");
  Say("SampSzLbl", "     4");
  EXPECT_EQ(Record(), wanted[1]);
}

// A report leaves the lines of the smallest sample to the log.
TEST_F(Records, OfATestEndBehindTheCommentInAReport) {
  OpenSeries();
  p.Tab("basis");
  p.Tab("raw");
  p.Tab("extrapolation");
  p.Click("WilksCmb");
  Say("SampSizeCkb", "Optimize sample size");
  p.At("SampSizeCkb").ticked = true;
  const std::string log = Record();
  const std::string report = Record(Medium::Report);
  EXPECT_TRUE(log.starts_with(report));
  EXPECT_EQ(log.substr(report.size()).find("Optimize sample size\r\n"), 0U);
}

TEST_F(Records, OfTheMeanEndWithTheConclusionInAReport) {
  OpenSeries();
  p.Tab("basis");
  p.Tab("raw");
  p.Tab("mean");
  p.Click("JahrCmb");
  Say("ConclFrm", "the conclusion");
  const std::string report = Record(Medium::Report);
  EXPECT_TRUE(report.ends_with("the conclusion\r\n"));
  EXPECT_EQ(Record(), report + "\r\n");
}

TEST_F(Records, OfTheDescriptiveStatisticsBeginDifferentlyInAReport) {
  OpenSeries();
  p.Tab("descript");
  Say("IdentFrame", "Identification");
  Say("NameLbl", "Name");
  Say("SampSizLbl", "Sample size");
  Say("SampSizTxB", "    4");
  Say("RefDurLbl", "8 hours");
  EXPECT_TRUE(Record(Medium::Report)
                  .starts_with("Identification\r\n" + std::string(59, ' ') +
                               "date: 3 Jan 2024\r\nName    weld.vkr\r\nSample size" +
                               std::string(48, ' ') + "    4   8 hours\r\n\r\n"));
}

// Who reads the log later must be able to tell why its numbers are others.
TEST_F(Records, SayAtTheirEndThatOtherCoefficientsWereInUse) {
  const std::string said = "The standard coefficient files were not in use.\r\n";
  folder_.Write("VALKORIN.COF", "1\r\n2\r\n");
  {
    support::ProgramSession other;  // finds the file in the current directory
    folder_.Write("weld.vkr", "1\r\n2\r\n4\r\n8\r\n");
    other.OpenFile("weld.vkr");
    const std::string record =
        output::ScreenRecord(other.Shown(), other.Record(), {2024, 1, 3, 12, 0, 0}, Medium::Log);
    EXPECT_TRUE(record.ends_with(said));
  }
  std::filesystem::remove(folder_.Path("VALKORIN.COF"));
  support::ProgramSession();  // loads the delivered files
  OpenSeries();
  EXPECT_EQ(Record().find(said), std::string::npos);
}

}  // namespace
