#pragma once

#include <QColor>
#include <QPalette>

// Colours that can be read on the background that they really have.
namespace ui {

// How far two colours stand apart, from 1 to 21, by the relative luminances of WCAG 2.1. What is
// read needs 4.5.
double Contrast(const QColor& one, const QColor& other);

// The colour that a screen's rules state. Stated colours are chosen for light paper and stay as
// they are on it; on a dark background the same hue is lightened until it can be read (darkened, on
// one between the two).
QColor ReadableOn(const QColor& background, const QColor& stated);

// The more readable one of black and white.
QColor TextOn(const QColor& background);

// The text colour of what is not to catch the eye: as near to the background as can be read.
QColor QuietOn(const QColor& background, const QColor& text);

}  // namespace ui
