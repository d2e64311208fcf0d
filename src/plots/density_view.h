#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/date_time.h"
#include "plots/density.h"
#include "session/record.h"

// What the density picture shows.
namespace PlotWBas {

// Whose numbers it shows: the population's alone, or those of a test or of an upper confidence
// limit of the mean besides.
enum class PictureOf { Population, Test, Mean };

// The numbers that the picture shows, and the words about them: those of the boxes of the screen
// that it was called from.
struct PictureNumbers {
  PictureOf of = PictureOf::Population;
  std::string_view window;  // number in the manual
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
  std::string explanation;         // the words of the test or method
  std::string note;                // what `exceeded` means where it is no exceedance
};

// Of the record, by the screen that is shown. None where that screen shows a test or a method that
// did not compute every number of its picture, or a series without estimates.
std::optional<PictureNumbers> NumbersOf(const Record& record);

// Of the population alone. Domain: a series with estimates.
PictureNumbers PopulationNumbers(const ExposureSession& s);
// Of a test of the present sample and limits, whichever screen is shown; none where it did not
// compute every number of its picture.
std::optional<PictureNumbers> NumbersOf(const ExposureSession& s, const TestResult& result);

// The axis of the relative concentrations.
struct DensityExtent {
  double xStart = 0;
  double xEnd = 0;
  const char* endText = "";
};

// The tests and the mean show the limit and their own upper limit; the others 1.5 GM GSD.
// Domain: GM > 0, GSD > 1.
DensityExtent ExtentOf(const PictureNumbers& numbers);

// Whether these numbers can be drawn: all places of the picture are finite.
bool Drawable(const PictureNumbers& numbers);

DensityData DensityOf(const PictureNumbers& numbers, const base::DateTime& time);

}  // namespace PlotWBas
