#include "tools/accuracy/search.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <random>

#include "base/fault.h"
#include "tools/accuracy/numbers.h"

namespace accuracy {
namespace {

constexpr double kNoError = -1;
constexpr std::size_t kWorstPlaces = 12;

double OnAxis(const Axis& axis, double value) {
  if (axis.step > 0) value = axis.from + axis.step * std::round((value - axis.from) / axis.step);
  return std::clamp(value, axis.from, axis.to);
}

// Places of one domain with their errors.
class Hunt {
 public:
  Hunt(const Search& search, Measure measure, unsigned seed)
      : search_(search), measure_(measure), random_(seed) {}

  void Try(const Point& point) {
    if (search_.takes && !search_.takes(point)) return;
    const double error = ErrorAt(point);
    if (error == kNoError) return;
    ++tried_;
    Keep({point, error});
  }
  Point Anywhere() {
    Point point;
    for (const Axis& axis : search_.axes) point.push_back(OnAxis(axis, Anywhere(axis)));
    return point;
  }
  // A step from one of the worst places, of any size from the whole range to the last digits.
  Point Beside() {
    if (worst_.empty()) return Anywhere();
    const double share = Share();
    const auto chosen = static_cast<std::size_t>(share * share * double(worst_.size()));
    Point point = worst_[chosen].point;
    const auto moved = static_cast<std::size_t>(Share() * double(point.size() + 1));
    for (std::size_t i = 0; i < point.size(); ++i)
      if (i == moved || moved == point.size()) point[i] = Moved(search_.axes[i], point[i]);
    return point;
  }
  Figure Found() const {
    if (worst_.empty()) return {};
    return {worst_.front().error, PlaceText(search_, worst_.front().point), tried_};
  }

 private:
  struct Place {
    Point point;
    double error;
  };

  double Share() { return double(random_() >> 11) / 9007199254740992.0; }

  double ErrorAt(const Point& point) const {
    const Real truth = search_.truth(point);
    if (!std::isfinite(truth) || (search_.counts && !search_.counts(truth))) return kNoError;
    try {
      return ErrorOf(search_.call(point), truth, measure_);
    } catch (const RunTimeError&) {
      return std::numeric_limits<double>::infinity();
    }
  }

  double Anywhere(const Axis& axis) {
    const double kind = Share();
    if (kind < 0.2) return Marked(axis);
    if (kind < 0.6 || axis.from == axis.to) return axis.from + Share() * (axis.to - axis.from);
    if (axis.from > 0) return axis.from * std::pow(axis.to / axis.from, Share());
    // Through 0 or from it: all orders of size, of either sign.
    const double end = Share() * (axis.to - axis.from) < axis.to ? axis.to : axis.from;
    return end * std::pow(1e-18, Share());
  }
  double Marked(const Axis& axis) {
    const std::size_t ends = 2;
    const auto which = static_cast<std::size_t>(Share() * double(axis.marks.size() + ends));
    const double mark = which == 0 ? axis.from : which == 1 ? axis.to : axis.marks[which - ends];
    const double side = std::floor(3 * Share()) - 1;
    if (axis.step > 0) return mark + side * axis.step;
    if (Share() < 0.5) return side == 0 ? mark : std::nextafter(mark, side * HUGE_VAL);
    return mark + side * (mark == 0 ? 1 : mark) * std::pow(10, -16 * Share());
  }
  double Moved(const Axis& axis, double value) {
    const double size = Share() < 0.5 ? axis.to - axis.from : std::abs(value);
    const double moved = value + size * std::exp2(-53 * Share()) * (Share() < 0.5 ? -1 : 1);
    if (axis.step == 0 || OnAxis(axis, moved) != value) return OnAxis(axis, moved);
    return OnAxis(axis, value + (Share() < 0.5 ? -axis.step : axis.step));
  }

  // The worst places first, of neighbours only the worst.
  void Keep(Place place) {
    for (Place& known : worst_) {
      if (!AreNeighbours(known.point, place.point)) continue;
      if (place.error <= known.error) return;
      known = std::move(place);
      Order();
      return;
    }
    if (worst_.size() == kWorstPlaces) {
      if (place.error <= worst_.back().error) return;
      worst_.pop_back();
    }
    worst_.push_back(std::move(place));
    Order();
  }
  void Order() {
    std::stable_sort(worst_.begin(), worst_.end(),
                     [](const Place& a, const Place& b) { return a.error > b.error; });
  }
  bool AreNeighbours(const Point& a, const Point& b) const {
    for (std::size_t i = 0; i < a.size(); ++i) {
      const double size = std::max(std::abs(a[i]), std::abs(b[i]));
      const double distance = std::abs(a[i] - b[i]);
      if (distance > 0.02 * size && distance > search_.axes[i].step) return false;
    }
    return true;
  }

  const Search& search_;
  Measure measure_;
  std::mt19937_64 random_;
  std::vector<Place> worst_;
  int tried_ = 0;
};

}  // namespace

double ErrorOf(double result, Real truth, Measure measure) {
  if (std::isnan(result)) return std::numeric_limits<double>::infinity();
  const Real error = std::abs(result - truth);
  const Real size = std::abs(truth);
  if (measure == Measure::Absolute || (measure == Measure::Relative && size == 0))
    return static_cast<double>(error);
  if (measure == Measure::Mixed) return static_cast<double>(error / std::max<Real>(1, size));
  return static_cast<double>(error / size);
}

Figure Searched(const Search& search, Measure measure, const Effort& effort,
                const std::vector<std::string>& known) {
  Hunt hunt(search, measure, effort.seed);
  for (const std::string& text : known)
    if (const Point point = PlaceOf(search, text); !point.empty()) hunt.Try(point);
  const int tries = static_cast<int>(search.tries * effort.times);
  for (int i = 0; i < tries; ++i) hunt.Try(i % 2 == 0 ? hunt.Anywhere() : hunt.Beside());
  return hunt.Found();
}

std::string PlaceText(const Search& search, const Point& point) {
  std::string text;
  for (std::size_t i = 0; i < point.size(); ++i) {
    const Axis& axis = search.axes[i];
    if (i > 0) text += ", ";
    text += axis.name + " ";
    text += axis.labels.empty() ? NumberText(point[i]) : axis.labels[std::size_t(point[i])];
  }
  return text;
}

Point PlaceOf(const Search& search, const std::string& text) {
  Point point;
  std::size_t from = 0;
  for (const Axis& axis : search.axes) {
    if (text.compare(from, axis.name.size() + 1, axis.name + " ") != 0) return {};
    from += axis.name.size() + 1;
    const std::size_t end = std::min(text.find(", ", from), text.size());
    const std::string value = text.substr(from, end - from);
    const auto label = std::find(axis.labels.begin(), axis.labels.end(), value);
    const std::optional<double> number =
        label != axis.labels.end() ? double(label - axis.labels.begin()) : NumberIn(value);
    if (!number || *number < axis.from || *number > axis.to) return {};
    point.push_back(*number);
    from = std::min(end + 2, text.size());
  }
  return point;
}

}  // namespace accuracy
