#include "tests/house/banned_calls.h"

#include <regex>

namespace house {

std::vector<std::string> LocaleFaults(const SourceFile& file) {
  static const std::regex banned(
      R"(\b(v?[fsd]?n?w?printf|v?asprintf|)"         // C output
      R"(v?[fs]?w?scanf|)"                           // C input
      R"(strto[dfl]|strtold|wcsto[dfl]|ato[fil]|)"   // C conversions
      R"(sto[dfil]|stol[dl]|stoull?|to_w?string|)"   // their C++ wrappers
      R"(w?[io]?stringstream|setprecision|QLocale)"  // streams and the toolkit
      R"()\b)");
  std::vector<std::string> faults;
  const std::vector<std::string> lines = Lines(CodeOnly(file.text));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::smatch match;
    if (std::regex_search(lines[i], match, banned))
      faults.push_back(file.path + ":" + std::to_string(i + 1) + ": " + match.str());
  }
  return faults;
}

}  // namespace house
