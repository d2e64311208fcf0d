#pragma once

#include "output/form_record.h"
#include "session/exposure_session.h"

// The lines of each screen's record, in their order.
namespace output {

struct Occasion {
  base::DateTime now;
  bool report = false;
};

void WriteDataControl(FormRecord& record, const ExposureSession& s, const Occasion& occasion);
void WriteDescriptive(FormRecord& record, const ExposureSession& s, const Occasion& occasion);
void WriteLimits(FormRecord& record, const ExposureSession& s, const Occasion& occasion);
void WriteTests(FormRecord& record, const ExposureSession& s, const Occasion& occasion);
void WriteMean(FormRecord& record, const ExposureSession& s, const Occasion& occasion);
void WritePlot(FormRecord& record, const ExposureSession& s, const Occasion& occasion);
void WriteComparison(FormRecord& record, const ExposureSession& s, const Occasion& occasion);

}  // namespace output
