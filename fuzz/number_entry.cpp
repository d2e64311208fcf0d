// Any text through number entry: what a validator accepts lies within its limits, what it pulls
// back lies on one, every code has its message, and every value can be shown.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include "session/global_bas.h"

using namespace GlobalBAS;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

// Counts the boxes that a validator shows.
struct Boxes {
  int count = 0;
  Notify Port() {
    return [this](const Complaint& complaint) {
      ++count;
      Require(!complaint.text.empty());
    };
  }
};

using Validator = void (*)(Workflow&, const Entry&, double&, const Notify&);

struct Field {
  Validator check;
  double lower;
  double upper;
  bool clamps;
};

constexpr Field kFields[] = {{CheckU, 0.01, 99.99, true},     {CheckD, 0.01, 99.99, true},
                             {CheckGM, 0.0001, 10000, false}, {CheckGSD, 1.001, 1000, true},
                             {CheckM, 2, 2000, false},        {CheckMRef, 2, 30000, true}};

void JudgeLimits(const Field& field, int state, double value) {
  const bool within = value >= field.lower && value <= field.upper;
  if (state == 0) Require(within);
  if (state >= 3 && field.clamps) Require(value == field.lower || value == field.upper);
  if (state >= 3 && !field.clamps) Require(!within);
}

void TryField(const Field& field, const Entry& entry, double before) {
  ExposureSession s;
  Boxes boxes;
  double value = before;
  const bool untouchedReference = field.check == CheckMRef && Trim(entry.text).empty();
  field.check(s, entry, value, boxes.Port());
  if (untouchedReference) {
    Require(value == before && boxes.count == 0);
    return;
  }
  Require(!std::isnan(value));
  Require(s.InputState >= 0 && s.InputState <= 4);
  Require(boxes.count == (s.InputState > 0 ? 1 : 0));
  Require(!s.MsgTitle.empty());
  JudgeLimits(field, s.InputState, value);
  ShownTrimmed(s, value);
}

void TryOELV(const Entry& entry, std::optional<double> value) {
  ExposureSession s;
  Boxes boxes;
  const bool absent = !value;
  CheckOELV(s, entry, value, boxes.Port());
  Require(boxes.count == (s.InputState > 0 ? 1 : 0));
  Require(value.has_value() || (absent && entry.text.empty()));
  if (s.InputState == 0 || s.InputState >= 3) Require(InRangeOELV(value));
}

void TryName(const std::string& text) {
  ExposureSession s;
  Boxes boxes;
  std::string name = "lead";
  CheckName(s, text, name, boxes.Port());
  Require(name.empty() == (s.InputState > 0));
  Require(boxes.count == (s.InputState > 0 ? 1 : 0));
}

void TryTexts(double value, int sigDigits) {
  const double back = Val(GeneralText(value));
  if (!std::isfinite(back)) return;  // the largest double rounds up to a number beyond it
  Require(GeneralText(back) == GeneralText(value));
  Require(Val(FileText(value)) == back);
  Require(Val(Str(value)) == back);
  const std::string mask = FormatMask(value, sigDigits);
  const std::string shown = FormatNumber(value, mask);
  Require(!shown.empty());
  const bool fixed = mask.find_first_of("<>") != std::string::npos;
  if (!fixed) Require(std::signbit(Val(shown)) ? value < 0 : true);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const int sigDigits = data[0] % 24 - 4;
  const bool touched = data[1] % 4 != 0;
  const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);

  const std::string normal = NormalizeDecimal(text);
  Require(normal.size() <= text.size());
  const double value = ReadNumber(text);
  Require(!std::isnan(value));
  if (std::isfinite(value)) TryTexts(value, sigDigits);
  const double before = Val(std::string_view(text).substr(text.size() / 2));
  for (const Field& field : kFields) TryField(field, {text, touched}, before);
  TryOELV({text, touched}, before);
  TryOELV({text, touched}, std::nullopt);
  TryName(text);
  FormatNumber(std::isfinite(value) ? value : 1, text);  // any text as a mask
  return 0;
}
