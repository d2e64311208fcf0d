#include "tests/house/floors.h"

#include <gmock/gmock.h>

namespace house {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const char* const kRoot = VALKORIN_SOURCE_DIR;

Floors TableOfThePage() {
  return ReadFloors(ReadText(std::string(kRoot) + "/docs/architecture.md"));
}

TEST(Floors, EveryFolderOfTheHouseHasItsRowInTheArchitecturePage) {
  const Floors floors = TableOfThePage();
  for (const char* library :
       {"base", "catalog", "session", "stats", "drawing", "screen", "navigation", "analysis",
        "rawdata", "limits", "compliance", "plots", "plots_screen", "start", "ui", "drive"})
    EXPECT_TRUE(floors.contains(library)) << library;
}

std::set<std::string> EverythingBelow(const Floors& floors, const std::string& folder) {
  std::set<std::string> below;
  std::vector<std::string> ahead{folder};
  while (!ahead.empty()) {
    const std::string next = ahead.back();
    ahead.pop_back();
    for (const std::string& used : floors.at(next))
      if (below.insert(used).second) ahead.push_back(used);
  }
  return below;
}

// Two folders that need each other are one folder.
TEST(Floors, TheTableLeadsDownwardsOnly) {
  const Floors floors = TableOfThePage();
  for (const auto& [folder, allowed] : floors)
    for (const std::string& used : allowed)
      ASSERT_TRUE(floors.contains(used)) << folder << " uses " << used << ", which has no row";
  for (const auto& [folder, allowed] : floors)
    EXPECT_FALSE(EverythingBelow(floors, folder).contains(folder)) << folder << " uses itself";
}

TEST(Floors, NoFileIncludesALibraryThatItsRowLacks) {
  const Floors floors = TableOfThePage();
  const std::vector<SourceFile> tree = ReadTree(kRoot);
  const Libraries libraries(tree);
  int looked = 0;
  for (const SourceFile& file : tree) {
    looked += IsCpp(file) && file.path.starts_with("src/") ? 1 : 0;
    EXPECT_THAT(IncludeFaults(file, libraries, floors), IsEmpty());
  }
  EXPECT_GT(looked, 40) << "the tree was not read";
}

TEST(Floors, EveryLibraryLinksExactlyWhatItsRowNames) {
  const Floors floors = TableOfThePage();
  int libraries = 0;
  for (const SourceFile& file : ReadTree(kRoot)) {
    if (!IsCMake(file)) continue;
    for (const auto& [library, linked] : LinkedLibraries(file.text)) {
      ++libraries;
      ASSERT_TRUE(floors.contains(library)) << library;
      EXPECT_EQ(linked, floors.at(library)) << library;
    }
  }
  EXPECT_GE(libraries, 11);
}

// Only a header in the set of a library is compiled alone.
TEST(Floors, EveryHeaderStandsInTheSetOfItsLibrary) {
  const std::vector<SourceFile> tree = ReadTree(kRoot);
  std::map<std::string, std::string> cmake;
  for (const SourceFile& file : tree)
    if (IsCMake(file) && file.path.starts_with("src/")) cmake[file.Folder()] = file.text;
  int looked = 0;
  for (const SourceFile& file : tree) {
    if (!file.path.starts_with("src/") || !file.path.ends_with(".h")) continue;
    ++looked;
    const std::string header = file.path.substr(file.path.rfind('/') + 1);
    const std::string source = header.substr(0, header.size() - 2) + ".cpp";
    EXPECT_THAT(cmake[file.Folder()], testing::AnyOf(HasSubstr(header), HasSubstr(source)))
        << file.path;
  }
  EXPECT_GT(looked, 100) << "the tree was not read";
}

TEST(Floors, OnlyTheFoldersWithWindowsKnowTheToolkit) {
  for (const SourceFile& file : ReadTree(kRoot)) EXPECT_THAT(ToolkitFaults(file), IsEmpty());
}

// The checks themselves, on a made-up house.

const char* const kPage =
    "| floor | folder | what | may use |\n"
    "|---|---|---|---|\n"
    "| 2 | `roof/` | tiles | `cellar`, `hall` |\n"
    "| 1 | `hall/` | a hall | `cellar` |\n"
    "| 0 | `cellar/` | wine | nothing |\n";

TEST(FloorsCheck, ReadsTheTable) {
  EXPECT_EQ(ReadFloors(kPage),
            (Floors{{"roof", {"cellar", "hall"}}, {"hall", {"cellar"}}, {"cellar", {}}}));
}

// Each folder of the page above with one library.
Libraries OneEach() {
  return Libraries(std::vector<SourceFile>{
      {"src/roof/CMakeLists.txt", "valkorin_library(roof SOURCES tile.cpp)"},
      {"src/hall/CMakeLists.txt", "valkorin_library(hall SOURCES door.cpp)"},
      {"src/cellar/CMakeLists.txt", "valkorin_library(cellar SOURCES wine.cpp)"}});
}

TEST(FloorsCheck, BitesOnAnIncludeFromAbove) {
  const SourceFile file{"src/hall/door.cpp",
                        "#include \"cellar/wine.h\"\n#include \"roof/tile.h\"\n"};
  EXPECT_THAT(IncludeFaults(file, OneEach(), ReadFloors(kPage)),
              ElementsAre("src/hall/door.cpp:2: hall may not include roof/tile.h"));
}

TEST(FloorsCheck, BitesOnAnIncludeWithoutItsFolder) {
  const SourceFile file{"src/hall/door.cpp",
                        "#include \"handle.h\"\n  # include \"hall/lock.h\"\n"};
  EXPECT_THAT(IncludeFaults(file, OneEach(), ReadFloors(kPage)),
              ElementsAre("src/hall/door.cpp:1: hall may not include handle.h"));
}

TEST(FloorsCheck, ReadsWhatALibraryLinks) {
  EXPECT_EQ(LinkedLibraries("valkorin_library(hall\n SOURCES a.cpp b.cpp\n USES cellar roof)\n"
                            "valkorin_library(cellar SOURCES c.cpp)\n"),
            (Floors{{"hall", {"cellar", "roof"}}, {"cellar", {}}}));
}

// A folder with formulas and a screen.
const char* const kTwoRows =
    "| 2 | `hall/` screens | what one sees | `hall` |\n"
    "| 1 | `hall/` | sums | nothing |\n";

Libraries Two() {
  return Libraries(std::vector<SourceFile>{
      {"src/hall/CMakeLists.txt",
       "valkorin_library(hall SOURCES sum.cpp HEADERS word.h)\n"
       "valkorin_library(hall_screen\n  SOURCES form.cpp\n  USES hall)\n"}});
}

TEST(FloorsCheck, ReadsTheRowOfAFoldersScreens) {
  EXPECT_EQ(ReadFloors(kTwoRows), (Floors{{"hall_screen", {"hall"}}, {"hall", {}}}));
}

TEST(FloorsCheck, AHeaderBelongsToTheLibraryOfTheSourceOfItsName) {
  const Libraries libraries = Two();
  EXPECT_EQ(libraries.Of("hall/sum.h"), "hall");
  EXPECT_EQ(libraries.Of("hall/word.h"), "hall");
  EXPECT_EQ(libraries.Of("hall/form.h"), "hall_screen");
  EXPECT_EQ(libraries.Of("hall/form.cpp"), "hall_screen");
  EXPECT_EQ(libraries.Of("hall/stray.h"), "");
}

TEST(FloorsCheck, BitesOnAFormulaThatKnowsItsOwnScreen) {
  const SourceFile formula{"src/hall/sum.cpp", "#include \"hall/form.h\"\n#include \"hall/sum.h\""};
  EXPECT_THAT(IncludeFaults(formula, Two(), ReadFloors(kTwoRows)),
              ElementsAre("src/hall/sum.cpp:1: hall may not include hall/form.h"));
  const SourceFile screen{"src/hall/form.cpp", "#include \"hall/sum.h\"\n"};
  EXPECT_THAT(IncludeFaults(screen, Two(), ReadFloors(kTwoRows)), IsEmpty());
}

TEST(FloorsCheck, BitesOnAFileThatNoLibraryLists) {
  EXPECT_THAT(IncludeFaults({"src/hall/stray.h", ""}, Two(), ReadFloors(kTwoRows)),
              ElementsAre("src/hall/stray.h: belongs to no library of the table"));
}

TEST(FloorsCheck, BitesOnTheToolkitInARule) {
  for (const char* line : {"#include <QString>", "#include <QtWidgets/QLabel>",
                           "#include \"ui_door.h\"", "#include <qglobal.h>"})
    EXPECT_THAT(ToolkitFaults({"src/limits/steps.cpp", line}),
                ElementsAre(HasSubstr("src/limits/steps.cpp:1: ")))
        << line;
  EXPECT_THAT(ToolkitFaults({"src/limits/CMakeLists.txt", "\nlink(x Qt6::Core)"}),
              ElementsAre(HasSubstr("src/limits/CMakeLists.txt:2: ")));
  EXPECT_THAT(ToolkitFaults({"src/ui/binder.cpp", "#include <QString>"}), IsEmpty());
  EXPECT_THAT(ToolkitFaults({"src/limits/steps.cpp", "#include <quux>\n#include <queue>\n"}),
              IsEmpty());
}

}  // namespace
}  // namespace house
