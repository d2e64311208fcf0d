#include "plots/picture_words.h"

#include "catalog/own_texts.h"
#include "session/global_bas.h"

namespace PlotWBas {
namespace {

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    const bool blank = c == '\r' || c == '\n' || c == ' ';
    if (blank && (line.empty() || line.back() == ' ')) continue;
    line += blank ? ' ' : c;
  }
  return GlobalBAS::Trim(line);
}

}  // namespace

std::string PictureWords(const ExposureSession& s, const std::string& headline,
                         const std::string& fit) {
  if (s.noEstimates) return OnOneLine(headline + " " + fit);
  return OnOneLine(OwnText(Own::PictureSpoken, {headline, GlobalBAS::ShownTrimmed(s, s.GM), s.Unit,
                                                GlobalBAS::ShownTrimmed(s, s.GSD), fit}));
}

}  // namespace PlotWBas
