#pragma once

#include "session/exposure_session.h"

// The checks of a detection range: which outcomes C(1) to C(M), ascending, lie within LOQ to URR.
namespace analysis {

// Takes `t` as the limit of quantification, in the unit of the series. Sets MsgTitle, MsgText
// (empty when the value stands as entered) and FirstInRange; with DetecOn also NInRange and LOQ,
// which is `t` or the value that takes its place when `t` lies beyond the outcomes or would leave
// fewer than three of them. An outcome equal to the limit falls below the range.
// Domain: every t. With DetecOn a record whose C lacks outcomes 1 to M is a subscript fault; an
// index that a rule forms outside 1 to M means the nearer end; with M below 3 the rule of three is
// silent.
void ControleOndergrens(ExposureSession& s, double t);

// The same, with the same domain, for the upper end of the range: LastInRange and URR. An outcome
// equal to the limit falls above the range.
void ControleBovengrens(ExposureSession& s, double t);

// Counts the outcomes within FirstInRange to LastInRange into NInRange. With fewer than two,
// MsgText says so, and the end that lies outside the series goes back to its default; NInRange
// keeps the count that was found. `t` is the caller's own copy of the limit.
void ControleDetectieBereik(ExposureSession& s, double t);

}  // namespace analysis
