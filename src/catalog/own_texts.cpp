#include "catalog/own_texts.h"

namespace {

struct Row {
  Own id;
  const char* text;
};

constexpr Row kRows[] = {
    {Own::LeftOut,
     "The {0} highest outcomes are left out ({1}); sample size {2} brings them back."},
    {Own::LeftOutOne, "The highest outcome is left out ({1}); sample size {2} brings it back."},
    {Own::AllEqual, "All outcomes are equal: there is no spread to evaluate."},
    {Own::SpreadTooLarge, "The outcomes lie too far apart: a GSD of 10000 or more is no estimate."},
    {Own::NoDegreeOfFreedom,
     "Too few outcomes lie within the detection range: no degree of freedom is left, so there are "
     "no tests, no mean and no comparison."},
    {Own::EstimatesOfAll, "GM, GSD and df are those of all {0} outcomes."},
    {Own::EstimatesByRange,
     "GM and GSD are of all {0} outcomes, with the {1} degrees of freedom that the detection range "
     "leaves."},
    {Own::EstimatesOfRegression,
     "GM and GSD are estimated by the line through the {0} outcomes within the range."},
    {Own::LineBeyondNumbers,
     "The estimates of this line are beyond what can be calculated with: GM and GSD stay those of "
     "all outcomes."},
    {Own::LimitReset, "The limit value {0} was out of range; {1} now stands."},
    {Own::NoPicture, "These numbers are too far apart to be drawn."},
    {Own::PictureNeedsTest, "The test on show did not compute every number of the picture."},
    {Own::PictureNeedsEstimates, "There are no GM and GSD to draw yet."},
    {Own::StaleTest, "Statistics or limits have changed since this test: press its button again."},
    {Own::ResultsDiffer,
     "Results can differ because each test judges another estimate: Leidel the best guess of the "
     "exceedance, Wilks the same with the sample's own uncertainty averaged in, EN 689 a limit "
     "that "
     "holds with {0} % confidence."},
    {Own::VerdictsTitle, "The tests side by side"},
    {Own::VerdictsTest, "Test"},
    {Own::VerdictsEstimate, "Estimate"},
    {Own::VerdictsLimit, "Upper limit of {0} %"},
    {Own::VerdictsVerdict, "Verdict"},
    {Own::PercentAbove, "{0} % above OELV"},
    {Own::PercentConfidence, "{0} % confidence"},
    {Own::Complies, "Compliance"},
    {Own::CompliesNot, "Non-compliance"},
    {Own::NotComputed, "Not computed: {0}."},
    {Own::VerdictsAgree, "These verdicts agree. The numbers differ by what each test allows for: "},
    {Own::VerdictsDisagree, "These verdicts differ by what each test allows for: "},
    {Own::LeidelManner, "Leidel takes GM and GSD as the population's (maximum likelihood)"},
    {Own::WilksManner, "Wilks averages over what {0} degrees of freedom leave open (unbiased)"},
    {Own::En689Manner, "EN 689 judges a limit that holds with {1} % confidence"},
    {Own::FileNotReadable, "This file could not be read:"},
    {Own::FileTooLarge, "This file is larger than 64 MiB, which no raw data file is:"},
    {Own::LineRefused, "Line {0} holds \"{1}\", which is no outcome between 1E-10 and 1E+10."},
    {Own::BelowALimit,
     "Enter values below a limit as numbers, and state the limit as a detection range."},
    {Own::SeriesFiles, "Valkorin Files (*.vkr)|*.vkr"},
    {Own::PictureFiles, "Valkorin Files (*.bmp)|*.bmp"},
    {Own::ChangedByAnother, "Another program has changed this file since it was read:"},
    {Own::OverwriteChanges, "Overwrite those changes?"},
    {Own::NotOverwritten,
     "The file was left as the other program has made it. The series is not saved."},
    {Own::LastOfList, " and "},
    {Own::MoreOfList, " and {0} more"},
    {Own::PastedLine, "Line {0}: \"{1}\". "},
    {Own::NothingPasted, "Nothing was pasted."},
    {Own::OutcomesRead, "{0} outcomes read."},
    {Own::OutcomesSaved, "{0} outcomes saved."},
    {Own::TrailingText, " Text behind the number on line {0} was passed over."},
    {Own::CommaAndPoint,
     " Both comma and point on line {0}: the last one was read as the decimal sign."},
    {Own::Undo, "&Undo"},
    {Own::UndoStep, "&Undo {0}"},
    {Own::Redo, "&Redo"},
    {Own::RedoStep, "&Redo {0}"},
    {Own::StepTyped, "outcome {0} in row {1}"},
    {Own::StepEmptied, "emptying of row {0}"},
    {Own::StepAdded, "added outcome {0}"},
    {Own::StepPastedOne, "paste of 1 outcome"},
    {Own::StepPasted, "paste of {0} outcomes"},
    {Own::StepDeletedOne, "deletion of row {0}"},
    {Own::StepDeleted, "deletion of {0} rows"},
    {Own::StepUnit, "unit {0}"},
    {Own::StepRangeOn, "detection range on"},
    {Own::StepRangeOff, "detection range off"},
    {Own::StepLOQ, "LOQ {0}"},
    {Own::StepURR, "URR {0}"},
    {Own::StepSampleSize, "sample size {0}"},
    {Own::SeriesNotWritten, "The file could not be written: {0}. The series is not saved."},
    {Own::OlderWilksLimit, "; its box still shows the limit of the test before."},
    {Own::UTLTooSmall, "Upper tolerance limit is smaller than 1E-300"},
    {Own::UTLTooLarge, "Upper tolerance limit is larger than 1E+300"},
    {Own::CoverageTooLow, "Desired population Coverage U% in Tab Limits must be more than 50%"},
    {Own::En689FewResults, "Fewer than six results (df up to 4) give no EN 689 decision."},
    {Own::En689NoConfidence,
     "Without a U above 50 % there is no confidence and no tolerance limit. {0}"},
    {Own::En689OlderLimit,
     "Without a U above 50 % there is no confidence and no tolerance limit; the verdict is on the "
     "limit of the test before. "},
    {Own::En689NothingDecided,
     "Without a U above 50 % there is no confidence and no tolerance limit: nothing is decided."},
    {Own::En689PictureNote, "confidence that less than {0}% exceeds H"},
    {Own::LandCaption, "Calculating the Confidence Factor"},
    {Own::LandInterval, "Initial Interval"},
    {Own::LandTo, "to"},
    {Own::LandFactor,
     "Land's factor C to calculate the upper confidence limit of the aritmetic mean in a Lognormal "
     "distribution"},
    {Own::LandLost, "the search has lost its bracket"},
    {Own::LandSize, "Sample Size out of range. "},
    {Own::LandConfidence, "Desired Confidence U out of range. "},
    {Own::LandUseJahr, "Use Jahr's approximate method"},
    {Own::AnnexProbability, "Probability"},
    {Own::AnnexExposure, "Exposure Xk"},
    {Own::DataOf, "exposure data of "},
    {Own::PictureNotWrittenTo, "The picture could not be written to {0}."},
    {Own::PictureNotWritten, "The picture could not be written."},
    {Own::PeriodMonth, "1 month"},
    {Own::PeriodQuarter, "3 months"},
    {Own::PeriodYear, "1 year"},
    {Own::PeriodWorkingLife, "40 years"},
    {Own::PeriodLife, "life time"},
    {Own::ConstantsMissing, "{0} is missing: calculations that need its constants stop."},
    {Own::ConstantsShort,
     "{2} holds {0} of its {1} constants: calculations that need the others stop."},
    {Own::ConstantsDifferent,
     "{0} holds other constants than the file that came with the program: results can differ."},
    {Own::ConstantsNeeded, "{0} lacks constants that it needs"},
    {Own::StepUnfinished,
     "This step could not be finished: {0}. What was entered before it is kept."},
    {Own::ReferenceTooLarge, "A Sample size M of more than thirty thousand is too large"},
    {Own::StepUp, "One step up"},
    {Own::StepDown, "One step down"},
    {Own::TypedNotKept, "What was typed is not kept in any file."},
    {Own::ChangesNotSaved, "Changes of this series are not saved."},
    {Own::SaveChanges, "Save the changes of {0}?"},
    {Own::DontSave, "Do&n't save"},
    {Own::IncompleteNotSaved,
     "A series with empty rows can't be saved. Fill these rows or delete them."},
    {Own::AllowedRange, "Allowed: {0} to {1}."},
    {Own::NowStands, "{0} now stands."},
    {Own::NothingStands, "No valid value stands now."},
    {Own::NoNameStands, "No name stands now."},
    {Own::NoTabsWithoutName, "There are no tabs here: the data have no name."},
    {Own::NoTabsWithoutSize,
     "There are no tabs here: the sample size is no whole number from 2 to 2000."},
    {Own::NoTabsForGM, "There are no tabs here: GM {0} lies outside 0.0001 to 10000."},
    {Own::NoTabsForGSD, "There are no tabs here: GSD {0} lies outside 1.001 to 1000."},
    {Own::ContinueToRawData, "Continue leads to the raw data, and from there to the others."},
    {Own::PictureSpoken, "{0}. GM {1} {2}, GSD {3}. {4}"},
    {Own::CellSpoken, "{0}, row {1}"},
    {Own::CellEmpty, "empty"},
    {Own::CellNew, "new outcome"},
    {Own::OneRead, "1 outcome read."},
    {Own::Pasted, "{0} outcomes pasted."},
    {Own::OnePasted, "1 outcome pasted."},
    {Own::Copied, "{0} outcomes copied."},
    {Own::OneCopied, "1 outcome copied."},
    {Own::RowsDeleted, "{0} rows deleted."},
    {Own::OneDeleted, "1 row deleted."},
    {Own::Sorted, "Sorted: {0} is now in row {1}."},
    {Own::OneSaved, "1 outcome saved."},
    {Own::SaveRefused, "An incomplete series can't be saved."},
    {Own::NoOutcome, "\"{0}\" is no outcome: row {1} stays empty."},
    {Own::Undone, "Undone: {0}."},
    {Own::Redone, "Redone: {0}."},
    {Own::EstimatesPutBack,
     "Raw data has put GM and GSD of all outcomes in force again: open Check distribution to "
     "estimate within the range."},
    {Own::TabClosed, "{0} is closed."},
    {Own::PictureSaved, "Picture saved to {0}."},
    {Own::RowEmpty, "Row {0} is empty."},
    {Own::RowsEmpty, "Rows {0} are empty."},
    {Own::AllRowsEmpty, "All {0} rows are empty: type or paste the outcomes."},
    {Own::BelowLimitHint,
     " Below the limit of detection? Type the limit there and tick Detection range."},
    {Own::NoSampleSize, "The series has no sample size yet."},
    {Own::OutsideRange,
     "{0} outcomes lie outside the detection range, but GM and GSD are of all of them: open Check "
     "distribution to estimate within the range."},
    {Own::OneOutsideRange,
     "1 outcome lies outside the detection range, but GM and GSD are of all of them: open Check "
     "distribution to estimate within the range."},
    {Own::LimitNotStated, "{0} is only the starting value: state your limit."},
    {Own::LimitLeftEmpty, "The limit value was left empty and {0} still stands: state your limit."},
    {Own::LowConfidence, "D = {0} % gives the {0} % limit; the usual one is 95 %."},
    {Own::OneRange,
     "One detection range serves the whole series; several limits of detection can't be told "
     "apart."},
    {Own::OtherValuesTried,
     "Other values are tried on top of the data: Reset on Start brings the data back."},
    {Own::NoLimitYet, "There is no valid limit value yet: state it on Limits."},
    {Own::BeyondStart,
     "GM {0} and GSD {1} are not both within what can be typed here (GM 0.0001 to 10000, GSD 1.001 "
     "to 1000), so there are no tabs: Continue leads to Raw data, and on from there."},
    {Own::NotDescribed, "Name, sample size, GM and GSD are not all there yet."},
    {Own::TooFewForLine, "A line needs three outcomes."},
};

}  // namespace

const char* OwnText(Own id) {
  for (const Row& row : kRows)
    if (row.id == id) return row.text;
  return "";
}

std::string OwnText(Own id, std::initializer_list<std::string> arguments) {
  std::string text = OwnText(id);
  char mark[] = "{0}";
  for (const std::string& argument : arguments) {
    for (std::size_t at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + argument.size()))
      text.replace(at, 3, argument);
    ++mark[1];
  }
  return text;
}
