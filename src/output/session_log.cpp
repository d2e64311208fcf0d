#include "output/session_log.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "files/append.h"
#include "output/log_name.h"
#include "output/screen_record.h"

namespace output {
namespace {

using files::Appended;

constexpr int kAppended = 732;
constexpr int kAppendedTo = 733;
constexpr int kLogError = 735;
constexpr int kNoName = 740;

// Another instance writes its record in a moment; a program that keeps the file for longer has a
// reason.
constexpr std::chrono::milliseconds kPatience(2000);

Own WhyNotOpened(Appended outcome) {
  switch (outcome) {
    case Appended::NoFolder:
      return Own::LogNoFolder;
    case Appended::IsFolder:
      return Own::LogIsFolder;
    case Appended::NoFile:
      return Own::LogNoFile;
    case Appended::NotAllowed:
      return Own::LogNotAllowed;
    case Appended::NameTooLong:
      return Own::LogNameTooLong;
    default:
      return Own::LogSystemRefuses;
  }
}

// The limits screen asks for no name.
bool NeedsName(const screen::Form& form) { return form.name != "GrenzenForm"; }

}  // namespace

void SessionLog::Tell(const std::string& text, const std::string& title, screen::Icon icon) {
  Workflow& flow = record_.Flow();
  flow.MsgTitle = title;
  flow.MsgText = text;
  ports_.messageBox.Show({text, title, icon});
}

void SessionLog::TellAppended() {
  const std::string& log = record_.Now().LogName;
  std::string text = LoadResString(kAppendedTo) + log;
  if (std::filesystem::path(log).is_relative()) text += record_.Now().CR + WholePath(log);
  Tell(text, LoadResString(kAppended), screen::Icon::None);
}

void SessionLog::Append(const screen::Form& form, const std::string& seriesFile) {
  const ExposureSession& s = record_.Now();
  const std::string& error = LoadResString(kLogError);
  if (s.Name.empty() && NeedsName(form)) {
    Tell(LoadResString(kNoName), error, screen::Icon::Exclamation);
    return;
  }
  record_.Flow().LogName = LogNameOf(s.Name);
  const std::string whole = WholePath(s.LogName);
  if (files::IsSeriesFile(s.LogName, seriesFile)) {
    Tell(OwnText(Own::LogIsSeries, {whole}), error, screen::Icon::Exclamation);
    return;
  }
  const std::string text = ScreenRecord(form, s, ports_.clock.Now(), Medium::Log);
  const Appended outcome = files::AppendWhole(s.LogName, text, kPatience);
  if (files::RefusesToOpen(outcome))
    throw std::runtime_error(OwnText(Own::LogNotOpened, {whole, OwnText(WhyNotOpened(outcome))}));
  if (outcome == Appended::Done) {
    TellAppended();
    return;
  }
  const Own why = outcome == Appended::InUse ? Own::LogInUse : Own::LogNotWritten;
  Tell(OwnText(why, {whole}), error, screen::Icon::Exclamation);
}

navigation::OutputOffer SessionLog::Offer() const {
  const std::string& name = record_.Now().Name;
  navigation::OutputOffer offer{!name.empty(), {}, {}};
  // An & in the user's own name is no access key.
  for (const char c : LogCaption(name)) offer.caption.append(c == '&' ? 2 : 1, c);
  if (!name.empty()) offer.tip = WholePath(LogNameOf(name));
  return offer;
}

}  // namespace output
