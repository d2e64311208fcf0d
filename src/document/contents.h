#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/date_time.h"
#include "drawing/drawing.h"
#include "session/exposure_session.h"

// What the one document to hand over holds, as data: the page, the plain text and the table are
// made of it. All of it is worked out anew from what was given and from the estimates in force, by
// the functions behind the screens; the record is only read.
namespace document {

// A number or a word with what it is. The value stands as the screens show it, without the blanks
// about it.
struct Result {
  std::string name;
  std::string value;
  std::string unit;
  std::string method;
  bool operator==(const Result&) const = default;
};

// Results one below the other.
struct Facts {
  std::vector<Result> results;
};

struct Words {
  std::string text;                  // lines separated by CR
  std::vector<Result> results = {};  // that the text tells
};

// The outcomes, of which there may be many.
struct Outcomes {
  std::vector<Result> results;  // the name is the place in the series, the value has < or >
};

struct VerdictRow {
  std::string test;
  std::string estimate;
  std::string limit;
  std::string words;
  std::optional<bool> compliance;
};

// The tests side by side.
struct VerdictTable {
  VerdictRow heading;
  std::vector<VerdictRow> rows;
  std::vector<Result> results;  // the same, one by one
};

struct Picture {
  drawing::DrawingRecord drawing;
};

using Block = std::variant<Facts, Words, Outcomes, VerdictTable, Picture>;

struct Section {
  std::string title;
  std::vector<Block> blocks;
};

struct Contents {
  std::string title;
  std::string name;     // of the series
  std::string product;  // with its version
  std::string made;     // date and time
  std::vector<Section> sections;
};

// What stands beside the record.
struct Circumstances {
  base::DateTime now;
  bool compared = false;  // a comparison was made with the present data and reference
};

// Changes nothing. What can't be computed is told in place of its numbers: no fault leaves it.
Contents Compose(const ExposureSession& s, const Circumstances& circumstances);

}  // namespace document
