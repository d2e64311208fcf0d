#pragma once

#include <optional>
#include <string>

namespace walks {

// Whether two numbers are the same but for the rounding of another order of operations.
bool Near(double a, double b, double tolerance = 1E-9);

// Whether the text shows the number at that width of the numbers.
bool Shows(const std::string& text, double value, int sigDigits);

// The same at whatever width: of another time, or of a picture.
bool ShowsAtSomeWidth(const std::string& text, double value);

// The number that the text shows, with its first and its last digit at any place of it.
std::optional<double> NumberIn(const std::string& text);

// Whether two texts show one number, each rounded in its own way.
bool SameRounded(const std::string& a, const std::string& b);

// Whether two drawn labels say the same: the room for it decides on lines and on digits.
bool SameLabel(const std::string& a, const std::string& b);

// Nothing but blanks, or the word for a number that the sample does not give.
bool Blank(const std::string& text);
bool BlankOrUnknown(const std::string& text);

// The last line of a label that is drawn in lines, and the one before.
std::string LineOf(const std::string& text, int line);

std::string Word(double value);

}  // namespace walks
