#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "session/global_bas.h"

using namespace GlobalBAS;

namespace {

// Twenty times the usual number of cases; a setting of the caller goes first.
[[maybe_unused]] const int kCases = setenv("RC_PARAMS", "max_success=2000", 0);

// Any finite double, every exponent as likely as every other.
rc::Gen<double> AnyDouble() {
  return rc::gen::suchThat(rc::gen::map(rc::gen::arbitrary<std::uint64_t>(),
                                        [](std::uint64_t bits) {
                                          return std::bit_cast<double>(bits * 0x9E3779B97F4A7C15u);
                                        }),
                           [](double value) { return std::isfinite(value); });
}

// Doubles of the sizes that a session holds.
rc::Gen<double> PlainDouble() {
  return rc::gen::map(rc::gen::pair(rc::gen::inRange<std::int64_t>(-999999999, 1000000000),
                                    rc::gen::inRange(-14, 8)),
                      [](const std::pair<std::int64_t, int>& parts) {
                        return static_cast<double>(parts.first) * std::pow(10.0, parts.second);
                      });
}

rc::Gen<double> Value() { return rc::gen::oneOf(AnyDouble(), PlainDouble()); }

rc::Gen<std::string> TypedText() {
  return rc::gen::oneOf(
      rc::gen::container<std::string>(rc::gen::element('0', '1', '5', '9', '.', ',', '-', '+', 'E',
                                                       'D', 'e', ' ', '\t', 'x', '\xe9', '\0')),
      rc::gen::arbitrary<std::string>());
}

// The value rounded to 15 significant digits; the very largest round up beyond the doubles.
double FifteenDigits(double value) {
  if (std::abs(value) >= 1.797693134862315E+308) return std::copysign(INFINITY, value);
  char text[64];
  const auto end =
      std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 14);
  double rounded = 0;
  std::from_chars(text, end.ptr, rounded);
  return rounded;
}

}  // namespace

TEST(NumberProperties, AnyGeneralTextReadsBackAsItsFifteenDigits) {
  EXPECT_TRUE(rc::check("general text reads back", [] {
    const double value = *Value();
    RC_ASSERT(Val(GeneralText(value)) == FifteenDigits(value));
    RC_ASSERT(Val(FileText(value)) == FifteenDigits(value));
    RC_ASSERT(Val(Str(value)) == FifteenDigits(value));
  }));
}

TEST(NumberProperties, AnyValueIsShownByItsMaskWithItsSignAndReadsBackNearby) {
  EXPECT_TRUE(rc::check("shown values keep sign and size", [] {
    const double value = *Value();
    const int sigDigits = *rc::gen::inRange(1, 18);
    const std::string mask = FormatMask(value, sigDigits);
    const std::string text = FormatNumber(value, mask);
    RC_ASSERT(!text.empty());
    if (mask.find_first_of("<>") != std::string::npos) return;
    const double shown = Val(text);
    RC_ASSERT(shown == 0 || std::signbit(shown) == std::signbit(value));
    // Two digits at least are shown of a value in an exponent row, one decimal of a plain one.
    const double size = std::abs(value);
    if (mask.find('E') != std::string::npos && size > 1E-300)
      RC_ASSERT(std::abs(shown - value) <= 0.0501 * size);
    else if (size >= 0.1 && size < 1E+5)
      RC_ASSERT(std::abs(shown - value) <= 0.0501);
  }));
}

TEST(NumberProperties, AnyValueAndWidthHaveATextWhateverTheMask) {
  EXPECT_TRUE(rc::check("no mask and value fail", [] {
    const double value = *AnyDouble();
    const double other = *Value();
    const int sigDigits = *rc::gen::inRange(-40, 60);
    RC_ASSERT(!FormatNumber(value, FormatMask(other, sigDigits)).empty());
    const std::string mask =
        *rc::gen::container<std::string>(rc::gen::element('0', '#', '.', 'E', '+', ' ', '%', 'x'));
    FormatNumber(value, mask);
  }));
}

TEST(NumberProperties, AnyTextNormalisesOnceAndReadsAsANumber) {
  EXPECT_TRUE(rc::check("any text reads", [] {
    const std::string entry = *TypedText();
    const std::string text = NormalizeDecimal(entry);
    RC_ASSERT(text.size() <= entry.size());
    RC_ASSERT(!std::isnan(Val(text)));
    RC_ASSERT(ReadNumber(entry) == Val(Trim(text)));
  }));
}

TEST(NumberProperties, ACommaAndAPointMeanTheSameInANumberWithOneSeparator) {
  EXPECT_TRUE(rc::check("comma as point", [] {
    std::string text = FileText(std::abs(*Value()));
    const double value = Val(text);
    const std::size_t point = text.find('.');
    if (point != std::string::npos) text[point] = ',';
    RC_ASSERT(ReadNumber(text) == value);
  }));
}
