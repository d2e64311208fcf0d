#pragma once

#include <string>
#include <vector>

#include "plots/density.h"
#include "plots/fitting.h"

namespace PlotWBas {

// The labels below the axis of the density picture: each hangs from its mark, moved aside where two
// would touch, and all are as large as their room allows.
class MarkRow {
 public:
  MarkRow(drawing::DrawSurface& surface, const DensityScale& scale, const DensityData& data);
  void Write();

 private:
  struct Text {
    std::string label;
    std::string text;
  };
  struct Entry {
    double X = 0;
    drawing::Colour colour;
    std::vector<Text> texts;  // one below the other
  };
  void Fit();
  bool FitBySize();
  void MoveUp();
  void Wrap();
  double Width(const Entry& entry) const;
  double TotalWidth() const;
  int Rows() const;
  double Room() const;
  double Below() const;
  bool Fits() const;
  void Write(const Entry& entry, double centre);

  drawing::DrawSurface& surface_;
  double foot_;
  double leader_;  // how far below the axis the labels begin
  std::vector<Entry> entries_;
  drawing::TextStyle style_;
};

}  // namespace PlotWBas
