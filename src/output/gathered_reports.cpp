// The reports that wait for the printer, and what becomes of them at the end.
#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "output/log_name.h"
#include "output/pdf_name.h"
#include "output/printing.h"
#include "output/report_pages.h"
#include "output/screen_record.h"
#include "session/global_bas.h"

namespace output {
namespace {

std::vector<std::string> LinesOf(const std::string& text) {
  constexpr std::string_view kEnd = "\r\n";
  std::vector<std::string> lines;
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(kEnd, from)) != std::string::npos; from = at + kEnd.size())
    lines.push_back(text.substr(from, at - from));
  return lines;
}

}  // namespace

// A line that fails is told, and the next one is tried.
void Printing::AddReport(const screen::Form& form) {
  const ExposureSession& s = record_.Now();
  bool taken = false;
  for (const std::string& line :
       LinesOf(ScreenRecord(form, s, ports_.clock.Now(), Medium::Report))) {
    if (ports_.printer.TakeLine(line))
      taken = true;
    else
      TellNotPrinted(screen::Icon::None);
  }
  if (!taken) return;
  ++gathered_;
  log_ = LogNameOf(s.Name);
}

screen::PrintJob Printing::Document() {
  return {OwnText(Own::GatheredReports),
          ReportPages(ports_.printer.OpenDocument(), ports_.printer.Paper())};
}

Printing::Way Printing::PrintGathered() {
  if (gathered_ == 0) return Way::Out;
  const Way way = Print(OwnText(Own::GatheredReports), [this](screen::Extent paper) {
    return ReportPages(ports_.printer.OpenDocument(), paper);
  });
  if (way == Way::Out) Drop();
  return way;
}

void Printing::Drop() {
  ports_.printer.CloseDocument();
  gathered_ = 0;
}

std::string Printing::KeptName() const { return UnusedPdfBeside(log_); }

bool Printing::Keep(const std::string& path) {
  if (!ports_.printer.WritePdf(path, Document())) return false;
  Drop();
  return true;
}

// What can't be printed, or kept, is still there, and so is the program.
bool Printing::MayEnd() {
  using namespace screen;
  constexpr int kExit = 210;
  if (gathered_ == 0) return true;
  const std::string path = KeptName();
  const std::string text = gathered_ == 1
                               ? OwnText(Own::OneReportWaits)
                               : OwnText(Own::ReportsWait, {GlobalBAS::FileText(gathered_)});
  switch (ports_.messageBox.Show({text, LoadResString(kExit), Icon::Question,
                                  Buttons::PrintKeepDropCancel, Answer::Print,
                                  OwnText(Own::KeptAs, {path})})) {
    case Answer::Print:
      return PrintGathered() == Way::Out;
    case Answer::Keep:
      if (Keep(path)) return true;
      ports_.messageBox.Show(
          {OwnText(Own::NotKept, {path}), LoadResString(kExit), Icon::Exclamation});
      // Where that folder takes no file, another one may.
      if (ToFile(Document()) != Way::Out) return false;
      Drop();
      return true;
    case Answer::Drop:
      Drop();
      return true;
    default:
      return false;
  }
}

void Printing::End() {
  if (gathered_ == 0 || Keep(KeptName())) return;
  for (const std::string& folder : OtherFolders())
    if (Keep(UnusedPdfBeside(folder + "/.LOG"))) return;
}

}  // namespace output
