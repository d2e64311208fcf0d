#include "tests/walks/files.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "session/global_bas.h"
#include "tests/support/csv.h"

namespace fs = std::filesystem;

namespace walks {
namespace {

const char* const kTree = VALKORIN_SOURCE_DIR;

std::vector<double> Numbers(const std::string& text) {
  std::istringstream words(text);
  std::vector<double> numbers;
  for (std::string word; words >> word;) numbers.push_back(GlobalBAS::Val(word));
  return numbers;
}

// The number that each line begins with.
std::vector<double> FirstNumbers(const fs::path& path) {
  std::ifstream in(path);
  std::vector<double> numbers;
  for (std::string line; std::getline(in, line);)
    if (!line.empty()) numbers.push_back(GlobalBAS::ReadNumber(line));
  return numbers;
}

std::vector<double> Sorted(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values;
}

std::vector<double> Ladder(double first, double step, int count) {
  std::vector<double> values;
  values.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) values.push_back(first + i * step);
  return values;
}

std::vector<double> Joined(std::vector<double> a, const std::vector<double>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

std::vector<double> Geometric(double first, double factor, int count) {
  std::vector<double> values;
  values.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) values.push_back(first * std::pow(factor, i));
  return values;
}

}  // namespace

Folder::Folder(const std::string& path) : path_(path) {
  fs::remove_all(path_);
  fs::create_directories(path_);
  fs::current_path(path_);
  AddExamples();
  AddRawFiles();
  AddOwn();
}

void Folder::AddExamples() {
  for (const auto& entry : fs::directory_iterator(fs::path(kTree) / "examples")) {
    if (entry.path().extension() != ".vkr") continue;
    fs::copy(entry.path(), path_);
    files_.push_back({entry.path().filename(), true, Sorted(FirstNumbers(entry.path()))});
  }
  std::ranges::sort(files_, {}, &RawFile::name);
}

void Folder::AddRawFiles() {
  const fs::path folder = fs::path(kTree) / "tests/data/raw_files";
  for (const support::Row& row : support::ReadTable("raw_files/expected.csv")) {
    const std::string name = row.Text("file");
    fs::copy(folder / name, path_);
    const bool accepted = row.Text("result") == "loads";
    files_.push_back({name, accepted, accepted ? Numbers(row.Text("sorted")) : Numbers("")});
  }
  files_.push_back({"missing.vkr", false, {}});
}

void Folder::AddMade(const std::string& name, const std::vector<double>& values) {
  std::ofstream out(name, std::ios::binary);
  RawFile file{name, true, {}};
  for (const double value : values) {
    const std::string text = GlobalBAS::FileText(value);
    out << text << "\r\n";
    file.values.push_back(GlobalBAS::Val(text));
  }
  file.values = Sorted(file.values);
  files_.push_back(file);
}

// Series that stand at an edge of something.
void Folder::AddOwn() {
  AddMade("nine.vkr", Ladder(1, 1, 9));
  AddMade("five.vkr", {1.2, 3.45, 0.75, 2.5, 8});
  AddMade("two_far.vkr", {0.000909, 312.92});
  AddMade("two.vkr", {1.5, 2.75});
  AddMade("three.vkr", {0.4, 0.55, 2.1});
  AddMade("gap.vkr", Joined(Ladder(0.1, 0.001, 50), Ladder(50, 0.5, 50)));
  AddMade("above_one.vkr", {1.0001, 1.2, 2, 3, 5, 9, 40});
  AddMade("ties.vkr", {0.2, 0.2, 0.2, 0.5, 0.5, 1.1, 1.1, 1.1, 3.4, 3.4});
  AddMade("plateau.vkr", {0.4, 2, 2, 2, 2, 2, 2, 2, 9});
  AddMade("decision.vkr", {0.21, 0.35, 0.5, 0.62, 0.8, 1.1, 1.3, 1.9, 2.5, 3.1});
  AddMade("wide.vkr", Geometric(0.001, 9.7, 8));
  AddMade("narrow.vkr", Ladder(10, 0.01, 12));
  AddMade("forty.vkr", Geometric(0.05, 1.13, 40));
  AddMade("most.vkr", Ladder(0.5, 0.003, 2000));
}

const RawFile* Folder::Find(const std::string& name) const {
  const auto found = std::ranges::find(files_, name, &RawFile::name);
  return found == files_.end() ? nullptr : &*found;
}

void Folder::Saved(const std::string& name, const std::vector<double>& values) {
  std::erase_if(files_, [&](const RawFile& file) { return file.name == name; });
  RawFile file{name, true, {}};
  for (const double value : values)
    file.values.push_back(GlobalBAS::Val(GlobalBAS::FileText(value)));
  files_.push_back(file);
}

}  // namespace walks
