#pragma once

#include <string>

#include "screen/form.h"
#include "session/record.h"

namespace start {

// Asks for a file and writes all results into it as one document: the ending of its name decides
// whether as PDF, as text or as CSV. The series and its results stay as they are. What could not be
// written is told, and the file of that name then is as it was. `seriesFile` holds the series, and
// is never written; empty where none does.
void HandOver(Record& record, screen::Form& from, const std::string& seriesFile);

}  // namespace start
