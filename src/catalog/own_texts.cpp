#include "catalog/own_texts.h"

namespace {

struct Row {
  Own id;
  const char* text;
};

constexpr Row kRows[] = {
    {Own::LeftOut,
     "The {0} highest outcomes are left out ({1}); sample size {2} brings them back."},
    {Own::LeftOutOne, "The highest outcome is left out ({1}); sample size {2} brings it back."},
    {Own::AllEqual, "All outcomes are equal: there is no spread to evaluate."},
    {Own::SpreadTooLarge, "The outcomes lie too far apart: a GSD of 10000 or more is no estimate."},
    {Own::NoDegreeOfFreedom,
     "Too few outcomes lie within the detection range: no degree of freedom is left, so there are "
     "no tests, no mean and no comparison."},
    {Own::EstimatesOfAll, "GM, GSD and df are those of all {0} outcomes."},
    {Own::EstimatesByRange,
     "GM and GSD are of all {0} outcomes, with the {1} degrees of freedom that the detection range "
     "leaves."},
    {Own::EstimatesOfRegression,
     "GM and GSD are estimated by the line through the {0} outcomes within the range."},
    {Own::LineBeyondNumbers,
     "The estimates of this line are beyond what can be calculated with: GM and GSD stay those of "
     "all outcomes."},
    {Own::LimitReset, "The limit value {0} was out of range; {1} now stands."},
    {Own::NoPicture, "These numbers are too far apart to be drawn."},
    {Own::PictureNeedsTest, "The test on show did not compute every number of the picture."},
    {Own::StaleTest, "Statistics or limits have changed since this test: press its button again."},
    {Own::ResultsDiffer,
     "Results can differ because each test judges another estimate: Leidel the best guess of the "
     "exceedance, Wilks the same with the sample's own uncertainty averaged in, EN 689 a limit "
     "that "
     "holds with {0} % confidence."},
};

}  // namespace

const char* OwnText(Own id) {
  for (const Row& row : kRows)
    if (row.id == id) return row.text;
  return "";
}

std::string OwnText(Own id, std::initializer_list<std::string> arguments) {
  std::string text = OwnText(id);
  char mark[] = "{0}";
  for (const std::string& argument : arguments) {
    for (std::size_t at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + argument.size()))
      text.replace(at, 3, argument);
    ++mark[1];
  }
  return text;
}
