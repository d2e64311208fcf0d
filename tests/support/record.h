#pragma once

#include <utility>

#include "session/exposure_session.h"
#include "tests/support/csv.h"

// Records for the tests of the calculations.
namespace support {

// Of a sample of M outcomes with these statistics.
inline ExposureSession SampleRecord(double M, double GM, double GSD, double OELV) {
  ExposureSession s;
  s.M = M;
  s.df = M - 1;
  s.GM = GM;
  s.GSD = GSD;
  s.OELV = OELV;
  return s;
}

// With the fields below that are columns of the row and not empty; a row without df has M - 1.
inline ExposureSession RecordOf(const Row& row) {
  constexpr std::pair<const char*, double ExposureSession::*> fields[] = {
      {"M", &ExposureSession::M},      {"df", &ExposureSession::df},
      {"GM", &ExposureSession::GM},    {"GSD", &ExposureSession::GSD},
      {"U", &ExposureSession::U},      {"D", &ExposureSession::D},
      {"M2", &ExposureSession::M2},    {"GM2", &ExposureSession::GM2},
      {"GSD2", &ExposureSession::GSD2}};
  const auto given = [&row](const char* name) { return row.Has(name) && !row.Text(name).empty(); };
  ExposureSession s;
  for (const auto& [name, field] : fields)
    if (given(name)) s.*field = row.Number(name);
  if (given("OELV")) s.OELV = row.Number("OELV");
  if (!given("df") && given("M")) s.df = s.M - 1;
  return s;
}

}  // namespace support
