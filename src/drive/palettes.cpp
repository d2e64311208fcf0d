#include "drive/palettes.h"

#include <QColor>

#include <map>

namespace drive {
namespace {

// What a desktop states of its colours; the style makes the rest of them.
struct Tones {
  QColor window, base, alternate, button, text, dim, highlight, highlighted, link;
};

QPalette Make(const Tones& tones) {
  QPalette palette(tones.text, tones.button, tones.button.lighter(150), tones.button.darker(200),
                   tones.button.darker(150), tones.text, Qt::white, tones.base, tones.window);
  palette.setColor(QPalette::AlternateBase, tones.alternate);
  palette.setColor(QPalette::Highlight, tones.highlight);
  palette.setColor(QPalette::HighlightedText, tones.highlighted);
  palette.setColor(QPalette::Link, tones.link);
  palette.setColor(QPalette::ToolTipBase, tones.base);
  palette.setColor(QPalette::ToolTipText, tones.text);
  QColor half = tones.text;
  half.setAlpha(128);
  palette.setColor(QPalette::PlaceholderText, half);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, tones.dim);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.dim);
  return palette;
}

QPalette Light() {
  return Make({{239, 239, 239},
               Qt::white,
               {247, 247, 247},
               {239, 239, 239},
               Qt::black,
               {190, 190, 190},
               {48, 140, 198},
               Qt::white,
               {0, 0, 255}});
}

QPalette Dark() {
  return Make({{50, 50, 50},
               {36, 36, 36},
               {43, 43, 43},
               {50, 50, 50},
               Qt::white,
               {130, 130, 130},
               {48, 140, 198},
               Qt::white,
               {48, 140, 198}});
}

QPalette Contrast() {
  return Make({Qt::black,
               Qt::black,
               Qt::black,
               Qt::black,
               Qt::white,
               {64, 255, 64},
               {0, 255, 255},
               Qt::black,
               {255, 255, 0}});
}

}  // namespace

const QPalette* PaletteByName(const std::string& name) {
  static const std::map<std::string, QPalette> palettes = {
      {"light", Light()}, {"dark", Dark()}, {"contrast", Contrast()}};
  const auto found = palettes.find(name);
  return found == palettes.end() ? nullptr : &found->second;
}

}  // namespace drive
