#pragma once

#include <string>

#include "rawdata/pasted_table.h"
#include "screen/ports.h"

// How the user is told of a paste.
namespace rawdata {

// What is wrong with each line that is not understood, and how the detection range serves.
std::string RefusalText(const PasteRefusal& refusal);

screen::TableDialog::Question QuestionOf(const AskColumn& ask);
screen::TableDialog::Question QuestionOf(const AskSign& ask);

// Which column was taken, what was passed over, and a unit that is not the series' own; empty for a
// plain column of numbers.
std::string PasteDetails(const PastedColumn& column, const std::string& unit);

}  // namespace rawdata
