#include "base/fault.h"

namespace fault {
namespace {

const char* Words(FaultKind kind) {
  switch (kind) {
    case FaultKind::Overflow:
      return "overflow";
    case FaultKind::DivisionByZero:
      return "division by zero";
    case FaultKind::InvalidOperation:
      return "invalid operation";
    case FaultKind::Subscript:
      return "subscript out of range";
    case FaultKind::MissingText:
      return "missing text";
    case FaultKind::MissingConstants:
      return "missing constants";
  }
  return "fault";
}

}  // namespace

void Throw(FaultKind kind) { throw RunTimeError(kind, Words(kind)); }

void ThrowNotFinite(double value) {
  Throw(std::isnan(value) ? FaultKind::InvalidOperation : FaultKind::Overflow);
}

}  // namespace fault
