#pragma once

#include <string>

#include "session/choices.h"

// The letters by which scripts name the closed choices of the record.
namespace drive {

std::string LettersOf(DataMode value);
std::string LettersOf(Extrapolation value);
std::string LettersOf(PlotStyle value);
std::string LettersOf(ReferenceKind value);
std::string LettersOf(VarianceChoice value);

// The choice with these letters; Failure for letters that name none.
void FromLetters(const std::string& letters, DataMode& value);
void FromLetters(const std::string& letters, Extrapolation& value);
void FromLetters(const std::string& letters, PlotStyle& value);
void FromLetters(const std::string& letters, ReferenceKind& value);
void FromLetters(const std::string& letters, VarianceChoice& value);

}  // namespace drive
