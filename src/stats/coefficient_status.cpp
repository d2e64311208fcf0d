#include "stats/coefficient_status.h"

#include <charconv>
#include <utility>

#include "stats/coefficient_check.h"

namespace StatFWinBAS {
namespace {

constexpr const char* kMissing = " is missing: calculations that need its constants stop.";
constexpr const char* kHolds = " holds ";
constexpr const char* kOf = " of its ";
constexpr const char* kShort = " constants: calculations that need the others stop.";
constexpr const char* kDifferent =
    " holds other constants than the file that came with the program: results can differ.";

std::array<CoefficientFile, 2>& Store() {
  static std::array<CoefficientFile, 2> files;
  return files;
}

std::string Digits(int value) {
  std::array<char, 12> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), end.ptr};
}

std::string Sentence(const CoefficientFile& file) {
  switch (file.state) {
    case FileState::Missing:
      return file.path + kMissing;
    case FileState::Short:
      return file.path + kHolds + Digits(file.numbers) + kOf + Digits(file.wanted) + kShort;
    case FileState::Different:
      return file.path + kDifferent;
    case FileState::NotLoaded:
    case FileState::Delivered:
      break;
  }
  return {};
}

}  // namespace

const std::array<CoefficientFile, 2>& CoefficientStatus() { return Store(); }

void StoreStatus(CoefficientFile main, CoefficientFile royston) {
  Store() = {std::move(main), std::move(royston)};
}

std::string CoefficientWarning(const std::string& separator) {
  std::string text;
  for (const CoefficientFile& file : Store()) {
    const std::string sentence = Sentence(file);
    if (!text.empty() && !sentence.empty()) text += separator;
    text += sentence;
  }
  return text;
}

}  // namespace StatFWinBAS
