#include "stats/coefficients.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "base/fault.h"

namespace StatFWinBAS {
namespace {

Coefficients& Store() {
  static Coefficients store;
  return store;
}

std::ifstream OpenByBareName(const std::string& name, const std::vector<std::string>& folders) {
  const auto open = [](const std::filesystem::path& path) {
    std::error_code ignored;
    // A folder of that name opens as a stream too, but holds no items.
    return std::filesystem::is_regular_file(path, ignored) ? std::ifstream(path, std::ios::binary)
                                                           : std::ifstream();
  };
  std::ifstream file = open(name);
  for (auto folder = folders.begin(); !file.is_open() && folder != folders.end(); ++folder)
    file = open(std::filesystem::path(*folder) / name);
  return file;
}

// Reads a file in list form, one item at a time.
class ItemReader {
 public:
  explicit ItemReader(std::ifstream file) : file_(std::move(file)) {}

  // The next item into `value`, which stays as it was when the item is no number or the file has
  // ended.
  void Read(double& value) {
    const std::string item = NextItem();
    std::string_view text = item;
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
    if (text.starts_with('+')) text.remove_prefix(1);
    double number = 0;
    const char* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    if (error == std::errc() && end == last && std::isfinite(number)) value = number;
  }

 private:
  static constexpr std::string_view kBlanks = " \t";
  static constexpr std::size_t kLongestItem = 1000;  // keeps a hostile file out of the memory

  std::string NextItem() {
    std::string item;
    for (int c = file_.get(); c != EOF && c != ',' && c != '\n'; c = file_.get()) {
      if (c == '\r') {
        if (file_.peek() == '\n') file_.get();
        break;
      }
      if (item.size() < kLongestItem) item += static_cast<char>(c);
    }
    return item;
  }

  std::ifstream file_;
};

void ReadRun(ItemReader& items, double* first, int count) {
  for (int i = 0; i < count; ++i) items.Read(first[i]);
}

void ReadMainFile(ItemReader items, Coefficients& c) {
  ReadRun(items, &c.ExactRankits[0], 196);
  ReadRun(items, &c.RankitCoefficients[1], 24);
  ReadRun(items, &c.ReservedBlockA[1], 57);
  ReadRun(items, &c.InverseNormalCoefficients[1], 15);
  ReadRun(items, &c.HillCoefficients[1], 19);
  ReadRun(items, &c.ReservedBlockB[1], 59);
}

void ReadRoystonFile(ItemReader items, Coefficients& c) {
  // Number of coefficients of the polynomials C1 to C9 and G, which are the columns 1 to 10.
  constexpr std::array<int, 10> kCounts = {6, 6, 4, 4, 4, 3, 2, 2, 2, 2};
  for (std::size_t column = 1; column <= kCounts.size(); ++column)
    ReadRun(items, c.RoystonTable[column].data(), kCounts[column - 1]);
  for (double* constant : {&c.Z90, &c.Z95, &c.Z99, &c.ZM, &c.ZSS, &c.BF1, &c.XX90, &c.XX95})
    items.Read(*constant);
  // Six constants of the published listing that no routine needs stand before TH, three more
  // behind it: those, and whatever follows them, are left unread.
  std::array<double, 6> unused{};
  ReadRun(items, unused.data(), static_cast<int>(unused.size()));
  items.Read(c.ShapiroTH);
}

}  // namespace

const Coefficients& Coefs() { return Store(); }

void LoadCoefficients(const std::vector<std::string>& folders) {
  Coefficients& store = Store();
  store = Coefficients{};
  ReadMainFile(ItemReader(OpenByBareName("VALKORIN.COF", folders)), store);
  ReadRoystonFile(ItemReader(OpenByBareName("asr94COF.txt", folders)), store);
}

double RoystonPoly(double x, int degree, int column) {
  const auto& table = Coefs().RoystonTable;
  if (column < 0 || column >= static_cast<int>(table.size()) ||
      degree >= static_cast<int>(table[0].size()))
    fault::Throw(FaultKind::Subscript);
  double sum = 0;
  for (int i = 0; i <= degree; ++i)
    sum = Checked(sum + Power(x, i) *
                            table[static_cast<std::size_t>(column)][static_cast<std::size_t>(i)]);
  return sum;
}

}  // namespace StatFWinBAS
