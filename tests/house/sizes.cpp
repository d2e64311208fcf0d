#include "tests/house/sizes.h"

#include <algorithm>
#include <regex>

namespace house {
namespace {

std::string WithoutMacroLines(const std::string& code) {
  std::string without;
  for (const std::string& line : Lines(code)) {
    const std::size_t text = line.find_first_not_of(' ');
    const bool macro =
        text != std::string::npos && (line[text] == '#' || line.find("Q_OBJECT") == text);
    without += (macro ? "" : line) + "\n";
  }
  return without;
}

// Goes over the text outside functions.
class Finder {
 public:
  explicit Finder(std::string code) : code_(std::move(code)) {}

  std::vector<Function> Find() {
    for (at_ = 0; at_ < code_.size(); ++at_) {
      const char c = code_[at_];
      if (c == ';' || c == '}')
        Begin();
      else if (c == '{')
        Brace();
      else if (c == ':' && IsAccess())
        Begin();
      else if (!header_.empty() || !IsBlank(c))
        Add(c);
    }
    return found_;
  }

 private:
  static bool IsBlank(char c) { return c == ' ' || c == '\n'; }

  void Begin() { header_.clear(); }

  void Add(char c) {
    if (header_.empty()) start_ = at_;
    header_ += IsBlank(c) ? ' ' : c;
  }

  bool IsAccess() const {
    static const std::regex access("(public|protected|private)( slots)? *|signals *");
    return std::regex_match(header_, access);
  }

  void Brace() {
    static const std::regex scope(R"(.*\b(namespace|class|struct|union)\b[^()=]*)");
    static const std::regex opens(
        R"(.*\)( *(const|noexcept|override|final|&))*( *-> *[^()]*| *:[^:].*[)}])? *)");
    if (std::regex_match(header_, scope) && header_.find("enum ") == std::string::npos)
      Begin();
    else if (std::regex_match(header_, opens))
      Take();
    else
      Pass();  // a list of initial values; what stands behind it belongs to the same statement
  }

  // Moves to the brace that closes the one at `at_`.
  void ToItsEnd() {
    int depth = 0;
    for (; at_ < code_.size(); ++at_) {
      depth += code_[at_] == '{' ? 1 : code_[at_] == '}' ? -1 : 0;
      if (depth == 0) return;
    }
  }

  void Pass() {
    ToItsEnd();
    Add('}');
  }

  int LineAt(std::size_t place) const {
    const auto end = code_.begin() + static_cast<std::ptrdiff_t>(std::min(place, code_.size()));
    return 1 + static_cast<int>(std::count(code_.begin(), end, '\n'));
  }

  void Take() {
    static const std::regex name(R"(([\w:~]+|operator[^\w(]+) *\()");
    std::smatch match;
    const int line = LineAt(start_);
    const std::string called = std::regex_search(header_, match, name) ? match[1].str() : "";
    ToItsEnd();
    found_.push_back({called, line, LineAt(at_) - line + 1});
    Begin();
  }

  std::string code_;
  std::size_t at_ = 0;
  std::size_t start_ = 0;
  std::string header_;  // of the present statement
  std::vector<Function> found_;
};

}  // namespace

std::vector<Function> FunctionsOf(const SourceFile& file) {
  return Finder(WithoutMacroLines(CodeOnly(file.text))).Find();
}

int LinesOf(const SourceFile& file) {
  return static_cast<int>(std::ranges::count(file.text, '\n'));
}

}  // namespace house
