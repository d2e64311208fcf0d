#include "tools/accuracy/page.h"

#include <stdexcept>

namespace accuracy {
namespace {

constexpr const char* kHead = R"(# Accuracy

How good each routine is. Written by `valkorin-accuracy`; a test measures every figure again and fails when one has grown by more than a quarter, and when this page is not what the recorded figures give. To renew both:

```
tools/build release valkorin-accuracy && build/release/bin/valkorin-accuracy
```

Two truths. The *error against truth* is that against the mathematical value, reckoned in arbitrary precision or by quadrature: it tells how good the method is. The *error against the steps* is that against the method's own steps, carried out independently in doubles: it tells whether the method is the one that is meant. A figure is the largest of all rows of the tables in `tests/data/`, relative (r) or absolute (a), rounded up, and behind it stands the input that gave it. The rows lie on both sides of each border between methods, and where a scan of a dense grid found the error at its largest. A dash stands where there is no such table.

An area is an upper tail, P(X > x), and a deviate is that of an upper tail, whatever the sign; only `NoncentralTUpper` gives the lower area, in spite of its name. A domain "to x" begins where that of the row above ends.

## Routines

| routine | domain | method and source | | error against truth | at | error against the steps | at |
|---|---|---|---|---|---|---|---|
)";

constexpr const char* kPeculiar = R"(
## What is as it is

Some steps are fixed although a more exact one is known, because results must stay comparable with those that users have in their files. What each costs, measured on the same tables:

| where | what is done | | cost | at |
|---|---|---|---|---|
)";

const Recorded& RecordOf(const Entry& entry, const Records& records) {
  const auto found = records.find(Key(entry));
  if (found == records.end()) throw std::runtime_error("no recorded figure of " + Key(entry));
  return found->second;
}

std::string Cells(const Source& source, const Figure& figure) {
  if (source.table.empty()) return " — | |";
  return " " + FigureText(figure.error) + " | " + (figure.error == 0 ? "" : figure.where) + " |";
}

std::string MeasureCell(const Entry& entry) {
  return entry.measure == Measure::Relative ? " r |" : " a |";
}

}  // namespace

std::string Page(const Records& records) {
  std::string page = kHead;
  for (const Entry& entry : Routines()) {
    const Recorded& recorded = RecordOf(entry, records);
    page += "| `" + entry.routine + "` | " + entry.domain + " | " + entry.method + " |" +
            MeasureCell(entry) + Cells(entry.truth, recorded.truth) +
            Cells(entry.steps, recorded.steps) + "\n";
  }
  page += kPeculiar;
  for (const Entry& entry : Peculiarities()) {
    page += "| `" + entry.routine + "`, " + entry.domain + " | " + entry.method + " |" +
            MeasureCell(entry) + Cells(entry.truth, RecordOf(entry, records).truth) + "\n";
  }
  return page;
}

}  // namespace accuracy
