#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "catalog/text_id.h"
#include "session/results.h"

// The compliance tests of the population's upper percentile against the limit value: one row a
// test. The screen, the menus, the picture and the session scripts walk this table; a new test is a
// pair of files with its formula, its words and its row.
namespace compliance {

// The box that shows a search's candidate.
enum class TestBox { ToleranceLimit, Fraction };

// What a test may ask for besides its basis.
struct TestRun {
  std::optional<double> standingUTL;  // of the test before, of the same data and limits
  // What is found before a long search begins, with the boxes' texts until it does.
  std::function<void(const TestResult& first)> found;
  std::function<void(TestBox box, double value)> progress;
};

// The captions, tips and the comment of a test's layout.
struct TestWords {
  std::string percEx;
  std::string percExTip;
  std::string limit;
  std::string limitTip;
  std::string fraction;  // empty: the test finds none
  std::string comment;
};

struct ComplianceTest {
  Extrapolation tag;
  std::string_view letters;  // in session scripts
  std::string_view menu;     // its menu item and its button
  std::string_view button;
  std::string_view routine;  // in session scripts
  TextId menuCaption;
  TextId buttonCaption;
  std::optional<TextId> buttonTip;
  TextId heading;
  TextId complies;
  TextId fails;
  Own estimate;             // what {0}, its percentage, is
  Own manner;               // what it allows for: {0} degrees of freedom, {1} D
  std::string_view window;  // number of the window that explains it
  bool offersSampleSize;
  bool needsMajority;  // a coverage up to 50 percent is told
  TestResult (*run)(const TestBasis& basis, const TestRun& how);
  TestWords (*words)(const ExposureSession& s);
  // The words about its limit in the picture.
  std::string (*pictureWords)(const ExposureSession& s, double UTL);
  // What its percentage means, below it in the picture; empty where it is the exceedance.
  std::string (*pictureNote)(const ExposureSession& s);
};

// In the order of the buttons.
std::span<const ComplianceTest* const> ComplianceTests();
// Null for what is no test of the upper percentile.
const ComplianceTest* FindTest(Extrapolation tag);

// The standardised distance of the limit from the mean on the log scale, ln(OELV / GM) / ln(GSD).
// A missing OELV or a GSD of 1 is a fault.
double StandardisedDistance(const TestBasis& basis);

// Title (catalogue row) of the message on a coverage of 50 percent or less, Own::CoverageTooLow.
inline constexpr int kCoverageTitle = 2120;
bool CoverageTooLow(const Limits& limits);

}  // namespace compliance
