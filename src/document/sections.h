#pragma once

#include <functional>
#include <string>

#include "document/contents.h"
#include "session/series_text.h"

// The sections of the document, each by itself. One without blocks is left out.
namespace document {

using wording::OnOneLine;

// From a series of more outcomes they stand behind the results.
inline constexpr int kManyOutcomes = 200;

Section IdentificationOf(const ExposureSession& s, const Circumstances& circumstances);
Section OutcomesOf(const ExposureSession& s);
Section StatisticsOf(const ExposureSession& s);
Section DistributionOf(const ExposureSession& s, const base::DateTime& now);
Section LimitsOf(const ExposureSession& s);
Section TestsOf(const ExposureSession& s);
Section PictureOf(const ExposureSession& s, const base::DateTime& now);
Section SampleSizeOf(const ExposureSession& s);
Section MeanOf(const ExposureSession& s);
Section ComparisonOf(const ExposureSession& s, const Circumstances& circumstances);
Section NotApplying(const ExposureSession& s, const Circumstances& circumstances);
Section AccuracyOf(const ExposureSession& s, const Circumstances& circumstances);
Section ProgramOf(const ExposureSession& s);

// Whether there are outcomes, and they are what the estimates are of.
bool HasOutcomes(const ExposureSession& s);
bool HasEstimates(const ExposureSession& s);
bool HasPaper(const ExposureSession& s);
// Whether the tests and the mean are open.
bool HasTests(const ExposureSession& s);
bool HasComparison(const ExposureSession& s, const Circumstances& circumstances);

// A row of the catalogue, or a caption made of it, as the name of a result: on one line, without
// blanks and the equals sign at its end.
std::string NameOf(const std::string& caption);
std::string RowName(int row);
// As a box shows it, without the blanks about it.
std::string Value(const ExposureSession& s, const std::optional<double>& value);

// What `work` adds to the section; a fault is told in place of it.
void Try(Section& section, const std::function<void()>& work);

}  // namespace document
