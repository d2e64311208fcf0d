#include "navigation/action_text.h"

#include "catalog/own_texts.h"
#include "session/global_bas.h"

namespace navigation {
namespace {

struct Counted {
  Did did;
  Own one;
  Own many;
};
constexpr Counted kCounted[] = {
    {Did::Read, Own::OneRead, Own::OutcomesRead},
    {Did::Pasted, Own::OnePasted, Own::Pasted},
    {Did::Copied, Own::OneCopied, Own::Copied},
    {Did::Deleted, Own::OneDeleted, Own::RowsDeleted},
    {Did::Saved, Own::OneSaved, Own::OutcomesSaved},
};

struct Named {
  Did did;
  Own sentence;  // {0} is what, {1} the count
};
constexpr Named kNamed[] = {
    {Did::Sorted, Own::Sorted},
    {Did::NotSaved, Own::SeriesNotWritten},
    {Did::NotOverwritten, Own::NotOverwritten},
    {Did::SaveRefused, Own::SaveRefused},
    {Did::NoOutcome, Own::NoOutcome},
    {Did::Undone, Own::Undone},
    {Did::Redone, Own::Redone},
    {Did::LineBeyondNumbers, Own::LineBeyondNumbers},
    {Did::EstimatesPutBack, Own::EstimatesPutBack},
    {Did::PictureSaved, Own::PictureSaved},
};

}  // namespace

std::string ActionText(const ExposureSession& s, const LastAction& action) {
  const std::string count = GlobalBAS::GeneralText(action.count);
  for (const Counted& row : kCounted)
    if (row.did == action.did)
      return OwnText(action.count == 1 ? row.one : row.many, {count}) + action.what;
  for (const Named& row : kNamed)
    if (row.did == action.did) return OwnText(row.sentence, {action.what, count});
  if (action.did == Did::LimitRefused)
    return OwnText(Own::LimitReset, {action.what, GlobalBAS::ShownTrimmed(s, s.OELV)});
  return action.did == Did::Said ? action.what : std::string();
}

}  // namespace navigation
