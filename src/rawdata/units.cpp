#include "rawdata/units.h"

#include <algorithm>
#include <iterator>

namespace rawdata {
namespace {

constexpr std::string_view kAlone[] = {
    "%",   "%(v/v)", "%lel", "%vol", "vol%", "vol.%", "ppm",   "ppmv",  "ppmc",  "ppb",  "ppbv",
    "ppt", "pptv",   "db",   "dba",  "dbb",  "dbc",   "db(a)", "db(b)", "db(c)", "mppcf"};
constexpr std::string_view kAmounts[] = {
    "kg",     "g",    "mg", "ug",   "mcg",   "ng",       "pg",       "mol",    "mmol",
    "umol",   "nmol", "f",  "fib",  "fibre", "fiber",    "fibres",   "fibers", "vezel",
    "vezels", "eu",   "ie", "iu",   "cfu",   "kve",      "bq",       "kbq",    "mbq",
    "p",      "pt",   "#",  "part", "parts", "particle", "particles"};
// A mass may stand alone as well: what was weighed on a filter.
constexpr std::size_t kMasses = 7;
constexpr std::string_view kRooms[] = {"m3",     "dm3",    "cm3",    "mm3", "l",   "dl",  "ml",
                                       "ul",     "cc",     "m2",     "dm2", "cm2", "kg",  "g",
                                       "ft2",    "ft3",    "cf",     "h",   "min", "day", "shift",
                                       "sample", "filter", "100cm2", "wipe"};

struct Spelling {
  std::string_view written;
  std::string_view key;
};
constexpr Spelling kSpellings[] = {{"\xC2\xB5", "u"},
                                   {"\xCE\xBC", "u"},
                                   {"\xC2\xB2", "2"},
                                   {"\xC2\xB3", "3"},
                                   {"\xC2\xB7", "."},
                                   {"\xE2\x8B\x85", "."},
                                   {"\xC2\xA0", ""},
                                   {"\xE2\x80\xAF", ""},
                                   {"\xE2\x81\xBB", "-"},
                                   {"\xE2\x88\x92", "-"},
                                   {"\xC2\xB9", "1"},
                                   {"^", ""},
                                   {" ", ""},
                                   {"\t", ""},
                                   {"\r", ""},
                                   {"\n", ""}};

template <typename Names>
bool Holds(const Names& names, std::string_view key) {
  return std::find(std::begin(names), std::end(names), key) != std::end(names);
}

// "mg/m3".
bool IsQuotient(std::string_view key) {
  const std::size_t slash = key.find('/');
  return slash != std::string_view::npos && Holds(kAmounts, key.substr(0, slash)) &&
         Holds(kRooms, key.substr(slash + 1));
}

// "mg.m-3", "mgm-3", "f.ml-1".
bool IsProduct(std::string_view key) {
  for (const std::string_view amount : kAmounts) {
    if (!key.starts_with(amount)) continue;
    std::string_view rest = key.substr(amount.size());
    if (rest.starts_with('.')) rest.remove_prefix(1);
    const std::size_t minus = rest.find('-');
    if (minus == std::string_view::npos) continue;
    std::string room(rest.substr(0, minus));
    const std::string_view power = rest.substr(minus + 1);
    if (power != "1" && power != "2" && power != "3") continue;
    if (power != "1") room += power;
    if (Holds(kRooms, room)) return true;
  }
  return false;
}

}  // namespace

std::string UnitKey(std::string_view text) {
  std::string key(text);
  for (const auto& [written, replacement] : kSpellings)
    for (std::size_t at = key.find(written); at != std::string::npos;
         at = key.find(written, at + replacement.size()))
      key.replace(at, written.size(), replacement);
  for (char& c : key)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  const bool round = key.size() > 2 && key.front() == '(' && key.back() == ')';
  const bool square = key.size() > 2 && key.front() == '[' && key.back() == ']';
  return round || square ? key.substr(1, key.size() - 2) : key;
}

bool IsUnit(std::string_view text, std::string_view own) {
  constexpr std::string_view kOfNumbers = "0123456789+-.,";
  const std::string key = UnitKey(text);
  if (key.empty() || kOfNumbers.find(key.front()) != std::string_view::npos) return false;
  if (Holds(kAlone, key) || IsQuotient(key) || IsProduct(key) || key == UnitKey(own)) return true;
  return std::find(kAmounts, kAmounts + kMasses, key) != kAmounts + kMasses;
}

}  // namespace rawdata
