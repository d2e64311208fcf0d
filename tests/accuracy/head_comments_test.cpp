#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "tools/accuracy/page.h"

// A reader of a header takes its figures for those of the page; these tests keep the two together.
namespace {

const std::string kSource = std::string(VALKORIN_SOURCE_DIR) + "/src/";

std::string FileText(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// "NormalUpper" of "NormalUpper | x to 5", "ShapiroWilk" of "ShapiroWilk: W | the reference
// series".
std::string RoutineOf(const std::string& key) { return key.substr(0, key.find_first_of(" :")); }

// The figures that a file may state: those of the routines that it names.
std::set<std::string> FiguresOf(const std::string& text, const accuracy::Records& records) {
  std::set<std::string> figures;
  for (const auto& [key, recorded] : records)
    if (text.find(RoutineOf(key)) != std::string::npos)
      figures.insert(accuracy::FigureText(recorded.truth.error));
  return figures;
}

std::string CommentsOf(const std::string& text) {
  static const std::regex kComment(R"(\n *//[^\n]*)");
  std::string comments;
  for (auto it = std::sregex_iterator(text.begin(), text.end(), kComment);
       it != std::sregex_iterator(); ++it)
    comments += it->str();
  return comments;
}

// A figure is written as on the page, "4.2E-11"; inputs and borders are written otherwise.
std::vector<std::string> WrongFigures(const std::string& text, const accuracy::Records& records) {
  static const std::regex kFigure(R"(\b\d\.\dE[-+]\d\d\b)");
  const std::set<std::string> right = FiguresOf(text, records);
  std::vector<std::string> wrong;
  const std::string comments = CommentsOf("\n" + text);
  for (auto it = std::sregex_iterator(comments.begin(), comments.end(), kFigure);
       it != std::sregex_iterator(); ++it)
    if (!right.contains(it->str())) wrong.push_back(it->str());
  return wrong;
}

const accuracy::Records& InTheTree() {
  static const accuracy::Records records =
      accuracy::ReadRecords(std::string(VALKORIN_SOURCE_DIR) + "/tools/accuracy/recorded.csv");
  return records;
}

TEST(HeadComments, StateTheFiguresOfThePage) {
  int stated = 0;
  for (const char* folder : {"stats", "analysis", "compliance", "ucl", "compare", "session"}) {
    for (const auto& entry : std::filesystem::directory_iterator(kSource + folder)) {
      const std::string text = FileText(entry.path());
      for (const std::string& figure : WrongFigures(text, InTheTree()))
        ADD_FAILURE() << entry.path() << " states " << figure << ", which the page has not";
      if (text.find("Accuracy") != std::string::npos) ++stated;
    }
  }
  EXPECT_GT(stated, 10);
}

TEST(HeadComments, AnOldFigureWouldBeSeen) {
  const accuracy::Records records = {{"NormalUpper | x to 5", {{3.4e-9, "", 1}, {}}}};
  EXPECT_TRUE(WrongFigures("// NormalUpper: 3.4E-09 up to 5", records).empty());
  EXPECT_EQ(WrongFigures("// NormalUpper: 6.7E-10 up to 5", records),
            std::vector<std::string>{"6.7E-10"});
  EXPECT_EQ(WrongFigures("// FUpper: 3.4E-09", records), std::vector<std::string>{"3.4E-09"});
}

}  // namespace
