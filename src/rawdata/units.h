#pragma once

#include <string>
#include <string_view>

namespace rawdata {

// The text as units are compared: small letters without blanks, brackets around it and "^", "u" for
// micro, 2 and 3 for their raised forms.
std::string UnitKey(std::string_view text);

// Whether the text names a unit of measurement, and nothing else: one of the units that the program
// offers, an amount by volume or area ("ug/m3", "mg m-3", "f/cc"), a mass,
// a fraction (ppm, %), a sound level, or `own`, the unit of the series.
bool IsUnit(std::string_view text, std::string_view own = {});

}  // namespace rawdata
