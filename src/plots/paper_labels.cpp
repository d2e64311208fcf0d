#include "plots/paper_labels.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "catalog/catalog.h"
#include "session/global_bas.h"
#include "stats/normal.h"

namespace PlotWBas {
namespace {

using drawing::Across;
using drawing::Down;
using drawing::Point;

constexpr double kBesideBar = 340;  // the same where a scroll bar may lie above the frame
constexpr double kTitleFoot = 60;   // from the frame's foot to that of the title of its axis
constexpr double kMargin = 150;     // from the edge of the surface
constexpr double kGap = 60;         // between two things that must not touch
constexpr std::array<std::string_view, 4> kOfOutcomes = {"LblC1", "LblMedian", "LblCm",
                                                         "LblCBegin"};

bool OfOutcome(const Label& label) {
  return std::ranges::find(kOfOutcomes, label.name) != kOfOutcomes.end();
}

// Where the room to the left of the frame begins, beside the scroll bars that may lie there.
double BesideBars(const Paper& paper) {
  const BarRoom bar = BarRoomOf(paper.ScaleWidth(), paper.ScaleHeight());
  return bar.left + bar.thickness + kGap;
}

// Puts the labels of one paper.
class Writer {
 public:
  Writer(Labels& labels, const Paper& paper, const PlotData& data)
      : labels_(labels), paper_(paper), data_(data), f_(paper.Edges()) {}

  void PutTitles();
  void PutOutcomes();
  void PutPercentages();

 private:
  drawing::TextStyle StyleOf(double size, Across across, Down down) const {
    return Style(paper_.ScaleWidth(), paper_.ScaleHeight(), size, across, down);
  }
  void Put(const char* name, std::string text, Point at, drawing::TextStyle style) {
    labels_.push_back({name, std::move(text), at, style});
  }
  void PutOutcome(const char* name, const std::string& text, double CTransf) {
    labels_.push_back(OutcomeLabel(paper_, name, text, CTransf));
  }
  void PutVerticalTitle(const std::string& text);
  void PutPercentage(const char* name, const std::string& text, double z, Across across);

  Labels& labels_;
  const Paper& paper_;
  const PlotData& data_;
  const Frame& f_;
};

// The label of the highest mark of the axis lies below the vertical one.
void Writer::PutVerticalTitle(const std::string& text) {
  const drawing::TextStyle style = StyleOf(8.5, Across::Right, Down::Bottom);
  const double right = f_.XasStart - (paper_.OutcomesUp() ? kBeside : kBesideBar);
  const Fitted fitted = FittedNumbers(text, right - BesideBars(paper_), style);
  Put("LblYasTop", fitted.text, {right, f_.YasTop - 1.2 * RowHeight(style)}, fitted.style);
}

// In the corner under the axis, or above its end, as the number of lines allows.
void Writer::PutTitles() {
  const std::string outcomes = OutcomesTitle(data_.s, data_.Transformation);
  const std::string scores = ScoresTitle(data_.s);
  PutVerticalTitle(paper_.OutcomesUp() ? outcomes : scores);
  if (paper_.OutcomesUp()) {
    Put("LblXasEinde", scores, {paper_.ScaleWidth() - kMargin, f_.YasBot + kBeside},
        StyleOf(8.5, Across::Right, Down::Top));
    return;
  }
  const Fitted fitted = FittedNumbers(outcomes, RightRoom(paper_.ScaleWidth()),
                                      StyleOf(8.5, Across::Left, Down::Bottom));
  Put("LblXasEinde", fitted.text, {f_.XasEinde + kBeside, f_.YasBot + kTitleFoot}, fitted.style);
}

// The reciprocal turns the order round: the lowest outcome then has the highest place.
void Writer::PutOutcomes() {
  const ExposureSession& s = data_.s;
  const auto M = static_cast<std::size_t>(SampleCount(s));
  const bool reversed = data_.Transformation.starts_with("1/x");
  PutOutcome("LblC1", "C(1)=" + GlobalBAS::Shown(s, s.C[1]), data_.CTransf[reversed ? M : 1]);
  PutOutcome(
      "LblCm",
      "C(" + GlobalBAS::GeneralText(static_cast<double>(M)) + ")=" + GlobalBAS::Shown(s, s.C[M]),
      data_.CTransf[reversed ? 1 : M]);
  if (M % 2 == 1)
    PutOutcome("LblMedian", LoadResString(1716) + " " + GlobalBAS::ShownTrimmed(s, s.C[0]),
               data_.CTransf[M / 2 + 1]);
}

void Writer::PutPercentage(const char* name, const std::string& text, double z, Across across) {
  const double place = paper_.ScorePlace(z);
  if (!paper_.OutcomesUp()) {
    Put(name, text, {f_.XasStart - kBeside, place}, StyleOf(8.5, Across::Right, Down::Middle));
    return;
  }
  // The outer two lean inward, out of the way of what stands beside the frame.
  const double lean = across == Across::Left ? -60 : across == Across::Right ? 60 : 0;
  Put(name, text, {place + lean, f_.YasBot + kBeside}, StyleOf(8.5, across, Down::Top));
}

void Writer::PutPercentages() {
  const double R1 = data_.RankitTable[1];
  const double P = 100 * StatFWinBAS::NormalUpper(R1);
  PutPercentage("LblR1", GlobalBAS::FormatNumber(P, "#0.0#") + "%", -R1, Across::Left);
  PutPercentage("LblRMedian", "50.0 %", 0, Across::Centre);
  PutPercentage("LblRM_2", GlobalBAS::FormatNumber(100 - P, "#0.0#") + "%", R1, Across::Right);
}

}  // namespace

std::string HeadlineText(const ExposureSession& s, const std::string& Transformation,
                         const std::string& name) {
  return LoadResString(1701) + s.CR + LoadResString(1702) + name + s.CR + LoadResString(1703) +
         (Transformation == "Unt" ? std::string() : Transformation) + LoadResString(1704);
}

std::string HeaderText(const ExposureSession& s, const base::DateTime& time) {
  constexpr int kProduct = 17;
  return GlobalBAS::Trim(LoadResString(kProduct)) + s.CR + "date: " + base::DateText(time) + s.CR +
         "time : " + base::TimeText(time) + s.CR + "window_17a";
}

std::string OutcomesTitle(const ExposureSession& s, const std::string& Transformation) {
  return LoadResString(1705) + s.CR + (s.Unit.empty() ? LoadResString(1706) : "in " + s.Unit) +
         s.CR + LoadResString(1707) + s.CR + (Transformation == "Unt" ? "Linear" : Transformation) +
         LoadResString(1708);
}

std::string ScoresTitle(const ExposureSession& s) {
  return LoadResString(1709) + s.CR + LoadResString(1710) + s.CR + LoadResString(1711);
}

void PutHeadlines(Labels& labels, double width, double height, const PlotData& data) {
  const auto headline = [&](const std::string& name) {
    return HeadlineText(data.s, data.Transformation, name);
  };
  const std::string name = GlobalBAS::Trim(data.s.Name);
  drawing::TextStyle style = Style(width, height, 11, Across::Centre, Down::Top);
  style.bold = true;
  const double room = BarRoomOf(width, height).top - kGap - kMargin;
  const double wanted = TextHeight(headline(name), style);
  if (wanted > room) style.size = std::max(kSmallest, style.size * room / wanted);
  const Fitted fitted = FittedName(headline, name, 0.6 * width, style);
  labels.push_back({"LblKoptekst", fitted.text, {0.5 * width, kMargin}, fitted.style});
  labels.push_back({"LblRightTxt",
                    HeaderText(data.s, data.time),
                    {width - kMargin, kMargin},
                    Style(width, height, 8, Across::Right, Down::Top)});
}

double RightRoom(double width) { return 0.2 * width - kBeside - kGap; }

Label OutcomeLabel(const Paper& paper, const char* name, const std::string& text, double CTransf) {
  const Frame& f = paper.Edges();
  const double W = paper.ScaleWidth();
  const double H = paper.ScaleHeight();
  const double place = paper.OutcomePlace(CTransf);
  if (!paper.OutcomesUp())
    return {name, text, {place, f.YasBot + kBeside}, Style(W, H, 8.5, Across::Centre, Down::Top)};
  const double room = f.XasStart - kBeside - BesideBars(paper);
  const Fitted fitted = FittedNumbers(text, room, Style(W, H, 8.5, Across::Right, Down::Middle));
  return {name, fitted.text, {f.XasStart - kBeside, place}, fitted.style};
}

void PutPaperLabels(Labels& labels, const Paper& paper, const PlotData& data) {
  PutHeadlines(labels, paper.ScaleWidth(), paper.ScaleHeight(), data);
  Writer writer(labels, paper, data);
  writer.PutTitles();
  writer.PutOutcomes();
  writer.PutPercentages();
}

namespace {

constexpr double kBetween = 80;  // two labels below the frame

double TotalWidth(const std::vector<Label*>& labels) {
  double total = 0;
  for (const Label* label : labels) total += TextWidth(label->text, label->style) + kBetween;
  return total;
}

// All alike, so that they stand beside each other: smaller letters, then shorter numbers.
void FitBeside(const std::vector<Label*>& labels, double room) {
  const auto shrink = [&] {
    const double total = TotalWidth(labels);
    if (total <= room) return true;
    for (Label* label : labels)
      label->style.size = std::max(kSmallest, label->style.size * room / total);
    return TotalWidth(labels) <= room;
  };
  if (shrink()) return;
  for (Label* label : labels) label->text = RoundedNumbers(label->text);
  shrink();
}

}  // namespace

void ArrangeOutcomeLabels(Labels& labels, const Paper& paper) {
  const bool up = paper.OutcomesUp();
  const Frame& f = paper.Edges();
  std::vector<Label*> outcomes;
  for (Label& label : labels)
    if (OfOutcome(label)) outcomes.push_back(&label);
  double low = f.XasStart - 6 * kBeside;
  double high = f.XasEinde + 6 * kBeside;
  if (!up) FitBeside(outcomes, high - low);
  std::vector<Stand> wanted;
  for (const Label* label : outcomes) {
    const double size = up ? TextHeight(label->text, label->style)
                           : TextWidth(label->text, label->style) + kBetween;
    wanted.push_back({up ? label->at.y : label->at.x, size / 2});
  }
  if (up) {
    low = f.YasTop - kBeside;
    high = f.YasBot + 1.25 * RowHeight(outcomes.front()->style);
  }
  const std::vector<double> centres = SpreadOut(wanted, low, high);
  for (std::size_t i = 0; i < outcomes.size(); ++i)
    (up ? outcomes[i]->at.y : outcomes[i]->at.x) = centres[i];
}

Point AboveAxisTitle(const Frame& frame, double width, double height) {
  const double row = RowHeight(Style(width, height, 8.5, Across::Left, Down::Bottom));
  return {frame.XasEinde + kBeside, frame.YasBot + kTitleFoot - 4.6 * row};
}

Point RightColumn(const Paper& paper) {
  const Frame& f = paper.Edges();
  if (!paper.OutcomesUp()) return AboveAxisTitle(f, paper.ScaleWidth(), paper.ScaleHeight());
  return {f.XasEinde + kBeside, f.YasBot + 120};
}

}  // namespace PlotWBas
