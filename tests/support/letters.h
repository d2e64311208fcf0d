#pragma once

#include <stdexcept>
#include <string>

#include "session/choices.h"

// The letters by which the tables name the closed choices of a record.
namespace support {

inline DataMode ModeOf(const std::string& letters) {
  if (letters.empty()) return DataMode::None;
  if (letters == "R") return DataMode::Raw;
  if (letters == "D") return DataMode::Statistics;
  throw std::invalid_argument("no mode " + letters);
}

inline Extrapolation TagOf(const std::string& letters) {
  if (letters.empty()) return Extrapolation::None;
  if (letters == "Ap") return Extrapolation::Jahr;
  if (letters == "Ex") return Extrapolation::Land;
  if (letters == "Le") return Extrapolation::Leidel;
  if (letters == "Tu") return Extrapolation::En689;
  if (letters == "Wi") return Extrapolation::Wilks;
  throw std::invalid_argument("no test " + letters);
}

inline ReferenceKind KindOf(const std::string& letters) {
  if (letters.empty()) return ReferenceKind::None;
  if (letters == "S") return ReferenceKind::Sample;
  if (letters == "P") return ReferenceKind::Population;
  throw std::invalid_argument("no reference " + letters);
}

inline VarianceChoice ChoiceOf(const std::string& letters) {
  if (letters.empty()) return VarianceChoice::None;
  if (letters == "Y") return VarianceChoice::Pooled;
  if (letters == "N") return VarianceChoice::Separate;
  if (letters == "P") return VarianceChoice::PooledByProbability;
  if (letters == "A") return VarianceChoice::SeparateByProbability;
  throw std::invalid_argument("no choice " + letters);
}

}  // namespace support
