#pragma once

#include <string>

#include "session/exposure_session.h"

// The checks of a detection range: which outcomes C(1) to C(M), ascending, lie within LOQ to URR.
// Whatever road a limit or an edit takes, it comes through here.

// The complaint of a check; without text when the value stands as entered.
struct LimitComplaint {
  std::string MsgText;
  std::string MsgTitle;
};

// The ends that stand in for a limit which nobody stated, as parts of the lowest and the highest
// outcome.
inline constexpr double kBelowLowest = 0.95;
inline constexpr double kAboveHighest = 1.05;

// Those ends. Domain: a series with outcomes 1 to M, otherwise a subscript fault.
double DefaultLOQ(const Given& given);
double DefaultURR(const Given& given);

// C(i); an index outside 1 to M means the nearer end, never the median in C(0).
double NearestOutcome(const Given& given, int i);

// Takes `t` as the limit of quantification, in the unit of the series. Sets FirstInRange; with
// DetecOn also NInRange, LOQStated (it is not the default) and LOQ, which is `t` or the value that
// takes its place when `t` lies beyond the outcomes or would leave fewer than three of them. An
// outcome equal to the limit falls below the range. Domain: every t. With DetecOn a series that
// lacks outcomes 1 to M is a subscript fault; an index that a rule forms outside 1 to M means the
// nearer end; with M below 3 the rule of three is silent.
LimitComplaint ControleOndergrens(Given& given, double t);

// The same, with the same domain, for the upper end of the range: LastInRange and URR. An outcome
// equal to the limit falls above the range.
LimitComplaint ControleBovengrens(Given& given, double t);

// Both limits anew, after the series has changed under them. A limit that nobody stated follows the
// series.
LimitComplaint RecheckRange(Given& given);

// Counts the outcomes within FirstInRange to LastInRange into NInRange. With fewer than two, the
// text says so, and the end that lies outside the series goes back to its default; NInRange keeps
// the count that was found.
std::string ControleDetectieBereik(Given& given);

// The same on a whole record, with the complaint in its MsgText and MsgTitle.
void ControleOndergrens(ExposureSession& s, double t);
void ControleBovengrens(ExposureSession& s, double t);
void ControleDetectieBereik(ExposureSession& s, double t);
