#include "tests/analysis/fit_data.h"
#include "session/moments.h"

#include <cmath>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/transformations.h"

namespace fit_data {

const std::map<std::string, std::vector<double>>& SortedSeries() {
  static const auto all = [] {
    std::map<std::string, std::vector<double>> series;
    for (const support::Row& row : support::ReadTable("series_sorted.csv"))
      series[row.Text("series")].push_back(row.Number("C"));
    return series;
  }();
  return all;
}

ExposureSession Opened(const std::vector<double>& outcomes) {
  ExposureSession s;
  s.CR = "\r";
  s.Mode = DataMode::Raw;
  s.C = outcomes;
  s.M = static_cast<double>(outcomes.size() - 1);
  s.LnC.assign(outcomes.size(), 0);
  for (std::size_t i = 0; i < outcomes.size(); ++i) s.LnC[i] = std::log(outcomes[i]);
  s.FirstInRange = 1;
  s.LastInRange = static_cast<std::int16_t>(s.M);
  s.NInRange = s.LastInRange;
  s.LOQ = 0.95 * s.C[1];
  s.URR = 1.05 * s.C.back();
  s.SigDigits = 4;
  DegreesOfFreedom(s);
  LogMoments(s, s.GM, s.GSD);
  return s;
}

ExposureSession OpenedPowers(int M) {
  std::vector<double> outcomes = {0};
  for (int i = 1; i <= M; ++i) outcomes.push_back(std::pow(i, 1.1));
  outcomes[0] = outcomes[static_cast<std::size_t>(M) / 2 + 1];
  return Opened(outcomes);
}

void Restrict(ExposureSession& s, int first, int last) {
  s.DetecOn = true;
  s.FirstInRange = static_cast<std::int16_t>(first);
  s.LastInRange = static_cast<std::int16_t>(last);
  s.NInRange = static_cast<std::int16_t>(last - first + 1);
}

std::string NameOfMenu(const std::string& menu) {
  static const std::map<std::string, std::string> names = {
      {"MenuDubLog", "Lg(Lg(x))"}, {"MenuLog", "Log(x)"}, {"MenuSqrt", "Sqr(x)"},
      {"MenuUntransf", "Unt"},     {"MenuSqrd", "x^2"},   {"MenuExp", "Exp(x)"},
      {"MenuRecip", "1/x"}};
  return names.at(menu);
}

analysis::FitState Activated(ExposureSession& s, const std::string& name) {
  analysis::FitState state;
  state.RankitTable = analysis::RankitsForSampleSize(static_cast<int>(s.M));
  if (analysis::FillCTransf(s, name)) state.Transformation = name;
  return state;
}

std::string Unescaped(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '\\' && i + 1 < text.size();
    if (!escape)
      result += text[i];
    else
      result += text[++i] == 'r' ? '\r' : '\n';
  }
  return result;
}

}  // namespace fit_data
