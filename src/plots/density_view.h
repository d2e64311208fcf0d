#pragma once

#include "base/date_time.h"
#include "plots/density.h"
#include "session/exposure_session.h"

// What the density picture shows of the record, by the screen that it was called from: CurrentTab
// holds that screen's caption.
namespace PlotWBas {

// The axis of the relative concentrations.
struct DensityExtent {
  double xStart = 0;
  double xEnd = 0;
  const char* endText = "";
};

// The tests and the mean show the limit and their own upper limit E; the others 1.5 GM GSD.
// Domain: GM > 0, GSD > 1. Changes nothing.
DensityExtent ExtentOf(const ExposureSession& s);

// The window number, from the manual.
const char* DensityWindow(const ExposureSession& s);

// AMu must be in the record. Changes nothing.
DensityData DensityOf(const ExposureSession& s, const base::DateTime& time);

}  // namespace PlotWBas
