#include "ui/readable_colour.h"

#include <cmath>

namespace ui {
namespace {

constexpr double kReadable = 4.5;
constexpr int kSteps = 64;

double Linear(double channel) {
  constexpr double kKnee = 0.04045;
  return channel <= kKnee ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
         0.0722 * Linear(colour.blueF());
}

// In whole channels, as it will be shown.
QColor Mixed(const QColor& from, const QColor& to, int step) {
  const auto channel = [step](int a, int b) { return a + (b - a) * step / kSteps; };
  return {channel(from.red(), to.red()), channel(from.green(), to.green()),
          channel(from.blue(), to.blue())};
}

// The first colour on the way from one to the other that can be read on the background.
QColor FirstReadable(const QColor& from, const QColor& to, const QColor& background) {
  int step = 0;
  while (step < kSteps && Contrast(Mixed(from, to, step), background) < kReadable) ++step;
  return Mixed(from, to, step);
}

// Light enough for the stated colours, which are made for white and light grey.
bool IsPaper(const QColor& background) {
  constexpr double kPaper = 0.7;
  return Luminance(background) >= kPaper;
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return a > b ? a / b : b / a;
}

// Mixing with white or black keeps the hue.
QColor ReadableOn(const QColor& background, const QColor& stated) {
  return IsPaper(background) ? stated : FirstReadable(stated, TextOn(background), background);
}

QColor TextOn(const QColor& background) {
  return Contrast(background, Qt::white) > Contrast(background, Qt::black) ? Qt::white : Qt::black;
}

QColor QuietOn(const QColor& background, const QColor& text) {
  return FirstReadable(Mixed(background, text, kSteps / 2), text, background);
}

}  // namespace ui
