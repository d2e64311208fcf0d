#include "ui/cups_system.h"

#include <cups/cups.h>

#include <QTemporaryFile>

namespace ui {
namespace {

// Those of one job.
class Options {
 public:
  explicit Options(const PrintChoice& choice) {
    for (const auto& [name, value] : choice.options) Add(name.c_str(), value.c_str());
    Add("document-format", "application/pdf");
  }
  ~Options() { cupsFreeOptions(count_, all_); }
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  int Count() const { return count_; }
  cups_option_t* All() const { return all_; }

 private:
  void Add(const char* name, const char* value) {
    count_ = cupsAddOption(name, value, count_, &all_);
  }

  int count_ = 0;
  cups_option_t* all_ = nullptr;
};

}  // namespace

bool CupsSystem::AnyPrinter() {
  cups_dest_t* printers = nullptr;
  const int count = cupsGetDests(&printers);
  cupsFreeDests(count, printers);
  return count > 0;
}

bool CupsSystem::Submit(const PrintChoice& choice, const std::string& title,
                        const QByteArray& pdf) {
  QTemporaryFile file;
  if (!file.open() || file.write(pdf) != pdf.size() || !file.flush()) return false;
  const Options options(choice);
  // Behind a slash stands a name that the user gave to some settings of the printer.
  const std::string queue = choice.printer.substr(0, choice.printer.find('/'));
  const QByteArray path = file.fileName().toLocal8Bit();
  return cupsPrintFile(queue.c_str(), path.constData(), title.c_str(), options.Count(),
                       options.All()) != 0;
}

}  // namespace ui
