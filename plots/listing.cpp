#include "plots/listing.h"

#include "base/fault.h"
#include "plots/regression_line.h"
#include "session/global_bas.h"
#include "stats/estimators.h"

namespace PlotWBas {
namespace {

// Lines of a name and a value.
class Listing {
 public:
  explicit Listing(std::string lineEnd) : lineEnd_(std::move(lineEnd)) {}
  void Add(const char* name, const std::string& value) { text_ += name + value + lineEnd_; }
  void Add(const char* name, double value) { Add(name, GlobalBAS::Str(value)); }
  const std::string& Text() const { return text_; }

 private:
  std::string lineEnd_;
  std::string text_;
};

void AddAxes(Listing& list, const Paper& paper, double R1, const LineEnds& line) {
  const Frame& f = paper.Edges();
  const screen::Point low = paper.At(paper.Lowest(), -R1);
  const screen::Point high = paper.At(paper.Highest(), R1);
  list.Add("XasStart ", f.XasStart);
  list.Add("XasLinks C(1)", low.x);
  list.Add("ScaleX ", paper.ScaleWidth());
  list.Add("Regressie XasLinks ", line.lower.x);
  list.Add("Regressie XasRechts", line.upper.x);
  list.Add("XasEinde C(M)", high.x);
  list.Add("YasBot ", f.YasBot);
  list.Add("YasLaag C(1)", low.y);
  list.Add("ScaleY ", paper.ScaleHeight());
  list.Add("Regressie YasHoog", line.upper.y);
  list.Add("Regressie YasLaag", line.lower.y);
  list.Add("YasHoog C(M)", high.y);
  list.Add("YasTop ", f.YasTop);
}

void AddEnd(Listing& list, const char* name, const std::string& Transformation, double y) {
  if (const auto outcome = OutcomeAtEnd(Transformation, y)) list.Add(name, *outcome);
}

// The statistics of all outcomes, whatever the range.
void AddSample(Listing& list, const ExposureSession& s) {
  ExposureSession sample = s;
  sample.DetecOn = false;
  sample.RegressionOn = false;
  sample.NInRange = static_cast<std::int16_t>(SampleCount(s));
  DegreesOfFreedom(sample);
  LogMoments(sample, sample.GM, sample.GSD);
  StatFWinBAS::LinearMoments(sample);
  list.Add("Sample GM ", sample.GM);
  list.Add("Sample GSD ", sample.GSD);
  list.Add("Sample x ", sample.XM);
  list.Add("Sample s ", sample.SDlin);
}

}  // namespace

std::string DevelopmentListing(const Paper& paper, const PlotData& data,
                               const analysis::Regression& fit, const LimitMark& LOQ,
                               const LimitMark& URR) {
  Listing list(data.s.CR);
  list.Add("Transformation ", data.Transformation);
  list.Add("CTransf(1) ", paper.Lowest());
  list.Add("CTransf(M) ", paper.Highest());
  AddAxes(list, paper, data.RankitTable[1], fit.line ? RegressionEnds(paper, fit) : LineEnds{});
  list.Add("DetecOnderGrens ", data.s.LOQ);
  list.Add("DetecBovenGrens ", data.s.URR);
  list.Add("x-as positie LOQ lijn ", LOQ.place);
  list.Add("x-as positie URR lijn ", URR.place);
  if (fit.line) {
    AddEnd(list, "C_begin_regressie_lijn  ", data.Transformation, fit.yLow);
    AddEnd(list, "C_einde_regressie_lijn  ", data.Transformation, fit.yHigh);
  }
  AddSample(list, data.s);
  return list.Text();
}

void PutListing(Labels& labels, const Paper& paper, const std::string& listing) {
  const Frame& f = paper.Edges();
  const screen::TextStyle style =
      Style(paper.ScaleWidth(), paper.ScaleHeight(), 6, screen::Across::Left, screen::Down::Top);
  labels.push_back({"LblOntwikkel", listing, {f.XasStart + 120, f.YasTop}, style});
}

}  // namespace PlotWBas
