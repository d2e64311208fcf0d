#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/accuracy/truth/real.h"

// The largest error of a routine over a whole domain: looked for, not only read off a table.
namespace accuracy {

using truth::Real;

enum class Measure {
  Relative,  // as a part of the truth
  Absolute,
  Mixed  // as a part of the truth, or of 1 where the truth is smaller
};

struct Figure {
  double error = 0;
  std::string where;
  int rows = 0;
};

double ErrorOf(double result, Real truth, Measure measure);

// Values for the axes of a search, in their order.
using Point = std::vector<double>;

// One argument of a routine, from `from` to `to`.
struct Axis {
  std::string name;
  double from = 0;
  double to = 0;
  double step = 0;                       // of whole numbers; 0 for a real one
  std::vector<double> marks = {};        // borders between methods: tried, and what lies beside
  std::vector<std::string> labels = {};  // of a choice, shown in place of 0, 1, ...
};

struct Search {
  std::vector<Axis> axes;
  std::function<double(const Point&)> call;
  std::function<Real(const Point&)> truth;
  std::function<bool(const Point&)> takes = {};  // the whole box when empty
  std::function<bool(Real)> counts = {};         // by the truth; always when empty
  int tries = 20000;                             // of one search in a test
  bool listed = false;  // the domain is the rows of its table and no more: nothing to look for
};

// How hard to look: `tries` of the search times `times`. The same seed finds the same.
struct Effort {
  double times = 1;
  unsigned seed = 1;
};

// Half of the tries fall anywhere, on the borders and beside them in plenty; the other half are
// steps of all sizes from the worst places found so far, or from `known`, places of an earlier
// search. A call that faults counts as an infinite error.
Figure Searched(const Search& search, Measure measure, const Effort& effort,
                const std::vector<std::string>& known = {});

// "df 9, t 1.5", each number in its shortest form, and back; empty when the text is of other axes.
std::string PlaceText(const Search& search, const Point& point);
Point PlaceOf(const Search& search, const std::string& text);

}  // namespace accuracy
