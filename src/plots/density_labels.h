#pragma once

#include "plots/density.h"

// The texts of the density picture. They are laid out without a font at hand: each mark has its
// label below the axis, moved aside where two would touch; the headlines take the room beside the
// curve.
namespace PlotWBas {

// A place taken on the surface, in twips.
struct Box {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

// `text` in lines no wider than `width`, broken at blanks; a longer word has a line of its own.
std::string Wrapped(const std::string& text, double width, double size);

// The room of a text that was drawn, by the estimate of its width.
Box BoxOf(const drawing::DrawnText& text);

void WriteDensityLabels(drawing::DrawSurface& surface, const DensityScale& scale,
                        const DensityData& data);

}  // namespace PlotWBas
