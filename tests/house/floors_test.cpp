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
  for (const char* folder : {"base", "catalog", "session", "stats", "screen", "navigation",
                             "analysis", "rawdata", "limits", "compliance", "start", "ui", "drive"})
    EXPECT_TRUE(floors.contains(folder)) << folder;
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

TEST(Floors, NoFileIncludesAFolderThatItsRowLacks) {
  const Floors floors = TableOfThePage();
  int looked = 0;
  for (const SourceFile& file : ReadTree(kRoot)) {
    looked += floors.contains(file.Folder()) ? 1 : 0;
    EXPECT_THAT(IncludeFaults(file, floors), IsEmpty());
  }
  EXPECT_GT(looked, 40) << "the tree was not read";
}

TEST(Floors, EveryFolderLinksExactlyWhatItsRowNames) {
  const Floors floors = TableOfThePage();
  int libraries = 0;
  for (const SourceFile& file : ReadTree(kRoot)) {
    if (!IsCMake(file)) continue;
    for (const auto& [folder, linked] : LinkedFolders(file.text)) {
      ++libraries;
      ASSERT_TRUE(floors.contains(folder)) << folder;
      EXPECT_EQ(linked, floors.at(folder)) << folder;
    }
  }
  EXPECT_GE(libraries, 11);
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

TEST(FloorsCheck, BitesOnAnIncludeFromAbove) {
  const SourceFile file{"src/hall/door.cpp",
                        "#include \"cellar/wine.h\"\n#include \"roof/tile.h\"\n"};
  EXPECT_THAT(IncludeFaults(file, ReadFloors(kPage)),
              ElementsAre("src/hall/door.cpp:2: hall/ may not include roof/tile.h"));
}

TEST(FloorsCheck, BitesOnAnIncludeWithoutItsFolder) {
  const SourceFile file{"src/hall/door.cpp",
                        "#include \"handle.h\"\n  # include \"hall/lock.h\"\n"};
  EXPECT_THAT(IncludeFaults(file, ReadFloors(kPage)),
              ElementsAre("src/hall/door.cpp:1: hall/ may not include handle.h"));
}

TEST(FloorsCheck, ReadsWhatALibraryLinks) {
  EXPECT_EQ(LinkedFolders("valkorin_library(hall\n SOURCES a.cpp b.cpp\n USES cellar roof)\n"
                          "valkorin_library(cellar SOURCES c.cpp)\n"),
            (Floors{{"hall", {"cellar", "roof"}}, {"cellar", {}}}));
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
