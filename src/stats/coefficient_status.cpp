#include "stats/coefficient_status.h"

#include <charconv>
#include <utility>

#include "catalog/own_texts.h"
#include "stats/coefficient_check.h"

namespace StatFWinBAS {
namespace {

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
      return OwnText(Own::ConstantsMissing, {file.path});
    case FileState::Short:
      return OwnText(Own::ConstantsShort, {Digits(file.numbers), Digits(file.wanted), file.path});
    case FileState::Different:
      return OwnText(Own::ConstantsDifferent, {file.path});
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
