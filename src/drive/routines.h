#pragma once

#include <string>
#include <vector>

#include "screen/ports.h"
#include "session/exposure_session.h"

namespace drive {

// Calls the routine `name` with `words` as its arguments. Returns its result and then every
// argument by reference after the call, "done" when there is neither, or "fault: WHY". An argument
// session.FIELD is the record's own double of that name; a validator without its value, and
// LogMoments without arguments, work on the record's fields. Failure for a routine or a number of
// arguments that there isn't.
std::string Evaluate(ExposureSession& s, screen::MessageBox& messageBox, const std::string& name,
                     std::vector<std::string> words);

// The mask of the value at `sigDigits` and the text shown through it, each in quotes.
std::string MaskLine(const std::string& value, const std::string& sigDigits);

}  // namespace drive
