#pragma once

#include "stats/coefficient_status.h"
#include "stats/coefficients.h"

// The inner side of the loader: which constants are there, and whether they are the delivered ones.
namespace StatFWinBAS {

// Notes in `c` which of its blocks hold all their constants.
void NoteComplete(Coefficients& c);

// Whether all constants that a routine reads are those of the delivered files, by the known sums of
// their columns.
bool MainIsDelivered(const Coefficients& c);
bool RoystonIsDelivered(const Coefficients& c);

void StoreStatus(CoefficientFile main, CoefficientFile royston);

}  // namespace StatFWinBAS
