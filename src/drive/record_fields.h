#pragma once

#include <string>

#include "session/exposure_session.h"

// The fields of the record by name, for the commands that read, set and check them.
namespace drive {

// The value as `get session.FIELD` prints it: doubles as %.17g, flags as 1 or 0, texts as they
// stand, an absent value as "empty", arrays in one line.
std::string FieldText(const ExposureSession& s, const std::string& field);

// Sets the field from the words of `rest`; an array takes all its elements.
void SetField(ExposureSession& s, const std::string& field, const std::string& rest);

// Throws Failure unless the field holds what `rest` says. A number may be followed by a relative
// tolerance; without one it must be the same number.
void ExpectField(const ExposureSession& s, const std::string& field, const std::string& rest);

// The record's own field of that name, when it is a double; else null.
double* DoubleField(ExposureSession& s, const std::string& field);

}  // namespace drive
