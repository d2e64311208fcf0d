#pragma once

#include <string>

#include "base/date_time.h"
#include "screen/form.h"
#include "session/exposure_session.h"

// What a screen shows, as lines of text: the same for the log and for a report.
namespace output {

enum class Medium { Log, Report };

// Whether that screen has a record.
bool HasRecord(const screen::Form& form);

// The record of the form as its controls stand, with CR LF behind each line. A form without a
// record is a logic error.
std::string ScreenRecord(const screen::Form& form, const ExposureSession& s,
                         const base::DateTime& now, Medium medium);

}  // namespace output
