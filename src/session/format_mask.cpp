#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "session/global_bas.h"

// The mask of a value: a right-aligned column whose whole part ends at the sixth character, with
// as many decimals as the entered numbers have.
namespace GlobalBAS {
namespace {

// A negative count repeats nothing.
std::string Repeat(char c, int count) {
  return std::string(static_cast<std::size_t>(std::max(count, 0)), c);
}
std::string Spaces(int count) { return Repeat(' ', count); }
std::string Zeros(int count) { return Repeat('0', count); }
std::string Hashes(int count) { return Repeat('#', count); }

// What the rows of the table ask of a value.
struct Facts {
  int p;  // position of the point in the general text, 0 for none
  int L;  // characters of the mantissa, with an exponent one more
  double x;
  int s;  // sign
  int S;  // SigDigits
};

Facts FactsOf(double value, int sigDigits) {
  const std::string t = GeneralText(value);
  const std::size_t point = t.find('.');
  const std::size_t exponent = t.find('E');
  Facts f;
  f.p = point == std::string::npos ? 0 : static_cast<int>(point) + 1;
  f.L = static_cast<int>(exponent == std::string::npos ? t.size() : exponent + 1);
  f.x = std::abs(value);
  f.s = (value > 0) - (value < 0);
  f.S = sigDigits;
  return f;
}

bool Whole(const Facts& f) { return f.p == 0 && f.x <= 99999; }
bool Plain(const Facts& f) { return f.x >= 0.1 && f.x <= 99999.99999; }

struct MaskRow {
  bool (*fits)(const Facts& f);
  std::string (*mask)(const Facts& f);
};

std::string ThreeDigitExponent(const Facts& f) {
  const int w = std::min(f.L, 5);
  return (f.s == -1 ? "    0.0" : "     0.0") + Hashes(w - 3) + "E+000";
}
std::string TwoDigitExponent(const Facts& f) {
  const int w = std::min(f.L, 6);
  return (f.s == -1 ? "   0.0" : "    0.0") + Hashes(w - 3) + "E+00";
}
std::string TenDigits(const Facts& f) {
  return (f.s == -1 ? "   0.0" : "    0.0") + Hashes(f.S - 1) + "E+00";
}
std::string OneDigitExponent(const Facts& f) {
  return (f.s == -1 ? "   0.0" : "    0.0") + Hashes(f.S) + "E+0";
}

// The first row that fits gives the mask. A positive value takes its decimals from SigDigits, a
// negative one from its own text.
constexpr std::array<MaskRow, 13> kRows = {{
    {[](const Facts& f) { return Whole(f) && f.s == -1; },
     [](const Facts& f) { return Spaces(6 - f.L) + Zeros(f.L - 1); }},
    {Whole, [](const Facts& f) { return Spaces(6 - f.L) + Zeros(f.L); }},
    {[](const Facts& f) { return f.x < 1E-320; },
     [](const Facts&) { return std::string("    0.0"); }},
    {[](const Facts& f) { return f.x > 1E+308 && f.s == 1; },
     [](const Facts&) { return std::string("    >1.00E+308"); }},
    {[](const Facts& f) { return f.x > 1E+308; },
     [](const Facts&) { return std::string("   <0.00E+000"); }},
    {[](const Facts& f) { return f.x <= 1E-100 || f.x >= 1E+100; }, ThreeDigitExponent},
    {[](const Facts& f) { return f.x <= 1E-14 || f.x >= 1E+15; }, TwoDigitExponent},
    {[](const Facts& f) { return f.x <= 1E-10 || f.x >= 1E+10; }, TenDigits},
    {[](const Facts& f) { return f.x < 0.1 || f.x >= 100000; }, OneDigitExponent},
    {[](const Facts& f) { return Plain(f) && f.s == 1 && f.p > 1; },
     [](const Facts& f) { return Spaces(6 - f.p) + Zeros(f.p - 1) + ".0" + Hashes(f.S - 1); }},
    {[](const Facts& f) { return Plain(f) && f.s == 1; },
     [](const Facts& f) { return "    0.0" + Hashes(f.S - 1); }},
    {[](const Facts& f) { return Plain(f) && f.p > 2; },
     [](const Facts& f) { return Spaces(6 - f.p) + Zeros(f.p - 2) + ".0" + Hashes(f.L - f.p); }},
    {Plain, [](const Facts& f) { return "   0.0" + Hashes(f.L - f.p); }},
}};

}  // namespace

std::string FormatMask(const std::optional<double>& value, int sigDigits) {
  if (!value) return {};
  const Facts f = FactsOf(*value, sigDigits);
  for (const MaskRow& row : kRows)
    if (row.fits(f)) return row.mask(f);
  return {};  // between 99999.99999 and 100000: the general text
}

std::string Shown(const ExposureSession& s, const std::optional<double>& value) {
  return value ? FormatNumber(*value, FormatMask(value, s.SigDigits)) : std::string();
}

std::string ShownTrimmed(const ExposureSession& s, const std::optional<double>& value) {
  std::string text = Shown(s, value);
  return text.erase(0, text.find_first_not_of(' '));
}

}  // namespace GlobalBAS
