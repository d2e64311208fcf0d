#pragma once

#include <string>

#include "session/exposure_session.h"

namespace PlotWBas {

// What a picture shows, in a sentence for who does not see it: `headline`, the estimates that it
// stands for, and `fit`, what else it tells of them. Line ends within the texts become blanks.
std::string PictureWords(const ExposureSession& s, const std::string& headline,
                         const std::string& fit);

}  // namespace PlotWBas
