#include "compliance/verdicts.h"

#include <algorithm>
#include <iterator>

#include "base/fault.h"
#include "compliance/compliance_tests.h"
#include "session/global_bas.h"

namespace compliance {
namespace {

std::string TextIn(const ExposureSession& s, const ShownNumber& number) {
  if (!number.text.empty()) return GlobalBAS::Trim(number.text);
  return number.value ? GlobalBAS::ShownTrimmed(s, number.value) : "";
}

std::string WordsOf(const TestResult& result) {
  if (!result.compliance) return result.reason;
  return OwnText(*result.compliance ? Own::Complies : Own::CompliesNot);
}

Verdict VerdictOf(const ComplianceTest& test, const ExposureSession& s) {
  Verdict verdict;
  verdict.test = TextOf(test.buttonCaption);
  try {
    const TestResult result = test.run(BasisOf(s), {});
    const std::string percentage = TextIn(s, result.PercEx);
    if (!percentage.empty()) verdict.estimate = OwnText(test.estimate, {percentage});
    verdict.limit = TextIn(s, result.UTL);
    if (!verdict.limit.empty() && !s.Unit.empty()) verdict.limit += " " + s.Unit;
    verdict.compliance = result.compliance;
    verdict.words = WordsOf(result);
  } catch (const RunTimeError& error) {
    verdict.words = OwnText(Own::NotComputed, {error.what()});
  }
  return verdict;
}

// How far the verdicts agree; a test may decide nothing.
Own Agreement(const std::vector<Verdict>& rows) {
  std::vector<bool> decided;
  for (const Verdict& row : rows)
    if (row.compliance) decided.push_back(*row.compliance);
  if (decided.empty()) return Own::VerdictsNone;
  if (decided.size() == 1) return Own::VerdictsOne;
  if (std::ranges::count(decided, decided.front()) < std::ssize(decided))
    return Own::VerdictsDisagree;
  return decided.size() < rows.size() ? Own::VerdictsSomeAgree : Own::VerdictsAgree;
}

std::string Why(const std::vector<Verdict>& rows, const ExposureSession& s) {
  std::string why = OwnText(Agreement(rows));
  const std::string df = GlobalBAS::ShownTrimmed(s, s.df);
  const std::string D = GlobalBAS::ShownTrimmed(s, s.D);
  std::string separator;
  for (const ComplianceTest* test : ComplianceTests()) {
    why += separator + OwnText(test->manner, {df, D});
    separator = "; ";
  }
  return why + ".";
}

}  // namespace

Verdicts VerdictsOf(const ExposureSession& s) {
  Verdicts verdicts;
  for (const ComplianceTest* test : ComplianceTests()) verdicts.rows.push_back(VerdictOf(*test, s));
  verdicts.why = Why(verdicts.rows, s);
  return verdicts;
}

}  // namespace compliance
