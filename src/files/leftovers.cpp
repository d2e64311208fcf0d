#include "files/leftovers.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <optional>
#include <string_view>

namespace files {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBegin = ".valkorin-";
constexpr std::string_view kEnd = ".tmp";

std::string Digits(int value) {
  std::array<char, 12> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), end.ptr};
}

// A whole number not below 0 and nothing else.
std::optional<int> NumberOf(std::string_view text) {
  int value = 0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (text.empty() || error != std::errc() || end != last || value < 0) return std::nullopt;
  return value;
}

// Of a file that TemporaryName names.
std::optional<int> ProcessOf(std::string_view name) {
  if (!name.starts_with(kBegin) || !name.ends_with(kEnd)) return std::nullopt;
  name.remove_prefix(kBegin.size());
  name.remove_suffix(std::min(kEnd.size(), name.size()));
  const std::size_t dash = name.find('-');
  if (dash == std::string_view::npos || !NumberOf(name.substr(dash + 1))) return std::nullopt;
  return NumberOf(name.substr(0, dash));
}

// A process of another user can't be signalled but lives.
bool Lives(int process) { return ::kill(process, 0) == 0 || errno != ESRCH; }

void RemoveIfLeft(const fs::path& path) {
  const std::optional<int> process = ProcessOf(path.filename().string());
  if (!process || *process == 0 || Lives(*process)) return;
  struct stat about {};
  if (::lstat(path.c_str(), &about) == 0 && S_ISREG(about.st_mode)) ::unlink(path.c_str());
}

}  // namespace

std::string TemporaryName(int number) {
  return std::string(kBegin) + Digits(::getpid()) + "-" + Digits(number) + std::string(kEnd);
}

void RemoveLeftovers(const std::string& folder) {
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error))
    RemoveIfLeft(entry->path());
}

}  // namespace files
