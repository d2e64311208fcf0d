#include "output/printing.h"

#include "catalog/catalog.h"
#include "catalog/own_texts.h"
#include "files/append.h"
#include "output/form_record.h"
#include "output/grid_pages.h"
#include "output/pdf_name.h"
#include "output/record_lines.h"
#include "output/screen_record.h"
#include "screen/picture.h"
#include "session/global_bas.h"

namespace output {
namespace {

constexpr int kPrintError = 755;
constexpr int kNotPrinted = 760;

// A screen that consists of a picture is printed as that picture.
const screen::Picture* PictureOf(const screen::Form& form) {
  for (const screen::Control* control : form.controls)
    if (control->kind == screen::Kind::Picture) return static_cast<const screen::Picture*>(control);
  return nullptr;
}

std::string TitleOf(const screen::Form& form) { return GlobalBAS::Trim(form.caption); }

}  // namespace

Foot Printing::FootOf(const screen::Form& form) const {
  Foot foot{record_.Now().Name, DateWords(ports_.clock.Now()), ""};
  const screen::Control* window = form.Find("WindnrLbl");
  if (window && !window->text.empty()) foot.window = OwnText(Own::WindowNumber, {window->text});
  return foot;
}

void Printing::PrintForm(screen::Form& form) {
  form.Refresh();
  const screen::Picture* picture = PictureOf(form);
  const drawing::DrawingRecord shown = picture ? picture->drawing : ports_.surface.Drawn(form);
  const Foot foot = FootOf(form);
  Print(TitleOf(form), [&](screen::Extent paper) {
    return std::vector<drawing::DrawingRecord>{FormPage(shown, foot, paper)};
  });
}

void Printing::PrintGrid(const screen::Form& form, const screen::Grid& grid) {
  const Foot foot = FootOf(form);
  const std::string title = PlainCaption(grid.text.empty() ? TitleOf(form) : grid.text);
  Print(title, [&](screen::Extent paper) { return GridPages(TableOf(grid), title, foot, paper); });
}

Printing::Way Printing::Print(const std::string& title, const Compose& pages) {
  if (!chosen_ && ports_.printer.AnyPrinter()) {
    if (!ports_.printer.Choose()) return Way::Cancelled;
    chosen_ = true;
  }
  const screen::PrintJob job{title, pages(ports_.printer.Paper())};
  if (!chosen_) return ToFile(job);
  if (ports_.printer.Print(job)) return Way::Out;
  TellNotPrinted(screen::Icon::Exclamation);
  return Way::Refused;
}

Printing::Way Printing::ToFile(const screen::PrintJob& job) {
  const std::string path =
      ports_.fileDialog.Ask({true, OwnText(Own::PrintToPdf), OwnText(Own::PdfFiles),
                             PdfNameOf(record_.Now().Name), "", 0});
  if (path.empty()) return Way::Cancelled;
  const bool series = files::IsSeriesFile(path, seriesFile_());
  if (!series && ports_.printer.WritePdf(path, job)) return Way::Out;
  ports_.messageBox.Show({OwnText(series ? Own::PdfIsSeries : Own::PdfNotWritten, {path}),
                          LoadResString(kPrintError), screen::Icon::Exclamation});
  return Way::Refused;
}

void Printing::ChoosePrinter() {
  if (ports_.printer.AnyPrinter()) {
    chosen_ = ports_.printer.Choose() || chosen_;
    return;
  }
  chosen_ = false;
  ports_.messageBox.Show(
      {OwnText(Own::NoPrinter), OwnText(Own::PrintToPdf), screen::Icon::Information});
}

void Printing::TellNotPrinted(screen::Icon icon) {
  record_.Flow().MsgTitle = LoadResString(kPrintError);
  record_.Flow().MsgText = LoadResString(kNotPrinted);
  ports_.messageBox.Show({record_.Now().MsgText, record_.Now().MsgTitle, icon});
}

}  // namespace output
