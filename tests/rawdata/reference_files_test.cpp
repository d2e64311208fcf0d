#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "rawdata/raw_file.h"
#include "session/exposure_session.h"
#include "session/global_bas.h"
#include "session/moments.h"
#include "tests/support/csv.h"
#include "tests/support/temp_folder.h"

namespace {

using rawdata::CheckFile;
using rawdata::FileCheck;
using rawdata::FileValues;
using rawdata::ReadFile;

std::string Folder() { return std::string(VALKORIN_TEST_DATA) + "/raw_files/"; }

std::vector<double> Numbers(const std::string& text) {
  std::vector<double> values;
  std::istringstream in(text);
  for (std::string word; in >> word;) values.push_back(GlobalBAS::Val(word));
  return values;
}

std::string Outcome(const FileCheck& check) {
  if (!check.readable) return "unreadable";
  return check.messageId == 0 ? "loads" : GlobalBAS::GeneralText(check.messageId);
}

// The series of a file that loads, as the record holds it.
ExposureSession Opened(const std::string& path, const FileCheck& check) {
  ExposureSession s;
  const FileValues file = ReadFile(path, check.count);
  EXPECT_TRUE(file.ok);
  s.M = check.count;
  s.C.assign(1, 0);
  s.C.insert(s.C.end(), file.values.begin(), file.values.end());
  s.SortOrder = std::is_sorted(s.C.begin() + 1, s.C.end()) ? "Ascending" : "Onbekend";
  rawdata::SortValues(check.count, s.C, s.SortOrder);
  StoreMedian(s);
  return s;
}

// A file is taken or refused for the reason that the user is told, after as many lines; what is
// taken holds the values to the last bit.
TEST(RawFile, EveryReferenceFileLoadsOrIsRefusedAsItsTableSays) {
  for (const support::Row& row : support::ReadTable("raw_files/expected.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("file") + " " + row.Text("note"));
    const std::string path = Folder() + row.Text("file");
    const FileCheck check = CheckFile(path);
    EXPECT_EQ(Outcome(check), row.Text("result"));
    EXPECT_EQ(check.count, row.Number("M"));
    EXPECT_EQ(check.refusedLine, Outcome(check) == "loads" || check.count == 0 ||
                                         row.Text("file").find("one_line") != std::string::npos
                                     ? 0
                                     : check.count);
    if (Outcome(check) != "loads") continue;
    const ExposureSession s = Opened(path, check);
    EXPECT_THAT(std::vector<double>(s.C.begin() + 1, s.C.end()),
                testing::ElementsAreArray(Numbers(row.Text("sorted"))));
    EXPECT_EQ(s.C[0], row.Number("median"));
    EXPECT_EQ(s.SortOrder, row.Text("SortOrder"));
  }
}

// The table and the folder go together: a file without a row would never be read.
TEST(RawFile, EveryReferenceFileHasARow) {
  std::vector<std::string> rows;
  for (const support::Row& row : support::ReadTable("raw_files/expected.csv"))
    rows.push_back(row.Text("file"));
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(Folder()))
    if (entry.path().extension() == ".vkr") files.push_back(entry.path().filename().string());
  EXPECT_THAT(rows, testing::UnorderedElementsAreArray(files));
}

// A saved series comes back as it was shown, whatever the source file looked like: to 15 digits.
TEST(RawFile, ASavedReferenceSeriesReadsBackToFifteenDigits) {
  const TempFolder folder;
  const std::string copy = folder.Path("saved.vkr");
  for (const support::Row& row : support::ReadTable("raw_files/expected.csv")) {
    if (row.Text("result") != "loads") continue;
    SCOPED_TRACE(row.Text("file"));
    const std::vector<double> values = Numbers(row.Text("sorted"));
    ASSERT_TRUE(rawdata::WriteFile(copy, values));
    const FileCheck check = CheckFile(copy);
    ASSERT_EQ(Outcome(check), "loads");
    const FileValues file = ReadFile(copy, check.count);
    ASSERT_EQ(file.values.size(), values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
      EXPECT_EQ(GlobalBAS::FileText(file.values[i]), GlobalBAS::FileText(values[i]));
    EXPECT_THAT(file.notes.trailingText, testing::IsEmpty());
    EXPECT_THAT(file.notes.commaAndPoint, testing::IsEmpty());
  }
}

}  // namespace
