#include "stats/coefficients.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "base/fault.h"
#include "stats/normal.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

namespace fs = std::filesystem;
using StatFWinBAS::Coefficients;
using StatFWinBAS::Coefs;
using StatFWinBAS::LoadCoefficients;

const fs::path kFiles = fs::path(VALKORIN_TEST_DATA) / "coefficient_files";

// An empty current directory of the test's own, and an empty folder beside it.
class CoefficientFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    home_ = fs::temp_directory_path() /
            (std::string("valkorin_coefficients_") + info->name() + std::to_string(::getpid()));
    fs::remove_all(home_);
    fs::create_directories(home_ / "current");
    fs::create_directories(home_ / "beside");
    before_ = fs::current_path();
    fs::current_path(home_ / "current");
  }
  void TearDown() override {
    fs::current_path(before_);
    fs::remove_all(home_);
    table::LoadDelivered();
  }

  void Put(const fs::path& source, const std::string& name) {
    fs::copy_file(source, home_ / "current" / name);
  }
  void Write(const std::string& folder, const std::string& name, const std::string& content) {
    std::ofstream(home_ / folder / name, std::ios::binary) << content;
  }
  void Load() { LoadCoefficients({(home_ / "beside").string()}); }

  fs::path home_;
  fs::path before_;
};

double Held(const support::Row& row) {
  const Coefficients& c = Coefs();
  const std::string& array = row.Text("array");
  const auto at = [&](const char* column) { return static_cast<std::size_t>(row.Number(column)); };
  if (array == "ExactRankits") return c.ExactRankits.at(at("i"));
  if (array == "RankitCoefficients") return c.RankitCoefficients.at(at("i"));
  if (array == "ReservedBlockA") return c.ReservedBlockA.at(at("i"));
  if (array == "InverseNormalCoefficients") return c.InverseNormalCoefficients.at(at("i"));
  if (array == "HillCoefficients") return c.HillCoefficients.at(at("i"));
  if (array == "ReservedBlockB") return c.ReservedBlockB.at(at("i"));
  if (array == "RoystonTable") return c.RoystonTable.at(at("i")).at(at("j"));
  if (array == "Z90") return c.Z90;
  if (array == "Z95") return c.Z95;
  if (array == "Z99") return c.Z99;
  if (array == "ZM") return c.ZM;
  if (array == "ZSS") return c.ZSS;
  if (array == "BF1") return c.BF1;
  if (array == "XX90") return c.XX90;
  if (array == "XX95") return c.XX95;
  if (array == "ShapiroTH") return c.ShapiroTH;
  throw std::out_of_range("no array " + array);
}

void ExpectCase(const std::string& name) {
  int rows = 0;
  for (const support::Row& row : support::ReadTable("coefficients.csv")) {
    if (row.Text("case") != name) continue;
    ++rows;
    EXPECT_EQ(Held(row), row.Number("value")) << row.Where() << ": " << row.Text("array") << '('
                                              << row.Text("i") << ' ' << row.Text("j") << ')';
  }
  EXPECT_EQ(rows, 461) << name;
}

TEST_F(CoefficientFiles, TheDeliveredFilesHoldThePublishedConstants) {
  table::LoadDelivered();
  ExpectCase("delivered");
}

TEST_F(CoefficientFiles, EveryItemLandsWhereTheItemMapSays) {
  Put(kFiles / "numbered.COF", "VALKORIN.COF");
  Put(kFiles / "numbered_asr94.txt", "asr94COF.txt");
  Load();
  ExpectCase("numbered");
}

TEST_F(CoefficientFiles, AnItemEndsAtACommaAsWellAsAtALineEnd) {
  Put(kFiles / "numbered_comma.COF", "VALKORIN.COF");
  Put(kFiles / "numbered_asr94.txt", "asr94COF.txt");
  Load();
  ExpectCase("numbered_comma");
}

TEST_F(CoefficientFiles, AFileOf300ItemsFillsItems0To299AndTheRestStays0) {
  Put(kFiles / "numbered300.COF", "VALKORIN.COF");
  Load();
  ExpectCase("numbered300, no asr94 file");
}

TEST_F(CoefficientFiles, WithoutTheMainFileAllSixArraysHoldZeros) {
  table::LoadDelivered();
  Put(kFiles / "numbered_asr94.txt", "asr94COF.txt");
  EXPECT_NO_THROW(Load());
  ExpectCase("no COF file, numbered asr94");
}

TEST_F(CoefficientFiles, ANumberBehindItem52OfTheRoystonFileHasNoEffect) {
  std::string items;
  for (int i = 0; i < 53; ++i) items += std::to_string(i + 1) + "\n";
  Write("current", "asr94COF.txt", items);
  Load();
  const Coefficients short_file = Coefs();
  Write("current", "asr94COF.txt", items + "777\n888\n");
  Load();
  EXPECT_EQ(Coefs().RoystonTable, short_file.RoystonTable);
  EXPECT_EQ(Coefs().XX95, 43);
  EXPECT_EQ(Coefs().ShapiroTH, 50);
}

TEST_F(CoefficientFiles, AnItemThatIsNoNumberIsConsumedAndLeaves0) {
  Write(
      "current", "VALKORIN.COF",
      "1\nabc\n3\n4x\n\n6,,8\n1,5\r\n0x10\ninf\nnan\n1E999\n" + std::string(5000, '9') + "\n17\n");
  Load();
  const double expected[] = {1, 0, 3, 0, 0, 6, 0, 8, 1, 5, 0, 0, 0, 0, 0, 17, 0};
  for (std::size_t i = 0; i < std::size(expected); ++i)
    EXPECT_EQ(Coefs().ExactRankits[i], expected[i]) << "item " << i;
}

TEST_F(CoefficientFiles, BlanksSignsExponentsAndEveryKindOfLineEndAreRead) {
  Write("current", "VALKORIN.COF", "  1.5 \n\t+2\r\n-3e-2\r4E+1\n.5 , -.25\n6");
  Load();
  const double expected[] = {1.5, 2, -0.03, 40, 0.5, -0.25, 6, 0};
  for (std::size_t i = 0; i < std::size(expected); ++i)
    EXPECT_EQ(Coefs().ExactRankits[i], expected[i]) << "item " << i;
}

TEST_F(CoefficientFiles, TheCurrentDirectoryComesBeforeTheProgramsFolder) {
  Write("beside", "VALKORIN.COF", "2\n");
  Load();
  EXPECT_EQ(Coefs().ExactRankits[0], 2);
  Write("current", "VALKORIN.COF", "1\n");
  Load();
  EXPECT_EQ(Coefs().ExactRankits[0], 1);
}

TEST_F(CoefficientFiles, AFolderWithTheFilesNameIsNoFile) {
  fs::create_directory(home_ / "current" / "VALKORIN.COF");
  Write("beside", "VALKORIN.COF", "2\n");
  EXPECT_NO_THROW(Load());
  EXPECT_EQ(Coefs().ExactRankits[0], 2);
}

TEST_F(CoefficientFiles, BinaryContentEndsInZerosWithoutAFault) {
  std::string noise;
  for (int i = 0; i < 4096; ++i) noise += static_cast<char>(i * 37 % 256);
  Write("current", "VALKORIN.COF", noise);
  Write("current", "asr94COF.txt", noise);
  EXPECT_NO_THROW(Load());
  EXPECT_EQ(Coefs().HillCoefficients[19], 0);
}

// What depends on the constants may fail without them; what needs none must still be right.
TEST_F(CoefficientFiles, WithoutFilesTheSeriesOfTheNormalAreaStillStands) {
  Load();
  EXPECT_EQ(Coefs().HillCoefficients[12], 0);
  EXPECT_NEAR(StatFWinBAS::NormalUpper(1.6448536269514722), 0.05, 1e-15);
}

TEST(RoystonPolynomial, GivesTheValuesOfTheReferenceTable) {
  table::LoadDelivered();
  for (const support::Row& row : support::ReadTable("royston_poly.csv"))
    table::Expect(row, {"x", "degree", "column"}, "result", 1e-14, [&] {
      return StatFWinBAS::RoystonPoly(row.Number("x"), static_cast<int>(row.Number("degree")),
                                      static_cast<int>(row.Number("column")));
    });
}

TEST(RoystonPolynomial, AtZeroIsItsConstantTerm) {
  table::LoadDelivered();
  EXPECT_EQ(StatFWinBAS::RoystonPoly(0, 1, 10), Coefs().RoystonTable[10][0]);
  EXPECT_EQ(StatFWinBAS::RoystonPoly(0, 1, 10), -2.273);
}

TEST(RoystonPolynomial, AColumnOutside0To10OrADegreeBeyond6IsASubscriptFault) {
  const auto kind = [](int degree, int column) {
    try {
      StatFWinBAS::RoystonPoly(1, degree, column);
    } catch (const RunTimeError& error) {
      return error.Kind() == FaultKind::Subscript;
    }
    return false;
  };
  EXPECT_FALSE(kind(6, 0));
  EXPECT_FALSE(kind(6, 10));
  EXPECT_TRUE(kind(7, 1));
  EXPECT_TRUE(kind(1, 11));
  EXPECT_TRUE(kind(1, -1));
}

}  // namespace
