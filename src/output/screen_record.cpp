#include "output/screen_record.h"

#include <stdexcept>
#include <string_view>

#include "catalog/own_texts.h"
#include "output/screen_records.h"
#include "stats/coefficient_status.h"

namespace output {
namespace {

struct Screen {
  std::string_view form;
  FormRecord::Columns columns;
  void (*write)(FormRecord& record, const ExposureSession& s, const Occasion& occasion);
};

constexpr FormRecord::Columns kNarrow = {60, 85};
constexpr FormRecord::Columns kWide = {80, 105};

constexpr Screen kScreens[] = {
    {"DataCtrlForm", kWide, WriteDataControl}, {"DescriptForm", kNarrow, WriteDescriptive},
    {"GrenzenForm", kWide, WriteLimits},       {"PercExForm", kNarrow, WriteTests},
    {"UCLForm", kNarrow, WriteMean},           {"TwoSampCompForm", kWide, WriteComparison},
    {"PlotForm", kNarrow, WritePlot}};

const Screen* ScreenOf(const screen::Form& form) {
  for (const Screen& screen : kScreens)
    if (screen.form == form.name) return &screen;
  return nullptr;
}

}  // namespace

bool HasRecord(const screen::Form& form) { return ScreenOf(form) != nullptr; }

std::string ScreenRecord(const screen::Form& form, const ExposureSession& s,
                         const base::DateTime& now, Medium medium) {
  const Screen* screen = ScreenOf(form);
  if (!screen) throw std::logic_error(form.name + " has no record");
  FormRecord record(form, screen->columns);
  screen->write(record, s, {now, medium == Medium::Report});
  if (!StatFWinBAS::CoefficientWarning("").empty()) record.Line(OwnText(Own::OtherCoefficients));
  return record.Lines().Text();
}

}  // namespace output
