#pragma once

#include <optional>
#include <string>

#include "base/date_time.h"
#include "plots/density.h"
#include "session/exposure_session.h"

// What the density picture shows.
namespace PlotWBas {

// Whose numbers it shows: the population's alone, or those of a test or of an upper confidence
// limit of the mean besides.
enum class PictureOf { Population, Leidel, Wilks, En689, MeanExact, MeanApproximate };

// The numbers that the picture shows, and nothing else that it could take.
struct PictureNumbers {
  PictureOf of = PictureOf::Population;
  std::string Name;
  std::string Unit;
  int SigDigits = 3;
  double GM = 0;
  double GSD = 0;
  // Those below are shown of a test and of the mean only.
  double AMu = 0;                  // of the mean
  double U = 0;                    // of a test: the percentile of its upper limit
  double D = 0;                    // the confidence
  double upperLimit = 0;           // UTL, or UCL in the unit of the outcomes
  std::optional<double> limit;     // OELV
  std::optional<double> exceeded;  // A(C>H) or A(AM>H), in percent
};

// Of the record, by the screen that the picture was called from: CurrentTab holds that screen's
// caption. AMu must be in the record. Changes nothing.
PictureNumbers NumbersOf(const ExposureSession& s);

// The axis of the relative concentrations.
struct DensityExtent {
  double xStart = 0;
  double xEnd = 0;
  const char* endText = "";
};

// The tests and the mean show the limit and their own upper limit; the others 1.5 GM GSD.
// Domain: GM > 0, GSD > 1.
DensityExtent ExtentOf(const PictureNumbers& numbers);

// The window number, from the manual.
const char* DensityWindow(PictureOf of);

DensityData DensityOf(const PictureNumbers& numbers, const base::DateTime& time);

}  // namespace PlotWBas
