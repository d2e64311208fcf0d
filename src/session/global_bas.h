#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "session/exposure_session.h"

// Number entry and display: how a typed text becomes a value of the record, and how a value
// becomes a text. Every numeric field of every screen goes through these routines.
namespace GlobalBAS {

// What a validator has to say: what is wrong, in which field, and below it what can be entered and
// what now stands.
struct Complaint {
  std::string text;
  std::string title;
  std::string advice;
};
// Shows a complaint with the exclamation icon and one OK button.
using Notify = std::function<void(const Complaint& complaint)>;

// What takes the place of a limit that is missing.
inline constexpr double kDefaultOELV = 1;
inline constexpr double kDefaultU = 95;
inline constexpr double kDefaultD = 70;

// What a field hands to its validator: the text that the user typed, or, when the field was left
// untouched, the value it stands for (so that looking at a rounded text never changes a value).
struct Entry {
  std::string text;
  bool touched = true;
};

std::string NormalizeDecimal(std::string text);
// The longest numeric prefix, "." as separator, exponent by E or D; 0 for no number; +-infinity
// beyond a double.
double Val(std::string_view text);
// Val behind NormalizeDecimal and trimming.
double ReadNumber(std::string_view text);

// General text form: up to 15 significant digits, no zero before the point.
std::string GeneralText(double value);
// GeneralText with a blank before a value that is not negative.
std::string Str(double value);
// GeneralText with the zero before the point, as raw files hold it.
std::string FileText(double value);

void CheckU(Workflow& s, const Entry& entry, double& value, const Notify& notify);
void CheckD(Workflow& s, const Entry& entry, double& value, const Notify& notify);
void CheckOELV(Workflow& s, const Entry& entry, std::optional<double>& value, const Notify& notify);
void CheckGM(Workflow& s, const Entry& entry, double& value, const Notify& notify);
void CheckGSD(Workflow& s, const Entry& entry, double& value, const Notify& notify);
void CheckM(Workflow& s, const Entry& entry, double& value, const Notify& notify);
void CheckMRef(Workflow& s, const Entry& entry, double& value, const Notify& notify);
// `text` is the text of the name field; `name` the record's name, changed in place. A name begins
// with a letter, or as the one does that it takes the place of: a file's path may begin otherwise.
void CheckName(Workflow& s, const std::string& text, std::string& name, const Notify& notify);

bool InRangeOELV(const std::optional<double>& value);
bool InRangeU(double value);
bool InRangeD(double value);
bool InRangeGM(double value);
bool InRangeGSD(double value);
bool InRangeMRef(double value);
// Whether the data have a name and a sample size.
bool Identified(const Given& given);
// Whether GM and GSD may be used, by the ranges of their fields.
bool EstimatesInRange(const Derived& d);

// The mask for `value` at `sigDigits`; the empty mask for an absent value.
std::string FormatMask(const std::optional<double>& value, int sigDigits);
std::string FormatNumber(double value, const std::string& mask);
// FormatNumber(value, FormatMask(value)) with the record's SigDigits; the second without the
// blanks in front, for a field. An absent value is the empty text.
std::string Shown(const ExposureSession& s, const std::optional<double>& value);
std::string ShownTrimmed(const ExposureSession& s, const std::optional<double>& value);

std::string Trim(std::string_view text);

// Derives IdentOk, DescOk and LimitsOk and applies the defaults of the limits.
void StatusFlags(ExposureSession& s);

}  // namespace GlobalBAS
