#include "output/pdf_name.h"

#include <cstdlib>
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

// Cuts the end of the file's name off where a file system would not take it with what is added.
void MakeRoom(std::string& stem, std::size_t added) {
  constexpr std::size_t kLongestName = 255;
  const std::size_t folder = stem.find_last_of("/\\");
  const std::size_t first = folder == std::string::npos ? 0 : folder + 1;
  if (stem.size() - first + added <= kLongestName) return;
  std::size_t end = first + kLongestName - added;
  // A character is cut off whole.
  while (end > first && (static_cast<unsigned char>(stem[end]) & 0xC0) == 0x80) --end;
  stem.resize(end);
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

std::string UnusedBeside(const std::string& file, const std::string& word,
                         const std::string& ending) {
  constexpr std::size_t kNumber = 6;  // bytes that a number and the blanks may take
  std::string stem = file.substr(0, file.rfind('.'));
  MakeRoom(stem, word.size() + ending.size() + kNumber);
  if (!stem.empty() && stem.back() != '/' && stem.back() != '\\') stem += ' ';
  stem += word;
  std::string path = stem + ending;
  for (double number = 2; Taken(path); ++number)
    path = stem + " " + GlobalBAS::FileText(number) + ending;
  return path;
}

std::string UnusedPdfBeside(const std::string& log) {
  return UnusedBeside(log, "reports", kEnding);
}

std::vector<std::string> OtherFolders() {
  std::vector<std::string> folders;
  if (const char* home = std::getenv("HOME")) folders.emplace_back(home);
  std::error_code error;
  const std::filesystem::path passing = std::filesystem::temp_directory_path(error);
  if (!error) folders.push_back(passing.string());
  return folders;
}

}  // namespace output
