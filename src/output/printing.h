#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "output/form_page.h"
#include "screen/form.h"
#include "session/record.h"

namespace output {

// All that goes to the printer. Screens, tables and samples of a font are jobs of their own;
// reports run on behind each other in one document, which is printed when the user says so, when
// the data are closed, and at the end of the program. A document that could not be printed stays
// for another try.
class Printing {
 public:
  enum class Way { Out, Cancelled, Refused };
  using Compose = std::function<std::vector<drawing::DrawingRecord>(screen::Extent paper)>;

  // `seriesFile` tells the file that holds the series, which no PDF file replaces; empty where none
  // does.
  Printing(screen::Ports& ports, Record& record, std::function<std::string()> seriesFile)
      : ports_(ports), record_(record), seriesFile_(std::move(seriesFile)) {}

  void PrintForm(screen::Form& form);
  void PrintGrid(const screen::Form& form, const screen::Grid& grid);
  // One job. The first of a run asks for a printer; without any the user is offered a PDF file.
  Way Print(const std::string& title, const Compose& pages);
  void ChoosePrinter();

  // Sets the record of the screen to the open document, and tells each line that it did not take.
  void AddReport(const screen::Form& form);
  int Gathered() const { return gathered_; }
  Way PrintGathered();

  // The program is to end: asks what becomes of the gathered reports. False when it may not end.
  bool MayEnd();
  // The same where nobody can be asked: what has not been printed is kept, beside the log or
  // wherever there is room for it.
  void End();

 private:
  Foot FootOf(const screen::Form& form) const;
  Way ToFile(const screen::PrintJob& job);
  void TellNotPrinted(screen::Icon icon);
  screen::PrintJob Document();
  std::string KeptName() const;
  bool Keep(const std::string& path);
  void Drop();

  screen::Ports& ports_;
  Record& record_;
  std::function<std::string()> seriesFile_;
  bool chosen_ = false;  // a printer, for the whole run
  int gathered_ = 0;     // reports with a line in the open document
  std::string log_;      // that of the series of the last report
};

}  // namespace output
