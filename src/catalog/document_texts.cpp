#include "catalog/document_texts.h"

#include "catalog/arguments.h"

namespace {

struct Row {
  Doc id;
  const char* text;
};

constexpr Row kRows[] = {
    {Doc::Title, "Report on exposure data"},
    {Doc::PageOf, "Page {0} of {1}"},
    {Doc::Outcomes, "The outcomes"},
    {Doc::Distribution, "Distribution of the outcomes"},
    {Doc::Picture, "Frequency distribution"},
    {Doc::LimitValue, "Limit value, coverage and confidence"},
    {Doc::NotApplying, "What does not apply, and why"},
    {Doc::Accuracy, "Accuracy notes"},
    {Doc::Program, "Program and coefficients"},
    {Doc::FileOrName, "File or name"},
    {Doc::KindOfData, "Kind of data"},
    {Doc::Measured, "measured outcomes"},
    {Doc::Known, "known descriptive statistics"},
    {Doc::Tried, "other values, tried on top of a series"},
    {Doc::Unit, "Unit of measurement"},
    {Doc::NotStated, "not stated"},
    {Doc::Unknown, "unknown"},
    {Doc::NoRange, "none"},
    {Doc::MadeOn, "Date of this document"},
    {Doc::Ascending, "In ascending order, in {0}."},
    {Doc::AscendingNoUnit, "In ascending order, without a unit."},
    {Doc::AsTyped, "As the table holds them; the series is not complete."},
    {Doc::Operators,
     "The sign < marks an outcome below the lower limit LOQ {0}, > one at or above the upper limit "
     "{1}."},
    {Doc::OutcomeName, "Outcome {0}"},
    {Doc::MethodBelow, "below the detection range"},
    {Doc::MethodAbove, "at or above the upper end of the detection range"},
    {Doc::DegreesOfWhole, "sample size less one"},
    {Doc::DegreesOfRange, "what the detection range leaves"},
    {Doc::GMMethod, "antilogarithm of the mean logarithm: half of the population lies below it"},
    {Doc::GSDMethod, "antilogarithm of the standard deviation of the logarithms"},
    {Doc::TriedMethod, "as tried on top of the series"},
    {Doc::TypedMethod, "as it was entered"},
    {Doc::LineMethod, "from the line through the outcomes within the detection range"},
    {Doc::GMuMethod,
     "with the bias of small samples taken out. Finney J.R.Stat. Soc. 7 (1941) supp 155"},
    {Doc::FromGMMethod, "follows from GM and GSD"},
    {Doc::FitGood,
     "Shapiro and Wilk's test of the logarithms gives W = {0} with a probability of {1} %: the "
     "outcomes do not speak against a lognormal distribution."},
    {Doc::FitPoor,
     "Shapiro and Wilk's test of the logarithms gives W = {0} with a probability of {1} %: a "
     "lognormal distribution is unlikely for these outcomes."},
    {Doc::FitOfThree,
     "Shapiro and Wilk's test of the logarithms gives W = {0}; its probability, reckoned as {1} %, "
     "tells nothing for three outcomes."},
    {Doc::FitNone,
     "Shapiro and Wilk's test of the logarithms is not possible for these outcomes: nothing is "
     "known of the fit."},
    {Doc::FitOfRange, "The outcomes outside the detection range count as censored."},
    {Doc::FitW, "Shapiro and Wilk's W"},
    {Doc::FitProbability, "Probability A(W)"},
    {Doc::FitMethod, "test of the logarithms. Royston (1995)"},
    {Doc::ReferencePeriod, "OELV reference period"},
    {Doc::TestVerdict, "Verdict"},
    {Doc::Distance, "Standardised distance Ur"},
    {Doc::Smallest, "Smallest sample"},
    {Doc::AMuMethod, "the point estimate"},
    {Doc::NoMethod, "{0}: {1}"},
    {Doc::ReferenceSample, "a second sample"},
    {Doc::ReferencePopulation, "a population that is known"},
    {Doc::ReferenceName, "Compared with"},
    {Doc::Variances, "Variances"},
    {Doc::Pooled, "pooled, as chosen"},
    {Doc::Separate, "separate, as chosen"},
    {Doc::PooledByProbability, "pooled, by the probability"},
    {Doc::SeparateByProbability, "separate, by the probability"},
    {Doc::ReferenceSize, "Reference sample size Mref"},
    {Doc::FMethod, "F test of the dispersions"},
    {Doc::ChiMethod, "chi-square test of the dispersion"},
    {Doc::PooledMethod, "Student's t, one pooled variance"},
    {Doc::SeparateMethod, "Student's t, separate variances. Satterthwaite (1946)"},
    {Doc::PopulationMethod, "Student's t"},
    {Doc::CombinedMethod, "both samples together"},
    {Doc::OutcomesAndPaper, "Outcomes, probability paper and test of fit"},
    {Doc::OnlyStatistics, "only the sample size, GM and GSD are known."},
    {Doc::Paper, "Probability paper and test of fit"},
    {Doc::PictureNeedsSpread, "these numbers are too far apart to be drawn."},
    {Doc::FewDegrees, "it needs more than three degrees of freedom."},
    {Doc::NoGMu, "there is none for so large a GSD and so few outcomes; 0 stands for it."},
    {Doc::NoSpread, "the outcomes have no spread."},
    {Doc::NoComparison, "none was made with these data."},
    {Doc::Everything, "Everything applies."},
    {Doc::En689Accuracy,
     "EN 689 with more than 200 degrees of freedom: a normal approximation takes the place of the "
     "noncentral t distribution. The confidence is within 0.3 percentage points, the fraction "
     "below the limit value within 0.15, and the distance of the upper limit from GM, in standard "
     "deviations of the logarithms, within 0.8 %."},
    {Doc::JahrAccuracy,
     "Jahr's limit of the mean is an approximation: of samples of ten its limit with 95 % "
     "confidence lies above the true mean in 93 of 100 at a GSD of 1.5, in 89 at 2.5 and in 83 at "
     "4."},
    {Doc::CensoredAccuracy,
     "Test of fit with outcomes outside the detection range at one end: probabilities above 5 % "
     "come out too high."},
    {Doc::CensoredBothAccuracy,
     "Test of fit with outcomes outside the detection range at both ends: it finds a poor fit far "
     "less often than its probability says. Of normal samples of 20 to 50, 1 to 3 of 100 fall "
     "below 5 %."},
    {Doc::ThreeAccuracy,
     "Test of fit of three outcomes: the formula gives a probability below 0 whatever the outcomes "
     "are."},
    {Doc::DegreesAccuracy,
     "GSD divides the spread of all outcomes by the degrees of freedom that the detection range "
     "leaves: its logarithm comes out too large, on average by 5 % with 40 of 50 outcomes within "
     "the range, by 23 % with 16."},
    {Doc::ChiAccuracy,
     "Comparison with a population at more than 200 degrees of freedom: the probability of the "
     "dispersion rests on a cube root and is within 0.02 percentage points."},
    {Doc::FAccuracy,
     "Comparison of large samples: the probability of the dispersions rests on a cube root. It is "
     "within 0.15 percentage points where both samples are below 2000, otherwise within 2.5."},
    {Doc::NoWeakness, "No weak approximation was used."},
    {Doc::Version, "Version"},
    {Doc::Coefficients, "Coefficients in use"},
    {Doc::Delivered, "{0} and {1}, as delivered with the program"},
    {Doc::ColumnName, "Name"},
    {Doc::ColumnValue, "Value"},
    {Doc::ColumnUnit, "Unit"},
    {Doc::ColumnMethod, "Method"},
    {Doc::WhatItIs, "What it is"},
    {Doc::NotWritten, "The report could not be written to {0}."},
    {Doc::Written, "Report saved to {0}."},
    {Doc::OwnFile, "{0} holds the series itself: choose another name for the report."},
    {Doc::OtherEnding, "A report is written as .pdf, .txt or .csv: {0} has another ending."},
    {Doc::DialogTitle, "Save the report"},
    {Doc::Files, "PDF document (*.pdf)|*.pdf|Text (*.txt)|*.txt|CSV table (*.csv)|*.csv"},
};

}  // namespace

std::string DocText(Doc id) {
  for (const Row& row : kRows)
    if (row.id == id) return row.text;
  return "";
}

std::string DocText(Doc id, std::initializer_list<std::string> arguments) {
  return WithArguments(DocText(id), arguments);
}
