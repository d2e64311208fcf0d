#pragma once

#include <optional>
#include <stdexcept>

#include "compliance/compliance_tests.h"
#include "plots/density_view.h"
#include "session/record.h"
#include "session/workflow.h"

// The numbers of a picture of values that a test makes up.
namespace picture {

// The screen whose tab has that caption (catalogue row).
inline ScreenId ScreenWith(int caption) {
  for (int i = 0; i <= static_cast<int>(ScreenId::TwoSamp); ++i)
    if (workflow::TabOf(static_cast<ScreenId>(i)).caption == caption)
      return static_cast<ScreenId>(i);
  throw std::out_of_range("no tab has that caption");
}

// As if the shown screen had just found UTL, UCL and PercEx of `s`.
inline PlotWBas::PictureNumbers NumbersOf(const ExposureSession& s) {
  Record record;
  record.Script() = s;
  if (compliance::FindTest(s.TestTag)) {
    TestResult result;
    result.test = s.TestTag;
    result.UTL.value = s.UTL;
    result.PercEx.value = s.PercEx;
    record.Keep(result);
  } else {
    record.Keep(MeanResult{s.TestTag, s.UCL, s.PercEx});
  }
  const std::optional<PlotWBas::PictureNumbers> numbers = PlotWBas::NumbersOf(record);
  if (!numbers) throw std::invalid_argument("nothing to draw");
  return *numbers;
}

}  // namespace picture
