#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

namespace UCLBAS {

// What of the progress window has just changed and wants to be seen at once.
enum class LandSign {
  Window,       // the whole window; it is shown if it was hidden
  SecantLabel,  // only the label that names the step, though the boxes have changed too
  ConFactTxb,   // the box of the factor
  Limit         // not the window: the limit, on the calling screen
};

// The progress of a search, as the progress window shows it, and what it has cost.
struct LandWatch {
  std::array<double, 2> InitTxb{};                   // ends of the initial interval
  std::array<std::optional<double>, 2> SecantTxb{};  // the bracket, the better end first
  std::optional<double> ConFactTxb;                  // Land's factor
  std::string Secant;                                // the step that was taken
  double UCL = 0;                                    // the limit, natural logarithm
  long Evaluations = 0;                              // of LandProbability
  // May be empty. It is called with everything above brought up to date.
  std::function<void(const LandWatch&, LandSign)> Report;

  void Tell(LandSign sign) const {
    if (Report) Report(*this, sign);
  }
};

}  // namespace UCLBAS
