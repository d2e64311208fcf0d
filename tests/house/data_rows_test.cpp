#include "tests/house/data_rows.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/house/source_tree.h"

namespace house {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> FilesBelow(const fs::path& root) {
  std::vector<std::string> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
    const std::string file = fs::relative(entry.path(), root).generic_string();
    if (entry.is_regular_file() && file != "README.md") files.push_back(file);
  }
  return files;
}

TEST(TablesOfTheTests, EachHasARowThatTellsItsGeneratorAndVersion) {
  const fs::path data = VALKORIN_TEST_DATA;
  const std::vector<std::string> files = FilesBelow(data);
  EXPECT_GT(files.size(), 100u) << "the folder was not read";
  EXPECT_THAT(DataFaults(ReadDataRows(ReadText((data / "README.md").string())), files), IsEmpty());
}

TEST(TablesOfTheTests, TheirGeneratorsInTheTreeAreThere) {
  const fs::path root = VALKORIN_SOURCE_DIR;
  int scripts = 0;
  for (const DataRow& row :
       ReadDataRows(ReadText((fs::path(VALKORIN_TEST_DATA) / "README.md").string()))) {
    const std::string& generator = row.generator;
    if (!generator.starts_with('`') || !generator.ends_with(".py`")) continue;
    ++scripts;
    EXPECT_TRUE(fs::exists(root / generator.substr(1, generator.size() - 2))) << generator;
  }
  EXPECT_GT(scripts, 8) << "the rows were not read";
}

// The check itself, on a made-up page.

const char* const kPage =
    "| file | what | generator | version |\n"
    "|---|---|---|---|\n"
    "| `a.csv`, `b.csv` | sums | `tools/sum.py` | mpmath 1.3.0 |\n"
    "| `pictures/plan_M.txt` | plans | by hand | first |\n"
    "| `doors/` | doors | by hand | first |\n";

TEST(TablesOfTheTestsCheck, PassesWhereEveryFileHasItsRow) {
  EXPECT_THAT(
      DataFaults(ReadDataRows(kPage), {"a.csv", "b.csv", "pictures/plan_12.txt", "doors/x.txt"}),
      IsEmpty());
}

TEST(TablesOfTheTestsCheck, BitesOnAFileWithoutARowAndARowWithoutAFile) {
  EXPECT_THAT(
      DataFaults(ReadDataRows(kPage), {"a.csv", "c.csv", "pictures/roof_1.txt", "doors/x.txt"}),
      ElementsAre("c.csv: no row", "pictures/roof_1.txt: no row", "b.csv: no such file",
                  "pictures/plan_M.txt: no such file"));
}

TEST(TablesOfTheTestsCheck, BitesOnASecondRowAndOnAnEmptyCell) {
  EXPECT_THAT(DataFaults(ReadDataRows("| `a.csv` | sums | by hand |  |\n"
                                      "| `a.csv` | sums |  | first |\n"),
                         {"a.csv"}),
              ElementsAre("a.csv: more than one row", "a.csv: no version", "a.csv: no generator"));
}

}  // namespace
}  // namespace house
