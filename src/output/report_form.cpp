#include "output/report_form.h"

#include <algorithm>
#include <stdexcept>

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "files/tail.h"
#include "output/log_name.h"

namespace output {
namespace {

constexpr std::size_t kMost = std::size_t{4} << 20;

// Lines that end in CR LF, in CR or in LF, all with a line feed.
std::string WithLineFeeds(const std::string& bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool pair = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
    if (!pair) text += bytes[i] == '\r' ? '\n' : bytes[i];
  }
  return text;
}

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string Lowered(std::string text) {
  std::ranges::transform(text, text.begin(), Lower);
  return text;
}

// Where `wanted` stands next, from `from` or before it on; beyond the end the search goes on at the
// other one.
std::size_t Next(const std::string& text, const std::string& wanted, std::size_t from) {
  const std::size_t found = text.find(wanted, from);
  return found == std::string::npos ? text.find(wanted) : found;
}

std::size_t Before(const std::string& text, const std::string& wanted, std::size_t from) {
  const std::size_t found = from == 0 ? std::string::npos : text.rfind(wanted, from - 1);
  return found == std::string::npos ? text.rfind(wanted) : found;
}

}  // namespace

ReportForm::ReportForm(const Record& sessionRecord, screen::Ports& formPorts)
    : ReadingWindow("ReportForm", formPorts), session(sessionRecord.Now()) {
  search = &FindTxB;
  next = &FindNextCmd;
  previous = &FindBackCmd;
  ReportTxb.locked = true;
  Closed = [this] { Close(); };
  FileGrown = [this] { Renew(); };
  FindNextCmd.Click = FindTxB.EnterKey = [this] { Find(false); };
  FindBackCmd.Click = [this] { Find(true); };
  FindTxB.Change = [this] { FoundLbl.text.clear(); };
}

void ReportForm::Load() {
  FindLbl.text = OwnText(Own::LogFind);
  FindNextCmd.text = OwnText(Own::LogFindNext);
  FindBackCmd.text = OwnText(Own::LogFindBack);
}

void ReportForm::MenuReportOpen_Click() {
  if (session.LogName.empty()) return;
  if (shown) {
    Close();
    return;
  }
  if (!Read()) throw std::runtime_error(OwnText(Own::LogNotRead, {WholePath(session.LogName)}));
  ReportTxb.ShowEnd();
  shown = true;
}

void ReportForm::Renew() {
  if (shown) Read();
}

bool ReportForm::Read() {
  const std::optional<files::Tail> log = files::ReadTail(session.LogName, kMost);
  if (!log) return false;
  caption = WholePath(session.LogName);
  file = caption;
  std::string text = WithLineFeeds(log->bytes);
  if (!log->whole) text = OwnText(Own::LogTail) + ("\n" + text);
  ReportTxb.text = std::move(text);
  return true;
}

void ReportForm::Close() {
  shown = false;
  file.clear();
  ReportTxb.text.clear();
  FoundLbl.text.clear();
}

void ReportForm::FollowSession() {
  if (shown && session.LogName.empty()) Close();
}

navigation::OutputOffer ReportForm::Offer() const {
  constexpr int kShow = 73;
  constexpr int kClose = 79;
  const std::string& log = session.LogName;
  return {true, LoadResString(shown ? kClose : kShow), log.empty() ? "" : WholePath(log)};
}

// Capital and small letters are the same.
void ReportForm::Find(bool back) {
  FoundLbl.text.clear();
  if (FindTxB.text.empty()) return;
  const std::string text = Lowered(ReportTxb.text);
  const std::string wanted = Lowered(FindTxB.text);
  const std::size_t behind = ReportTxb.from + ReportTxb.length;
  const std::size_t found =
      back ? Before(text, wanted, ReportTxb.from) : Next(text, wanted, behind);
  if (found == std::string::npos)
    FoundLbl.text = OwnText(Own::LogNotFound, {FindTxB.text});
  else
    ReportTxb.Select(found, wanted.size());
}

}  // namespace output
