#include "start/hand_over.h"

#include <algorithm>
#include <filesystem>

#include "catalog/document_texts.h"
#include "document/pages.h"
#include "document/plain_text.h"
#include "files/append.h"
#include "files/safe_writer.h"
#include "output/pdf_name.h"

namespace start {
namespace {

std::string Ending(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  std::ranges::transform(ending, ending.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return ending;
}

// Why nothing may be written there; empty where it may.
std::string Refusal(const std::string& seriesFile, const std::string& path,
                    const std::string& ending) {
  if (files::IsSeriesFile(path, seriesFile)) return DocText(Doc::OwnFile, {path});
  const bool known = ending == ".pdf" || ending == ".txt" || ending == ".csv";
  return known ? std::string() : DocText(Doc::OtherEnding, {path});
}

bool Write(screen::Ports& ports, const std::string& path, const std::string& ending,
           const document::Contents& contents) {
  if (ending == ".txt") return files::WriteSafely(path, document::PlainText(contents));
  if (ending == ".csv") return files::WriteSafely(path, document::Csv(contents));
  return ports.printer.WritePdf(
      path, {contents.title + ": " + contents.name, document::PagesOf(contents)});
}

}  // namespace

void HandOver(Record& record, screen::Form& from, const std::string& seriesFile) {
  const ExposureSession& s = record.Now();
  screen::Ports& ports = from.ports;
  const std::string title = DocText(Doc::DialogTitle);
  const std::string path =
      ports.fileDialog.Ask({true, title, DocText(Doc::Files), output::PdfNameOf(s.Name), "", 0});
  if (path.empty()) return;
  const std::string ending = Ending(path);
  const std::string refusal = Refusal(seriesFile, path, ending);
  if (!refusal.empty()) {
    from.Complain(refusal, title);
    return;
  }
  const screen::Busy busy(from);
  const bool compared = record.Comparison() != nullptr;
  if (Write(ports, path, ending, document::Compose(s, {ports.clock.Now(), compared})))
    record.Report(s.CurrentTab.value_or(ScreenId::Basis),
                  {.did = Did::Said, .what = DocText(Doc::Written, {path})});
  else
    from.Complain(DocText(Doc::NotWritten, {path}), title);
}

}  // namespace start
