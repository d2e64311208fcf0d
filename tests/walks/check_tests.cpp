// The compliance screen: boxes, verdict, and the frame of the smallest sample.
#include <algorithm>

#include "catalog/catalog.h"
#include "drive/text.h"
#include "tests/walks/checks.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

constexpr const char* kRule = "tests";
constexpr const char* kBoxes[] = {"PercExTxB(0)", "PercExTxB(1)", "PercExTxB(2)"};

struct Verdict {
  const char* tag;
  const char* button;
  const char* menu;
  int complies;
  int complies_not;
};

constexpr Verdict kVerdicts[] = {{"Le", "LeidelCmb", "MenuLeid", 2307, 2308},
                                 {"Wi", "WilksCmb", "MenuWilks", 2309, 2310},
                                 {"Tu", "TuggleCmb", "MenuTugg", 2305, 2306}};

class TestsCheck {
 public:
  explicit TestsCheck(const View& view) : view_(view), now_(view.Now()) {
    for (std::size_t i = 0; i < 3; ++i)
      shown_[i] = view.page.Visible(kBoxes[i]) ? view.page.Text(kBoxes[i]) : std::string();
    verdictShown_ = view.page.Visible("ComplianceLbl") && !Blank(view.page.Text("ComplianceLbl"));
  }

  void Run() {
    CheckHeader();
    const auto* verdict = std::ranges::find(kVerdicts, now_.TestTag,
                                            [](const Verdict& v) { return std::string(v.tag); });
    const bool none = verdict == std::end(kVerdicts);
    const bool empty = std::ranges::all_of(shown_, BlankOrUnknown);
    if (none || empty) {
      if (none && !empty) view_.Wrong(kRule, "numbers stand there without a test");
      if (verdictShown_) view_.Wrong(kRule, "a verdict stands there without a number");
      if (!none && Pressed(*verdict)) CheckAnswered();
      return;
    }
    expected_ = ExpectedTest(now_.TestTag, view_.Estimates(), view_.Given());
    if (!expected_) return;
    CheckFirst();
    CheckLimit();
    CheckThird();
    CheckCaption();
    CheckVerdict(*verdict);
    if (Pressed(*verdict)) Remember();
  }

 private:
  void CheckHeader() const {
    view_.Number(kRule, "SampSizLbl", now_.M);
    view_.Number(kRule, "DegreesLbl", now_.df);
    view_.Number(kRule, "GMLbl", now_.GM);
    view_.Number(kRule, "GSDLbl", now_.GSD);
    if (now_.OELV && !ShowsAtSomeWidth(view_.page.Text("VkrValLbl(1)"), *now_.OELV))
      view_.Wrong(kRule, "the limit value shown is " + view_.page.Text("VkrValLbl(1)"));
  }

  bool Pressed(const Verdict& verdict) const {
    return view_.scene.Clicked(verdict.button) || view_.scene.Chosen(verdict.menu);
  }

  // A pressed button gives numbers, unless the calculation has none to give.
  void CheckAnswered() const {
    if (ExpectedTest(now_.TestTag, view_.Estimates(), view_.Given()))
      view_.Wrong(kRule, "the test was pressed and shows nothing");
  }

  std::array<double, 6> Basis() const {
    const Sample sample = view_.Estimates();
    const Limits limits = view_.Given();
    return {sample.GM, sample.GSD, sample.df, limits.OELV, limits.U, limits.D};
  }

  void Wrong(std::size_t box, double right) const {
    const bool width = ShowsAtSomeWidth(shown_[box], right);
    view_.Wrong(width ? "width" : kRule, std::string(kBoxes[box]) + " shows " +
                                             drive::Quoted(shown_[box]) + " under " + now_.TestTag +
                                             ", right is " + Word(right));
  }

  void CheckFirst() const {
    if (Blank(shown_[0])) return;
    const bool nothing = expected_->first == 0 && shown_[0].find('<') != std::string::npos;
    if (!nothing && !Shows(shown_[0], expected_->first, now_.SigDigits)) Wrong(0, expected_->first);
  }

  // A limit of before may stand where this test gives none, of the same data and with a sentence.
  void CheckLimit() const {
    if (Blank(shown_[1]) || shown_[1].find_first_of("<>") != std::string::npos) return;
    if (expected_->limit) {
      if (!Shows(shown_[1], *expected_->limit, now_.SigDigits)) Wrong(1, *expected_->limit);
      return;
    }
    const auto& last = view_.model.lastLimit;
    if (!NumberIn(shown_[1])) return;
    const bool same = last && last->basis == Basis() && Shows(shown_[1], last->UTL, now_.SigDigits);
    if (!same || Blank(view_.page.Text("StatusLbl"))) Wrong(1, last ? last->UTL : 0);
  }

  void CheckThird() const {
    if (now_.TestTag != "Tu" || Blank(shown_[2])) return;
    const std::string fixed(drive::TrimBlanks(expected_->thirdText));
    if (!fixed.empty() && shown_[2].find(fixed) != std::string::npos) return;
    if (!expected_->third || !Shows(shown_[2], *expected_->third, now_.SigDigits))
      Wrong(2, expected_->third.value_or(-1));
  }

  // The caption names the coverage that the limit is of.
  void CheckCaption() const {
    if (!ShowsAtSomeWidth(view_.page.Text("PercExLbl(1)"), now_.U))
      view_.Wrong(kRule, "the limit stands under " + view_.page.Text("PercExLbl(1)"));
  }

  // None where nothing decides.
  std::optional<bool> Complies() const {
    if (now_.TestTag != "Tu") return expected_->first < 5;
    if (now_.df <= 4) return std::nullopt;
    const auto& last = view_.model.lastLimit;
    if (expected_->limit) return *expected_->limit < *now_.OELV;
    if (last && last->basis == Basis()) return last->UTL < *now_.OELV;
    return std::nullopt;
  }

  void CheckVerdict(const Verdict& verdict) const {
    const auto complies = Complies();
    if (!complies || !verdictShown_) {
      const bool may = !complies || !expected_->limit;
      if (verdictShown_) view_.Wrong("verdict", "a verdict where nothing decides");
      if (!verdictShown_ && !may) view_.Wrong("verdict", "numbers without their verdict");
      return;
    }
    const drive::Target label = view_.page.Stage().Find("ComplianceLbl");
    const std::string& words = LoadResString(*complies ? verdict.complies : verdict.complies_not);
    if (label.control->text.find(words) == std::string::npos)
      view_.Wrong("verdict", drive::Quoted(label.control->text) + " for " + Word(expected_->first));
    const auto colour = label.control->colour;
    const bool green = colour && colour->green > colour->red;
    if (green != *complies) view_.Wrong("verdict", "its colour is the other one's");
    const auto sign = *complies ? screen::Sign::Tick : screen::Sign::Cross;
    if (label.control->sign != sign) view_.Wrong("verdict", "its sign is the other one's");
  }

  void Remember() const {
    if (expected_->limit) view_.model.lastLimit = LastLimit{Basis(), *expected_->limit};
  }

  const View& view_;
  const Seen& now_;
  std::array<std::string, 3> shown_;
  bool verdictShown_ = false;
  std::optional<TestExpected> expected_;
};

// The table shows what each test gives, whichever was pressed.
void CheckVerdictRow(const View& view, std::size_t row) {
  const Seen& now = view.Now();
  const std::string tag = kVerdicts[row].tag;
  const std::string number = "(" + Word(static_cast<double>(row)) + ")";
  const auto expected = ExpectedTest(tag, view.Estimates(), view.Given());
  if (!expected) return;
  auto shows = [&](const char* cell, const std::optional<double>& value) {
    const std::string& text = view.page.Text(cell + number);
    const bool bound = text.find('<') != std::string::npos || text.find('>') != std::string::npos;
    if (Blank(text) || bound || !value) return;
    if (!Shows(text.substr(0, text.find(' ')), *value, now.SigDigits))
      view.Wrong("verdicts",
                 cell + number + " shows " + drive::Quoted(text) + ", right is " + Word(*value));
  };
  shows("VerdictPercLbl", expected->first);
  shows("VerdictUTLLbl", expected->limit);
  std::optional<bool> complies = expected->first < 5;
  if (tag == "Tu")
    complies =
        expected->limit && now.df > 4 ? std::optional(*expected->limit < *now.OELV) : std::nullopt;
  const std::string wanted = complies ? (*complies ? "Compliance" : "Non-compliance") : "";
  const std::string& words = view.page.Text("VerdictLbl" + number);
  const bool decided = words == "Compliance" || words == "Non-compliance";
  if (decided ? words != wanted : complies.has_value() && words.find("Not computed") != 0)
    view.Wrong("verdicts", "VerdictLbl" + number + " says " + drive::Quoted(words));
}

void CheckVerdicts(const View& view) {
  if (!view.page.Visible("VerdictsFrm")) return view.Wrong("verdicts", "the table is not there");
  for (std::size_t row = 0; row < std::size(kVerdicts); ++row) CheckVerdictRow(view, row);
}

void CheckBox(const View& view, const char* box, const std::optional<double>& value) {
  const std::string& text = view.page.Text(box);
  const auto shown = NumberIn(text);
  if (!shown) return;
  if (!value)
    view.Wrong("sample-size", std::string(box) + " shows " + drive::Quoted(text));
  else
    view.Must("sample-size", box, *value);
}

void CheckSampleSize(const View& view) {
  const Seen& now = view.Now();
  if (!view.page.Visible("SampsizeFrm") || Blank(view.page.Text("PercExTxB(3)"))) return;
  const auto expected =
      ExpectedSampleSize(view.Estimates(), view.Given(), now.M, now.RegressionOn, now.NInRange);
  if (!expected) return;
  if (expected->coverageTooLow) view.Wrong("sample-size", "a sample size with U up to 50");
  CheckBox(view, "DegrMinTxb", expected->df);
  CheckBox(view, "PercExTxB(3)", expected->PercEx);
  CheckBox(view, "SampMinTxB", expected->Mopt);
}

}  // namespace

void CheckTests(const View& view) {
  if (!view.model.Known()) return;
  TestsCheck(view).Run();
  CheckVerdicts(view);
  CheckSampleSize(view);
}

}  // namespace walks
