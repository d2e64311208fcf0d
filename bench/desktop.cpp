#include "bench/desktop.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <stdexcept>
#include <utility>

#include "files/safe_writer.h"
#include "ui/pdf_pages.h"

namespace bench {

void Paint(ui::Application& application) {
  QApplication::processEvents();
  application.Window().repaint();
}

bool FilePrinter::WritePdf(const std::string& path, const screen::PrintJob& job) {
  const QByteArray pdf = ui::PdfOf(job);
  return files::WriteSafely(path, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
}

Desktop::Desktop() {
  application.Start();
  Paint(application);
}

void Desktop::Menu(const char* name) {
  screen::Form& shown = application.Program().Shown();
  application.Window().ActionOf(shown, *shown.Find(name))->trigger();
  Paint(application);
}

void Desktop::Open(const std::string& path) {
  fileDialog.path = path;
  Menu("menuopen");
  if (application.Program().Shown().name != "DataCtrlForm")
    throw std::runtime_error("the series was not opened");
}

void Desktop::Show(workflow::ScreenId screen) {
  application.Program().Open(screen);
  application.Window().ShowState();
  Paint(application);
}

void Desktop::InHandler(const screen::Handler& work) {
  screen::Form& shown = application.Program().Shown();
  screen::Control& button = *shown.Find("CmdContinu");
  const screen::Handler own = std::exchange(button.Click, [&] {
    shown.Refresh();
    work();
  });
  qobject_cast<QAbstractButton*>(application.Window().WidgetOf(shown, button))->click();
  button.Click = own;
}

}  // namespace bench
