#include "output/pdf_name.h"

#include <filesystem>

#include "session/global_bas.h"

namespace output {
namespace {

constexpr char kEnding[] = ".pdf";

// Whether something has that name, or it can't be known.
bool Taken(const std::string& path) {
  std::error_code trouble;
  const auto status = std::filesystem::symlink_status(path, trouble);
  return status.type() != std::filesystem::file_type::not_found &&
         status.type() != std::filesystem::file_type::none;
}

}  // namespace

std::string PdfNameOf(const std::string& name) {
  const std::string trimmed = GlobalBAS::Trim(name);
  if (trimmed.empty()) return std::string("print") + kEnding;
  const std::size_t folder = trimmed.find_last_of("/\\");
  const std::size_t point = trimmed.rfind('.');
  const std::size_t first = folder == std::string::npos ? 0 : folder + 1;
  const bool ending = point != std::string::npos && point > first;
  return trimmed.substr(0, ending ? point : std::string::npos) + kEnding;
}

std::string UnusedPdfBeside(const std::string& log) {
  std::string stem = log.substr(0, log.rfind('.'));
  if (!stem.empty() && stem.back() != '/' && stem.back() != '\\') stem += ' ';
  stem += "reports";
  std::string path = stem + kEnding;
  for (double number = 2; Taken(path); ++number)
    path = stem + " " + GlobalBAS::FileText(number) + kEnding;
  return path;
}

}  // namespace output
