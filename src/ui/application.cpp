#include "ui/application.h"

#include <QApplication>

#include <clocale>
#include <csignal>

#include "ui/live_label.h"
#include "ui/outlined_style.h"
#include "ui/picture_file.h"
#include "ui/picture_font.h"
#include "ui/splash.h"
#include "ui/text.h"
#include "ui/undo_history.h"
#include "ui/vector_registers.h"

namespace ui {
namespace {

// What the handler has changed so far stands on the screen behind the box.
class BoxOverWindow final : public screen::MessageBox {
 public:
  explicit BoxOverWindow(screen::MessageBox& box) : box_(box) {}
  void SetWindow(MainWindow* window) { window_ = window; }
  screen::Answer Show(const screen::Message& message) override {
    if (window_) window_->ShowState();
    const screen::Answer answer = box_.Show(message);
    ClearVectorRegisters();
    return answer;
  }

 private:
  screen::MessageBox& box_;
  MainWindow* window_ = nullptr;
};

class FileDialogOverWindow final : public screen::FileDialog {
 public:
  explicit FileDialogOverWindow(screen::FileDialog& dialog) : dialog_(dialog) {}
  std::string Ask(const Request& request) override {
    std::string path = dialog_.Ask(request);
    ClearVectorRegisters();
    return path;
  }

 private:
  screen::FileDialog& dialog_;
};

class TableDialogOverWindow final : public screen::TableDialog {
 public:
  explicit TableDialogOverWindow(screen::TableDialog& dialog) : dialog_(dialog) {}
  std::optional<std::size_t> Ask(const Question& question) override {
    const auto choice = dialog_.Ask(question);
    ClearVectorRegisters();
    return choice;
  }

 private:
  screen::TableDialog& dialog_;
};

// What the handler calculates behind a painting runs as fast as before it.
class WindowSurface final : public screen::Surface {
 public:
  void SetWindow(MainWindow* window) { window_ = window; }
  void Repaint(screen::Form& form) override {
    if (window_) window_->Repaint(form);
    ClearVectorRegisters();
  }
  void RepaintControl(screen::Form& form, screen::Control& control) override {
    if (window_) window_->RepaintControl(form, control);
    ClearVectorRegisters();
  }
  drawing::DrawingRecord Drawn(screen::Form& form) override {
    drawing::DrawingRecord drawn = window_->Drawn(form);
    ClearVectorRegisters();
    return drawn;
  }

 private:
  MainWindow* window_ = nullptr;
};

// The data folder of a build, of an installation, and the program's own folder.
std::vector<std::string> DataFolders() {
  const QString own = QCoreApplication::applicationDirPath();
  std::vector<std::string> folders;
  for (const char* below : {"", "/../data", "/../share/valkorin"})
    folders.push_back(Typed(own + QLatin1String(below)));
  return folders;
}

}  // namespace

struct Application::Parts {
  explicit Parts(const Surroundings& around)
      : box(around.messageBox),
        fileDialog(around.fileDialog),
        tableDialog(around.tableDialog),
        ports{box,         fileDialog,     surface, around.clock,
              pictureFile, around.printer, history, tableDialog},
        program(ports, DataFolders()) {
    window = std::make_unique<MainWindow>(program, ports);
    surface.SetWindow(window.get());
    box.SetWindow(window.get());
  }

  BoxOverWindow box;
  FileDialogOverWindow fileDialog;
  TableDialogOverWindow tableDialog;
  WindowSurface surface;
  PictureFile pictureFile;
  UndoHistory history;
  screen::Ports ports;
  start::Program program;
  std::unique_ptr<MainWindow> window;
};

Application::Application(const Surroundings& around) : parts_(std::make_unique<Parts>(around)) {}

Application::~Application() = default;

start::Program& Application::Program() { return parts_->program; }

MainWindow& Application::Window() { return *parts_->window; }

void Application::Start() {
  Splash splash;
  splash.Present();
  parts_->program.Start();
  parts_->program.TellState();
  parts_->window->ShowState();
  parts_->window->show();
  parts_->window->activateWindow();
}

void PrepareToolkit() {
  // The toolkit has taken the user's locale over; numbers are the program's own.
  std::setlocale(LC_NUMERIC, "C");
#ifdef SIGXFSZ
  // A file that may not grow any further is a failed write, not the end of the program.
  std::signal(SIGXFSZ, SIG_IGN);
#endif
  LoadPictureFont();
  AnnounceLiveLabels();
  QApplication::setStyle(new OutlinedStyle(QStringLiteral("Fusion")));
}

}  // namespace ui
