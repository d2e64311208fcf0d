#include "tools/accuracy/page.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace accuracy {
namespace {

constexpr const char* kHead = R"(# Accuracy

How good each routine is. Written by `valkorin-accuracy`; a test measures every figure again and fails when one has grown by more than a quarter, and when this page is not what the recorded figures give. To renew both:

```
tools/build release valkorin-accuracy && build/release/bin/valkorin-accuracy
```

Two truths. The *error against truth* is that against the mathematical value, reckoned in arbitrary precision or, by other methods than the program's, in 64 bits of mantissa: it tells how exactly the routine does what its formula says. The *error against the steps* is that against the method's own steps, carried out independently in doubles: it tells whether the method is the one that is meant. How well the formula does what its name says is another matter, below.

The error against truth is the largest that a search found: all rows of the tables in `tests/data/`, hundreds of thousands of places all over the stated domain, on the borders between methods and on both sides of them, and steps of every size from the worst of these places. The test searches again, more briefly, from places of its own and from those that are named here. Where a domain is "the reference series" it is the rows of their table and no more. The error against the steps is the largest over its table. A figure is relative (r), absolute (a), or relative where the truth is above 1 and absolute below (m); it is rounded up, and behind it stands the input that gave it. A dash stands where there is no such table.

An area is an upper tail, P(X > x), and a deviate is that of an upper tail, whatever the sign; only `NoncentralTUpper` gives the lower area, in spite of its name. A domain "to x" begins where that of the row above ends. Degrees of freedom are whole numbers, to 1999 and in a second sample to 29999 where nothing else is said.

## Routines

| routine | domain | method and source | | error against truth | at | error against the steps | at |
|---|---|---|---|---|---|---|---|
)";

const std::string kPerformance = R"(
## What the formulas are worth

A formula that is carried out to the last digit may still not do what its name says. Here samples are drawn, the routines judge them, and what they are right or wrong about is counted: the bias of an estimate, the cover of a limit, the size of a test. *Promised* is what the name or the question on the screen promises, *found* what came out, with its standard error; "exact" is without chance, by quadrature over all samples or from one series. All samples are lognormal. The figures are renewed by the same tool; a test draws other samples, fewer of them, and fails where they differ by more than four standard errors.

What to know from it:

- Jahr's limit is approximate: with a GSD of 2.5 and ten outcomes its "95 %" lies above the mean nine times in ten, and less often the larger the GSD. Land's keeps its promise.
- A Leidel limit is the sample's own quantile: half of such limits lie too low. A Wilks limit has 95 % of the population below it on average, not with a confidence. EN 689's keeps its confidence of 70 %.
- Shapiro's test for censored samples is made for one end. With both ends cut off it hardly ever rejects, and its probabilities above 5 % are too high also with one.
- For a sample of 3 the test gives a probability below 0, whatever the outcomes: it can't be used.
- `GMUnbiased` is not free of bias for few outcomes and a large GSD, and may then be negative.
- A detection range makes the GSD of all outcomes too large as long as no regression has replaced it.
- `FinneyMeanMMSE` is biased by intent: it has the smallest mean square error.

| routine | what | case | promised | found | standard error |
|---|---|---|---|---|---|
)";

constexpr const char* kPeculiar = R"(
## What is as it is

Some steps are fixed although a more exact one is known, because results must stay comparable with those that users have in their files. What each costs, looked for in the same way:

| where | what is done | | cost | at |
|---|---|---|---|---|
)";

const Recorded& RecordOf(const Entry& entry, const Records& records) {
  const auto found = records.find(Key(entry));
  if (found == records.end()) throw std::runtime_error("no recorded figure of " + Key(entry));
  return found->second;
}

std::string Cells(bool measured, const Figure& figure) {
  if (!measured) return " — | |";
  return " " + FigureText(figure.error) + " | " + (figure.error == 0 ? "" : figure.where) + " |";
}

bool HasTruth(const Entry& entry) {
  return !entry.truth.table.empty() || !entry.search.axes.empty();
}

std::string MeasureCell(const Entry& entry) {
  if (entry.measure == Measure::Mixed) return " m |";
  return entry.measure == Measure::Relative ? " r |" : " a |";
}

std::string FixedText(double value, int decimals) {
  char text[64];
  const auto end =
      std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals);
  std::string fixed(text, end.ptr);
  // No minus before a number that has been rounded to 0.
  if (fixed.find_first_of("123456789") == std::string::npos && fixed[0] == '-') fixed.erase(0, 1);
  return fixed;
}

int DecimalsOf(const Found& found) {
  if (found.error == 0) return 3;
  return std::max(0, 1 - static_cast<int>(std::floor(std::log10(found.error))));
}

const Found& FoundOf(const Performance& row, const Simulations& simulations) {
  const auto found = simulations.find(Key(row));
  if (found == simulations.end()) throw std::runtime_error("no recorded simulation of " + Key(row));
  return found->second;
}

std::string PerformanceRows(const Simulations& simulations) {
  std::string rows;
  for (const Performance& row : Performances()) {
    const Found& found = FoundOf(row, simulations);
    rows += "| `" + row.routine + "` | " + row.what + " | " + row.where + " | " +
            (row.promised.empty() ? "—" : row.promised) + " | " + FoundText(found) + " | " +
            ErrorText(found) + " |\n";
  }
  return rows;
}

}  // namespace

std::string FoundText(const Found& found) { return FixedText(found.value, DecimalsOf(found)); }

std::string ErrorText(const Found& found) {
  return found.error == 0 ? "exact" : FixedText(found.error, DecimalsOf(found));
}

std::string Page(const Records& records, const Simulations& simulations) {
  std::string page = kHead;
  for (const Entry& entry : Routines()) {
    const Recorded& recorded = RecordOf(entry, records);
    page += "| `" + entry.routine + "` | " + entry.domain + " | " + entry.method + " |" +
            MeasureCell(entry) + Cells(HasTruth(entry), recorded.truth) +
            Cells(!entry.steps.table.empty(), recorded.steps) + "\n";
  }
  page += kPerformance + PerformanceRows(simulations) + kPeculiar;
  for (const Entry& entry : Peculiarities()) {
    page += "| `" + entry.routine + "`, " + entry.domain + " | " + entry.method + " |" +
            MeasureCell(entry) + Cells(true, RecordOf(entry, records).truth) + "\n";
  }
  return page;
}

}  // namespace accuracy
