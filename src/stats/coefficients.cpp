#include "stats/coefficients.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <string_view>
#include <utility>

#include "base/fault.h"
#include "catalog/own_texts.h"
#include "files/regular_file.h"
#include "stats/coefficient_check.h"

namespace StatFWinBAS {
namespace {

Coefficients& Store() {
  static Coefficients store;
  return store;
}

constexpr const char* kMainName = "VALKORIN.COF";
constexpr const char* kRoystonName = "asr94COF.txt";
constexpr int kMainNumbers = 370;
constexpr int kRoystonNumbers = 53;

// Where the file stands, looked for by its bare name; empty when it is nowhere. A folder or a pipe
// of that name is no file.
std::string PathOf(const std::string& name, const std::vector<std::string>& folders) {
  if (!files::RegularFile(name).Failed()) return name;
  for (const std::string& folder : folders) {
    std::string path = (std::filesystem::path(folder) / name).string();
    if (!files::RegularFile(path).Failed()) return path;
  }
  return {};
}

// What a user can look the file up by.
std::string WholePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(path, error).lexically_normal();
  return error ? path : whole.string();
}

// Reads a file in list form, one item at a time.
class ItemReader {
 public:
  explicit ItemReader(std::string bytes) : bytes_(std::move(bytes)), rest_(bytes_) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (rest_.starts_with(byteOrderMark)) rest_.remove_prefix(byteOrderMark.size());
  }
  ItemReader(const ItemReader&) = delete;
  ItemReader& operator=(const ItemReader&) = delete;

  // The next item into `value`, which stays as it was when the item is no number or the file has
  // ended.
  void Read(double& value) {
    constexpr std::string_view blanks = " \t";
    std::string_view text = NextItem();
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    text = text.substr(0, text.find_last_not_of(blanks) + 1);
    if (text.starts_with('+')) text.remove_prefix(1);
    double number = 0;
    const char* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    if (error != std::errc() || end != last || !std::isfinite(number)) return;
    value = number;
    ++numbers_;
  }

  // That have been read.
  int Numbers() const { return numbers_; }

 private:
  std::string_view NextItem() {
    const std::size_t end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
    const std::string_view item = rest_.substr(0, end);
    const std::size_t separator = rest_.substr(end, 2) == "\r\n" ? 2 : 1;
    rest_.remove_prefix(std::min(end + separator, rest_.size()));
    return item;
  }

  const std::string bytes_;
  std::string_view rest_;
  int numbers_ = 0;
};

void ReadRun(ItemReader& items, double* first, int count) {
  for (int i = 0; i < count; ++i) items.Read(first[i]);
}

void ReadMainFile(ItemReader& items, Coefficients& c) {
  ReadRun(items, &c.ExactRankits[0], 196);
  ReadRun(items, &c.RankitCoefficients[1], 24);
  ReadRun(items, &c.ReservedBlockA[1], 57);
  ReadRun(items, &c.InverseNormalCoefficients[1], 15);
  ReadRun(items, &c.HillCoefficients[1], 19);
  ReadRun(items, &c.ReservedBlockB[1], 59);
}

void ReadRoystonFile(ItemReader& items, Coefficients& c) {
  for (std::size_t column = 1; column < kPolynomialSizes.size(); ++column)
    ReadRun(items, c.RoystonTable[column].data(), kPolynomialSizes[column]);
  for (double* constant : {&c.Z90, &c.Z95, &c.Z99, &c.ZM, &c.ZSS, &c.BF1, &c.XX90, &c.XX95})
    items.Read(*constant);
  // Six constants of the published listing that no routine needs stand before TH, three more
  // behind it; whatever follows them is left unread.
  std::array<double, 6> unused{};
  ReadRun(items, unused.data(), 6);
  items.Read(c.ShapiroTH);
  ReadRun(items, unused.data(), 3);
}

// Reads one of the files by `read`; its state is that of a complete file.
CoefficientFile Load(const std::string& name, int wanted, const std::vector<std::string>& folders,
                     void (*read)(ItemReader&, Coefficients&)) {
  constexpr std::size_t kMostBytes = std::size_t{1} << 20U;
  const std::string path = PathOf(name, folders);
  CoefficientFile file{name, WholePath(path.empty() ? name : path), FileState::Missing, 0, wanted};
  if (path.empty()) return file;
  ItemReader items(files::ReadUpTo(path, kMostBytes));
  read(items, Store());
  file.numbers = items.Numbers();
  file.state = file.numbers < wanted ? FileState::Short : FileState::Different;
  return file;
}

}  // namespace

const Coefficients& Coefs() { return Store(); }

void ThrowLacking(Block block) {
  const std::string name = block == Block::Royston ? kRoystonName : kMainName;
  throw RunTimeError(FaultKind::MissingConstants, OwnText(Own::ConstantsNeeded, {name}));
}

void LoadCoefficients(const std::vector<std::string>& folders) {
  Store() = Coefficients{};
  CoefficientFile main = Load(kMainName, kMainNumbers, folders, ReadMainFile);
  CoefficientFile royston = Load(kRoystonName, kRoystonNumbers, folders, ReadRoystonFile);
  NoteComplete(Store());
  if (main.state == FileState::Different && MainIsDelivered(Store()))
    main.state = FileState::Delivered;
  if (royston.state == FileState::Different && RoystonIsDelivered(Store()))
    royston.state = FileState::Delivered;
  StoreStatus(std::move(main), std::move(royston));
}

double RoystonPoly(double x, int degree, int column) {
  const auto& table = Coefs().RoystonTable;
  if (column < 0 || column >= static_cast<int>(table.size()) ||
      degree >= static_cast<int>(table[0].size()))
    fault::Throw(FaultKind::Subscript);
  if (column > 0) Needed(Block::Royston);
  double sum = 0;
  for (int i = 0; i <= degree; ++i)
    sum = Checked(sum + Power(x, i) *
                            table[static_cast<std::size_t>(column)][static_cast<std::size_t>(i)]);
  return sum;
}

}  // namespace StatFWinBAS
