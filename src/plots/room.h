#pragma once

#include <optional>
#include <vector>

#include "plots/labels.h"
#include "plots/regression_line.h"

namespace PlotWBas {

// The inside of the frame: where a label would stand on a point or on the line.
class Room {
 public:
  // `line`: none when none is drawn.
  Room(const Paper& paper, const PlotData& data, const std::optional<LineEnds>& line);

  bool IsFree(const Label& label) const;
  // Something stands there from now on.
  void Take(const Box& box) { taken_.push_back(box); }
  // The first of these places that is free, or the first when none is.
  const Label& FirstFree(const std::vector<Label>& places) const;

 private:
  Frame frame_;
  std::vector<drawing::Point> points_;
  std::optional<LineEnds> line_;
  std::vector<Box> taken_;
};

}  // namespace PlotWBas
