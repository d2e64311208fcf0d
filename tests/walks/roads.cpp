#include "tests/walks/roads.h"

#include <functional>

#include "drive/text.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

using Names = std::vector<std::string>;

const std::map<std::string, Names> kNumbers = {
    {"BasisForm", {"DegreesLbl"}},
    {"DataCtrlForm", {"C1Lbl", "CnLbl", "SampSzLbl", "DegreesLbl"}},
    {"DescriptForm",
     {"GMTxB", "GMuTxB", "GSDTxB", "AMmlTxb", "AMuTxb", "AMmvTxb", "AmlinTxb", "SDUTxb", "SDlinTxb",
      "DegreesTxb", "DegreesLbl(5)", "DegreesLbl(6)", "DegreesLbl(9)", "DegreesLbl(11)", "GMLbl",
      "GSDLbl", "SampSizTxB"}},
    {"PlotForm", {"LblDescrip", "LblShapiro", "LblC1", "LblCm", "LblMedian"}},
    {"PercExForm",
     {"SampSizLbl", "DegreesLbl", "GMLbl", "GSDLbl", "VkrValLbl(1)", "PercExTxB(0)", "PercExTxB(1)",
      "PercExTxB(2)", "ComplianceLbl", "DegrMinTxb", "PercExTxB(3)", "SampMinTxB", "IntroLbl",
      "GMLbl(0)", "GSDLbl(0)"}},
    {"UCLForm",
     {"SampSizLbl", "DegreesLbl", "GMuLbl(1)", "GSDLbl(1)", "AMuTxb", "VkrValLbl", "UCLTxB",
      "PercExTxB", "UCLLbl"}},
    {"TwoSampCompForm",
     {"SampSizTxB", "GMTxB", "GSDTxB", "GSDInfTxb", "GMInfTxb", "SampSizTxb3", "GMTxb3",
      "GSDTxb3"}},
    {"VerdelingForm", {"GMLbl", "GSDPercLbl", "UTLLbl", "UCLLbl", "VkrValLbl", "AMuLbl"}}};

// Inputs as words of a key.
class Inputs {
 public:
  Inputs& operator<<(const std::string& word) {
    key_ += word + '|';
    return *this;
  }
  Inputs& operator<<(double value) { return *this << Word(value); }
  const std::string& Key() const { return key_; }

 private:
  std::string key_;
};

std::string SeriesKey(const Model& model) {
  std::string all;
  for (const double value : model.Series()) all += Word(value) + ' ';
  return Word(static_cast<double>(std::hash<std::string>()(all)));
}

std::string KeyOf(const View& view) {
  const Seen& now = view.Now();
  Inputs in;
  in << now.form << now.Mode << now.M << (now.ModifyMode ? "modified" : "") << now.SigDigits;
  if (now.Mode == "R" && !now.ModifyMode) in << SeriesKey(view.model);
  if (now.Mode == "D" || now.ModifyMode) in << now.GM << now.GSD;
  // A refused range tells the count that it was refused for.
  if (now.DetecOn) in << now.LOQ << now.URR << now.FirstInRange << now.LastInRange << now.NInRange;
  for (const Whose whose : view.model.Force()) in << NameOf(whose);
  in << (now.OELV ? Word(*now.OELV) : "none") << now.U << now.D << now.Unit << now.RefPeriod
     << now.Duration << now.TestTag;
  if (now.form == "PlotForm") in << now.scale << now.PlotKind;
  if (now.form == "VerdelingForm") in << now.CurrentTab;
  if (now.form == "TwoSampCompForm")
    in << now.CompareMode << now.GSDChoice << now.GM2 << now.GSD2 << now.M2;
  return in.Key();
}

// A limit of before may stand there by the rules, and a verdict on it.
bool OfBefore(const View& view, const std::string& control) {
  if (view.Now().form != "PercExForm") return false;
  const auto expected = ExpectedTest(view.Now().TestTag, view.Estimates(), view.Given());
  const bool none = !expected || !expected->limit;
  return none && (control == "PercExTxB(1)" || control == "ComplianceLbl");
}

bool Same(const std::string& form, const std::string& a, const std::string& b) {
  const bool drawn = form == "PlotForm" || form == "VerdelingForm";
  return a == b || (drawn && SameLabel(a, b));
}

}  // namespace

std::vector<Roads::Sight> Roads::SightsOf(const View& view) {
  std::vector<Sight> sights;
  const auto names = kNumbers.find(view.Now().form);
  if (names == kNumbers.end() || !view.model.Known()) return sights;
  const std::string key = KeyOf(view);
  for (const std::string& name : names->second)
    if (view.page.Visible(name) && !Blank(view.page.Text(name)) && !OfBefore(view, name))
      sights.push_back({key, name, view.page.Text(name)});
  return sights;
}

void Roads::Compare(const View& view, const Spot& spot) {
  for (const Sight& sight : SightsOf(view)) {
    const auto [known, fresh] =
        known_.try_emplace(sight.key + sight.control, Shown{sight.text, spot});
    if (fresh || Same(view.Now().form, known->second.text, sight.text)) continue;
    other_ = known->second;
    difference_ = sight;
    view.Wrong("two-roads", sight.control + " shows " + drive::Quoted(sight.text) +
                                ", another road to the same inputs " +
                                drive::Quoted(known->second.text));
    return;
  }
}

}  // namespace walks
