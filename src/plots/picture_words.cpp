#include "plots/picture_words.h"

#include "catalog/own_texts.h"
#include "session/global_bas.h"
#include "session/series_text.h"

namespace PlotWBas {

std::string PictureWords(const ExposureSession& s, const std::string& headline,
                         const std::string& fit) {
  if (s.noEstimates) return wording::OnOneLine(headline + " " + fit);
  return wording::OnOneLine(
      OwnText(Own::PictureSpoken, {headline, GlobalBAS::ShownTrimmed(s, s.GM), s.Unit,
                                   GlobalBAS::ShownTrimmed(s, s.GSD), fit}));
}

}  // namespace PlotWBas
