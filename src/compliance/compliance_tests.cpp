#include "compliance/compliance_tests.h"

#include <algorithm>
#include <array>

#include "base/fault.h"
#include "compliance/en689.h"
#include "compliance/leidel.h"
#include "compliance/wilks.h"

namespace compliance {

std::span<const ComplianceTest* const> ComplianceTests() {
  static constexpr std::array tests = {&kLeidel, &kWilks, &kEn689};
  return tests;
}

const ComplianceTest* FindTest(Extrapolation tag) {
  const auto tests = ComplianceTests();
  const auto found = std::ranges::find(tests, tag, &ComplianceTest::tag);
  return found == tests.end() ? nullptr : *found;
}

double StandardisedDistance(const TestBasis& basis) {
  if (!basis.OELV) fault::Throw(FaultKind::InvalidOperation);
  return Divide(Log(Divide(*basis.OELV, basis.GM)), Log(basis.GSD));
}

bool CoverageTooLow(const Limits& limits) { return limits.U <= 50; }

}  // namespace compliance
