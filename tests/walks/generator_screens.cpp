// What a user might do on each screen.
#include <algorithm>
#include <string>

#include "drive/record_fields.h"
#include "drive/text.h"
#include "tests/walks/generator.h"

namespace walks {
namespace {

using Texts = std::vector<std::string>;

const Texts kNames = {"weld", "Hall 3", "a", "7up", "", "  ", "press room (2)"};
const Texts kSizes = {"2",  "3",   "4", "5", "6",    "8",    "10",  "12", "20",
                      "40", "2.7", "1", "0", "2001", "2000", "abc", "",   "-3"};
const Texts kMeans = {"1",      "0.3",  "5",       "2.5",   "0.05", "1,7", "30",
                      "0.0002", "9000", "0.00005", "20000", "abc",  "0",   ""};
const Texts kDeviations = {"2", "2.5",   "1.5",    "3.7",  "1.2", "1.05", "2", "3",
                           "8", "1.001", "1.0005", "2000", "abc", "0",    ""};
const Texts kLimitValues = {"1",       "5",     "10",   "0.5", "3",  "2,5", "20", "100",    "0.1",
                            "0.00001", "1e-10", "1e11", "0",   "-1", "abc", "",   "1.234,5"};
const Texts kPercents = {"95",    "90", "99",  "70",   "50",    "50.01", "40", "99.95",
                         "99.99", "75", "100", "0.01", "0.001", "abc",   "",   "97,5"};
const Texts kReferenceSizes = {"2", "5", "12", "15", "30", "30000", "40000", "1", "0", "", "7.5"};
const Texts kUnitTexts = {"mg/m3", "ug/m3", "", "ppm"};
const Texts kDurationTexts = {"8 hours", "15 minutes", "", "1 month"};

}  // namespace

int Generator::RowCount() const {
  return static_cast<const screen::Grid&>(page_.Control("DBGridVkr")).rowCount;
}

std::string Generator::Outcome() {
  static const Texts outcomes = {"1",    "2",     "3",    "0.5",  "0.31", "2,75", "8.25",
                                 "12.5", "0.067", "1.44", "5.12", "40",   "2",    "0.31",
                                 "150",  "1e-3",  "abc",  "",     "0",    "-4",   "1e11"};
  return random_.Pick(outcomes);
}

Step Generator::OpenFile() {
  Step step = Line("menu menuopen");
  if (random_.Chance(94)) step.file = random_.Pick(folder_.Files()).name;
  return step;
}

void Generator::OfferStart(std::vector<Offer>& offers) {
  const bool fresh = !page_.Control("IdentFrame").visible;
  offers.push_back({fresh ? 12 : 4, "menuopen", [this] { return OpenFile(); }});
  Click(offers, fresh ? 4 : 1, "DesOpt");
  Click(offers, 1, "RawOpt");
  OfferIdentification(offers);
  Click(offers, 4, "OriModiCmd");
  Click(offers, 8, "CmdContinu");
}

void Generator::OfferIdentification(std::vector<Offer>& offers) {
  const bool named = !page_.Text("NameTxB").empty();
  Type(offers, named ? 1 : 8, "NameTxB", kNames);
  Type(offers, 4, "SampSizTxB", kSizes);
  Arrows(offers, 4, "SampSize_UpD", "SampSizTxB");
  Type(offers, page_.Text("GMTxB").empty() ? 12 : 4, "GMTxB", kMeans);
  Type(offers, page_.Text("GSDTxB").empty() ? 12 : 4, "GSDTxB", kDeviations);
}

void Generator::OfferRawData(std::vector<Offer>& offers) {
  OfferEdits(offers);
  Click(offers, 4, "DetecChB");
  for (const char* field : {"DetecLTxb", "DetecUTxb"})
    offers.push_back({5, field, [this, field] {
                        const std::string end = page_.Text(random_.Chance(50) ? "C1Lbl" : "CnLbl");
                        const Texts texts = {
                            Outcome(), Outcome(), std::string(drive::TrimBlanks(end)),
                            "1.001",   "6.5",     "0.2"};
                        return Line(LineWith(std::string("type ") + field, random_.Pick(texts)));
                      }});
  Pick(offers, 1, "DimCbo");
  Type(offers, 1, "DimCbo", kUnitTexts);
  offers.push_back({1, "MenuSave", [this] { return SaveSeries(); }});
}

void Generator::OfferEdits(std::vector<Offer>& offers) {
  const auto row = [this](int more) {
    return drive::IntText(1 + random_.Below(std::max(RowCount() + more, 1)));
  };
  const bool incomplete = drive::FieldText(page_.Stage().Session(), "RawIncomplete") == "1";
  offers.push_back({incomplete ? 30 : 5, "DBGridVkr",
                    [this, row] { return Line(LineWith("cell " + row(0), Outcome())); }});
  offers.push_back({3, "DBGridVkr", [this] { return Line(LineWith("addrow", Outcome())); }});
  offers.push_back({4, "DBGridVkr", [this, row] { return Line("delrow " + row(0)); }});
  offers.push_back({3, "DBGridVkr", [this] { return PasteRows(); }});
  offers.push_back({2, "DBGridVkr", [this, row] {
                      return Step{{"select " + row(1) + " " + row(1), "key Delete"}};
                    }});
}

// Mostly numbers; now and then one that is none, or a column of equal ones. Some stand beside
// dates, which are none, or beside their own numbers, where the user says which is which.
Step Generator::PasteRows() {
  const int first = 1 + random_.Below(RowCount() + 1);
  const bool equal = random_.Chance(10);
  const int count = equal ? RowCount() + 1 : 1 + random_.Below(6);
  const bool dated = random_.Chance(15);
  const bool numbered = !dated && random_.Chance(15);
  const bool headed = random_.Chance(20);
  std::string text = headed ? "Who\tResult\n" : "";
  for (int i = 1; i <= count; ++i) {
    if (dated) text += "12-03-2024\t";
    if (numbered) text += drive::IntText(i) + "\t";
    // The first one shows that the column beside the numbers holds outcomes.
    text += equal || (numbered && i == 1) ? "2" : Outcome();
    text += i < count ? "\n" : "";
  }
  Step step{{"row " + drive::IntText(equal ? 1 : first)}};
  if (numbered) step.lines.push_back(random_.Chance(20) ? "choose 1" : "choose 2");
  step.lines.push_back("paste " + drive::Quoted(text));
  return step;
}

void Generator::OfferLimits(std::vector<Offer>& offers) {
  Type(offers, 8, "VkrValTxB", kLimitValues);
  Arrows(offers, 4, "VkrVal_UpD", "VkrValTxB");
  Type(offers, 4, "AlphaTxb", kPercents);
  Arrows(offers, 2, "Alpha_UpD", "AlphaTxb");
  Type(offers, 4, "DeltaTxb", kPercents);
  Arrows(offers, 2, "Delta_UpD", "DeltaTxb");
  Pick(offers, 1, "DimCbo");
  Pick(offers, 1, "RefPerCmb");
  Pick(offers, 1, "DurationCmB");
  Type(offers, 1, "RefPerCmb", kDurationTexts);
  Type(offers, 1, "DurationCmB", kDurationTexts);
}

void Generator::OfferPlot(std::vector<Offer>& offers) {
  for (const char* bar : {"VScLowLimit", "VScUplimit", "HScLowLimit", "HScUplimit"})
    offers.push_back({12, bar, [this, bar] {
                        return Line(std::string("bar ") + bar + " " +
                                    drive::IntText(random_.Below(101)));
                      }});
  for (const char* bar : {"VScLowLimit", "VScUplimit"})
    offers.push_back({3, bar, [this, bar] {
                        std::string line = std::string("drag ") + bar;
                        for (int i = 0; i < 3; ++i)
                          line += " " + drive::IntText(random_.Below(101));
                        return Line(line);
                      }});
  offers.push_back({5, "", [this] {
                      return Line("plotclick 0." + drive::IntText(1 + random_.Below(9)) + " 0." +
                                  drive::IntText(1 + random_.Below(99)));
                    }});
  offers.push_back({6, "MenuLowLim", [this] { return Line("menu MenuLowLim"); }});
  offers.push_back({6, "MenuUpLim", [this] { return Line("menu MenuUpLim"); }});
  offers.push_back(
      {1, "menuSavePicture", [this] { return ToSave("menuSavePicture", "picture.bmp"); }});
}

void Generator::OfferTests(std::vector<Offer>& offers) {
  for (const char* button : {"LeidelCmb", "WilksCmb", "TuggleCmb"}) Click(offers, 6, button);
  Click(offers, 5, "SampSizeCkb");
  offers.push_back({4, "MenuVerd", [this] { return Line("menu MenuVerd"); }});
}

void Generator::OfferMean(std::vector<Offer>& offers) {
  Click(offers, 8, "JahrCmb");
  Click(offers, 1, "LandCmb");
  offers.push_back({6, "MenuVerd", [this] { return Line("menu MenuVerd"); }});
}

void Generator::OfferComparison(std::vector<Offer>& offers) {
  Click(offers, 3, "SampOpt");
  Click(offers, 3, "PopOpt");
  Click(offers, 6, "CalcCmb");
  Click(offers, 2, "EqualOpt");
  Click(offers, 2, "DifferOpt");
  Type(offers, 3, "SampSizTxB2", kReferenceSizes);
  Type(offers, 3, "GMTxB2", kMeans);
  Type(offers, 3, "GSDTxB2", kDeviations);
  Arrows(offers, 2, "SampSiz2_UpD", "SampSizTxB2");
  Arrows(offers, 2, "GM2_UpD", "GMTxB2");
  Arrows(offers, 2, "GSD2_UpD", "GSDTxB2");
}

void Generator::OfferPicture(std::vector<Offer>& offers) {
  offers.push_back({6, "Menuclose", [this] { return Line("menu Menuclose"); }});
  offers.push_back(
      {1, "menuSavePicture", [this] { return ToSave("menuSavePicture", "density.bmp"); }});
}

void Generator::OfferFontTrial(std::vector<Offer>& offers) {
  static const Texts sizes = {"12", "8", "72", "", "abc", "0", "1e9"};
  Type(offers, 4, "TxbCorps", sizes);
  Type(offers, 2, "TxbBrief", kNames);
  Pick(offers, 4, "CmbFonts");
  Click(offers, 2, "CmdAfdrukken");
  offers.push_back({8, "Menuclose", [this] { return MenuStep("Menuclose"); }});
}

}  // namespace walks
