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

constexpr double kBeside = 150;     // from the frame to what stands beside its ticks
constexpr double kBesideBar = 340;  // the same where a scroll bar may lie above the frame
constexpr double kTitleFoot = 60;   // from the frame's foot to that of the title of its axis
constexpr double kMargin = 150;     // from the edge of the surface
constexpr std::array<std::string_view, 4> kOfOutcomes = {"LblC1", "LblMedian", "LblCm",
                                                         "LblCBegin"};

bool OfOutcome(const Label& label) {
  return std::ranges::find(kOfOutcomes, label.name) != kOfOutcomes.end();
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
  void PutOutcome(const char* name, const std::string& text, double CTransf);
  void PutPercentage(const char* name, const std::string& text, double z, Across across);

  Labels& labels_;
  const Paper& paper_;
  const PlotData& data_;
  const Frame& f_;
};

void Writer::PutTitles() {
  const std::string outcomes = OutcomesTitle(data_.s, data_.Transformation);
  const std::string scores = ScoresTitle(data_.s);
  const drawing::TextStyle vertical = StyleOf(8.5, Across::Right, Down::Bottom);
  // The label of the highest mark of the axis lies between.
  Put("LblYasTop", paper_.OutcomesUp() ? outcomes : scores,
      {f_.XasStart - (paper_.OutcomesUp() ? kBeside : kBesideBar),
       f_.YasTop - 1.2 * RowHeight(vertical)},
      vertical);
  // In the corner under the axis, or above its end, as the number of lines allows.
  if (paper_.OutcomesUp())
    Put("LblXasEinde", scores, {paper_.ScaleWidth() - kMargin, f_.YasBot + kBeside},
        StyleOf(8.5, Across::Right, Down::Top));
  else
    Put("LblXasEinde", outcomes, {f_.XasEinde + kBeside, f_.YasBot + kTitleFoot},
        StyleOf(8.5, Across::Left, Down::Bottom));
}

void Writer::PutOutcome(const char* name, const std::string& text, double CTransf) {
  const double place = paper_.OutcomePlace(CTransf);
  if (paper_.OutcomesUp())
    Put(name, text, {f_.XasStart - kBeside, place}, StyleOf(8.5, Across::Right, Down::Middle));
  else
    Put(name, text, {place, f_.YasBot + kBeside}, StyleOf(8.5, Across::Centre, Down::Top));
}

// The reciprocal turns the order round: the lowest outcome then has the highest place.
void Writer::PutOutcomes() {
  const ExposureSession& s = data_.s;
  const auto M = static_cast<std::size_t>(SampleCount(s));
  const bool reversed = data_.Transformation.starts_with("1/x");
  PutOutcome("LblC1", "C(1)=" + GlobalBAS::Shown(s, s.C[1]), s.LnC[reversed ? M : 1]);
  PutOutcome(
      "LblCm",
      "C(" + GlobalBAS::GeneralText(static_cast<double>(M)) + ")=" + GlobalBAS::Shown(s, s.C[M]),
      s.LnC[reversed ? 1 : M]);
  if (M % 2 == 1)
    PutOutcome("LblMedian", LoadResString(1716) + " " + GlobalBAS::ShownTrimmed(s, s.C[0]),
               s.LnC[M / 2 + 1]);
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

std::string HeadlineText(const ExposureSession& s, const std::string& Transformation) {
  return LoadResString(1701) + s.CR + LoadResString(1702) + GlobalBAS::Trim(s.Name) + s.CR +
         LoadResString(1703) + (Transformation == "Unt" ? std::string() : Transformation) +
         LoadResString(1704);
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
  const std::string headline = HeadlineText(data.s, data.Transformation);
  drawing::TextStyle style = Style(width, height, 11, Across::Centre, Down::Top);
  style.bold = true;
  style.size = FittingSize(headline, 0.6 * width, style);
  labels.push_back({"LblKoptekst", headline, {0.5 * width, kMargin}, style});
  labels.push_back({"LblRightTxt",
                    HeaderText(data.s, data.time),
                    {width - kMargin, kMargin},
                    Style(width, height, 8, Across::Right, Down::Top)});
}

void PutPaperLabels(Labels& labels, const Paper& paper, const PlotData& data) {
  PutHeadlines(labels, paper.ScaleWidth(), paper.ScaleHeight(), data);
  Writer writer(labels, paper, data);
  writer.PutTitles();
  writer.PutOutcomes();
  writer.PutPercentages();
}

void ArrangeOutcomeLabels(Labels& labels, const Paper& paper) {
  const bool up = paper.OutcomesUp();
  double row = 0;
  std::vector<Stand> wanted;
  for (const Label& label : labels)
    if (OfOutcome(label)) {
      row = RowHeight(label.style);
      const double size = up ? row : TextWidth(label.text, label.style) + 80;
      wanted.push_back({up ? label.at.y : label.at.x, size / 2});
    }
  const Frame& f = paper.Edges();
  const double low = up ? f.YasTop - kBeside : f.XasStart - 6 * kBeside;
  const double high = up ? f.YasBot + 1.25 * row : f.XasEinde + 6 * kBeside;
  const std::vector<double> centres = SpreadOut(wanted, low, high);
  auto centre = centres.begin();
  for (Label& label : labels)
    if (OfOutcome(label)) (up ? label.at.y : label.at.x) = *centre++;
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
