#include "tests/house/screen_words.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace house {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The folders whose texts a user can meet.
const std::set<std::string> kFolders = {"start", "rawdata", "compliance", "ucl",      "compare",
                                        "plots", "limits",  "navigation", "analysis", "ui",
                                        "stats", "screen",  "session",    "document"};

// Files whose literals stay where they are, each with its reason.
const std::map<std::string, std::string> kExceptions = {
    {"src/plots/listing.cpp", "names of the plot's inner values, for who develops"},
    {"src/ui/control_look.cpp", "a style sheet"},
    {"src/ui/form_binder.cpp", "what a programmer has forgotten to lay out"},
    {"src/ui/page.cpp", "what a programmer has forgotten to lay out"},
};

TEST(WordsOnScreens, StandInTheCatalogueModule) {
  int looked = 0;
  for (const SourceFile& file : ReadTree(VALKORIN_SOURCE_DIR)) {
    if (!IsCpp(file) || !file.path.starts_with("src/") || !kFolders.contains(file.Folder()))
      continue;
    ++looked;
    if (kExceptions.contains(file.path)) continue;
    EXPECT_THAT(WordFaults(file), IsEmpty());
  }
  EXPECT_GT(looked, 150) << "the tree was not read";
}

TEST(WordsOnScreens, EveryExceptionIsStillNeeded) {
  std::set<std::string> needed;
  for (const SourceFile& file : ReadTree(VALKORIN_SOURCE_DIR))
    if (kExceptions.contains(file.path) && !WordFaults(file).empty()) needed.insert(file.path);
  EXPECT_EQ(needed.size(), kExceptions.size());
}

// The check itself, on made-up text.

TEST(WordsOnScreensCheck, BitesOnASentence) {
  EXPECT_THAT(WordFaults({"src/a/b.cpp", "int a;\nShow(\"Is \" + n + \" sure, or not?\");\n"}),
              ElementsAre("src/a/b.cpp:2: \" sure, or not?\""));
  EXPECT_THAT(
      WordFaults({"src/a/b.cpp", "f(\"\\\"x\\\" is no number\"); g(\"two words\");\n"}),
      ElementsAre("src/a/b.cpp:1: \"\\\"x\\\" is no number\"", "src/a/b.cpp:1: \"two words\""));
}

TEST(WordsOnScreensCheck, LeavesNamesMasksAndCommentsAlone) {
  for (const char* text :
       {"// \"two words\"\n", "/* \"two words\" */\n", "#include \"two words.h\"\n",
        "f(\"GMTxB\", \"#0.0#\", \"    <1E-16\", \"GM=\");\n", "f(\"one\"); g(\"word\");\n",
        "f('\"'); two words; g('\"');\n"})
    EXPECT_THAT(WordFaults({"src/a/b.cpp", text}), IsEmpty()) << text;
}

}  // namespace
}  // namespace house
