#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/accuracy/worst.h"

// The tables of the t family, chi-square and F as sources of errors, each with the routine that it
// is held against.
namespace accuracy {

using Takes = std::function<bool(const support::Row&)>;

Takes Both(Takes first, Takes second);
Takes Not(Takes takes);
// Rows with a number from `from` to `to` in `column`.
Takes Between(const std::string& column, double from, double to);
// Rows with an odd number in `column`.
Takes Odd(const std::string& column);

// `takes` of a truth table may ask for its own columns only.
Source StudentTruth(const Takes& takes);     // df, argument
Source DeviateTruth(const Takes& takes);     // df, argument
Source ExpansionTruth(const Takes& takes);   // df, argument
Source NoncentralTruth(const Takes& takes);  // f, p, K
Source OwenTruth(const Takes& takes);        // h, a
Source ChiTruth(const Takes& takes);         // d1, argument
Source FTruth(const Takes& takes);           // d1, d2, argument

Source StudentSteps(const Takes& takes);     // df, t
Source DeviateSteps(const Takes& takes);     // df, p
Source ExpansionSteps(const Takes& takes);   // df, p
Source NoncentralSteps(const Takes& takes);  // f, p, K
Source OwenSteps(const Takes& takes);        // h, a
Source ChiSteps(const Takes& takes);         // df, chi
Source FSteps(const Takes& takes);           // d1, d2, F

// Whether sqrt(1 + 1 / f) K is 1, where the noncentral t leaves its sum out.
bool AtOne(const support::Row& row);

}  // namespace accuracy
