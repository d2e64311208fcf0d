#include "plots/listing.h"

#include "base/fault.h"
#include "plots/annex_e.h"
#include "session/global_bas.h"
#include "session/moments.h"
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

void AddAxes(Listing& list, const ListedPlaces& at) {
  list.Add("XasStart ", at.frame.XasStart);
  list.Add("XasLinks C(1)", at.lowest.x);
  list.Add("ScaleX ", at.width);
  list.Add("Regressie XasLinks ", at.line.lower.x);
  list.Add("Regressie XasRechts", at.line.upper.x);
  list.Add("XasEinde C(M)", at.highest.x);
  list.Add("YasBot ", at.frame.YasBot);
  list.Add("YasLaag C(1)", at.lowest.y);
  list.Add("ScaleY ", at.height);
  list.Add("Regressie YasHoog", at.line.upper.y);
  list.Add("Regressie YasLaag", at.line.lower.y);
  list.Add("YasHoog C(M)", at.highest.y);
  list.Add("YasTop ", at.frame.YasTop);
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

ListedPlaces PlacesOf(const Paper& paper, const PlotData& data, const analysis::Regression& fit,
                      const LimitMark& LOQ, const LimitMark& URR) {
  const double R1 = data.RankitTable[1];
  return {paper.Edges(),
          paper.ScaleWidth(),
          paper.ScaleHeight(),
          paper.At(paper.Lowest(), -R1),
          paper.At(paper.Highest(), R1),
          LineOf(paper, fit).value_or(LineEnds{}),
          LOQ,
          URR};
}

ListedPlaces PlacesOf(const drawing::DrawSurface& surface, const PlotData& data,
                      const analysis::Regression& fit) {
  const AnnexPaper paper(surface, data);
  const int M = SampleCount(data.s);
  ListedPlaces at;
  at.frame = paper.Edges();
  at.width = surface.ScaleWidth();
  at.height = surface.ScaleHeight();
  at.lowest = {paper.X(paper.Transformed(1)), paper.Y(paper.Position(1))};
  at.highest = {paper.X(paper.Transformed(M)), paper.Y(paper.Position(M))};
  if (!fit.line) return at;
  const AnnexLine line = AnnexLineOf(paper, data, fit);
  at.line = {line.lower, line.upper};
  return at;
}

std::string DevelopmentListing(const ListedPlaces& places, const PlotData& data,
                               const analysis::Regression& fit) {
  const auto M = static_cast<std::size_t>(SampleCount(data.s));
  Listing list(data.s.CR);
  list.Add("Transformation ", data.Transformation);
  list.Add("CTransf(1) ", data.CTransf[1]);
  list.Add("CTransf(M) ", data.CTransf[M]);
  AddAxes(list, places);
  list.Add("DetecOnderGrens ", data.s.LOQ);
  list.Add("DetecBovenGrens ", data.s.URR);
  list.Add("x-as positie LOQ lijn ", places.LOQ.place);
  list.Add("x-as positie URR lijn ", places.URR.place);
  if (fit.line) {
    AddEnd(list, "C_begin_regressie_lijn  ", data.Transformation, fit.yLow);
    AddEnd(list, "C_einde_regressie_lijn  ", data.Transformation, fit.yHigh);
  }
  AddSample(list, data.s);
  return list.Text();
}

void PutListing(Labels& labels, const ListedPlaces& places, const std::string& listing) {
  const drawing::TextStyle style =
      Style(places.width, places.height, 6, drawing::Across::Left, drawing::Down::Top);
  labels.push_back(
      {"LblOntwikkel", listing, {places.frame.XasStart + 120, places.frame.YasTop}, style});
}

}  // namespace PlotWBas
