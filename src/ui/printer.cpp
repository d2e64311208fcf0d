#include "ui/printer.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPdfWriter>

#include "files/safe_writer.h"
#include "ui/pdf_pages.h"
#include "ui/text.h"

namespace ui {
namespace {

// In twips: the page of a file where there is no printer.
constexpr screen::Extent kA4{11906, 16838};

}  // namespace

bool Printer::Choose() {
  std::optional<PrintChoice> choice = chooser_.Choose();
  if (!choice) return false;
  choice_ = std::move(choice);
  return true;
}

screen::Extent Printer::Paper() {
  return choice_ && choice_->paper.width > 0 ? choice_->paper : kA4;
}

bool Printer::Print(const screen::PrintJob& job) {
  if (!choice_) return false;
  const QByteArray pdf = PdfOf(job);
  return !pdf.isEmpty() && system_.Submit(*choice_, job.title, pdf);
}

bool Printer::WritePdf(const std::string& path, const screen::PrintJob& job) {
  const QByteArray pdf = PdfOf(job);
  return !pdf.isEmpty() &&
         files::WriteSafely(path, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
}

// Some thousand pages are no report any more.
bool Printer::TakeLine(const std::string& line) {
  constexpr std::size_t kMostLines = 250'000;
  if (lines_.size() >= kMostLines) return false;
  lines_.push_back(line);
  return true;
}

std::vector<std::string> Printer::Fonts() {
  std::vector<std::string> families;
  for (const QString& family : QFontDatabase::families())
    if (!QFontDatabase::isPrivateFamily(family)) families.push_back(Typed(family));
  return families;
}

screen::Extent Printer::TextExtent(const std::string& line, const drawing::TextStyle& style) {
  constexpr int kTwipsToTheInch = 1440;
  QByteArray nothing;
  QBuffer buffer(&nothing);
  QPdfWriter paper(&buffer);
  paper.setResolution(kTwipsToTheInch);
  QFont font(Shown(style.family));
  font.setPointSizeF(style.size);
  const QFontMetricsF metrics(font, &paper);
  return {metrics.horizontalAdvance(Shown(line)), metrics.height()};
}

}  // namespace ui
