// The record of the plot: what its labels say.
#include "output/screen_records.h"

namespace output {

void WritePlot(FormRecord& record, const ExposureSession&, const Occasion& occasion) {
  record.Heading("LblKoptekst", occasion.now);
  for (const char* scale :
       {"MenuDubLog", "MenuLog", "MenuSqrt", "MenuUntransf", "MenuSqrd", "MenuExp", "MenuRecip"})
    if (record.Form().Find(scale)->ticked) record.Line(record.Caption(scale));
  for (const char* label : {"LblRegres", "LblShapiro", "LblDescrip"})
    if (record.Shown(label)) record.Line(record.Caption(label));
  record.Blank();
}

}  // namespace output
