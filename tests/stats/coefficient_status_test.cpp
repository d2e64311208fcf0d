#include "stats/coefficient_status.h"

#include <gmock/gmock.h>

#include <functional>
#include <sstream>

#include "base/fault.h"
#include "stats/coefficients.h"
#include "stats/normal.h"
#include "tests/stats/table_check.h"
#include "tests/support/temp_folder.h"

// What becomes of a calculation when a coefficient file is damaged, and what the user is told.
namespace {

using StatFWinBAS::CoefficientFile;
using StatFWinBAS::CoefficientStatus;
using StatFWinBAS::CoefficientWarning;
using StatFWinBAS::Coefs;
using StatFWinBAS::FileState;
using testing::HasSubstr;

constexpr const char* kMain = "VALKORIN.COF";
constexpr const char* kRoyston = "asr94COF.txt";

// A current directory of the test's own, in which the files are those that it writes.
class CoefficientStates : public testing::Test {
 protected:
  CoefficientStates() {
    std::filesystem::current_path(folder_.Path(""));
    for (const char* name : {kMain, kRoyston})
      folder_.Write(name, TempFolder::Bytes(Delivered(name)));
  }
  ~CoefficientStates() override {
    std::filesystem::current_path(before_);
    table::LoadDelivered();
  }
  static std::string Delivered(const std::string& name) {
    return std::string(VALKORIN_SOURCE_DIR "/data/") + name;
  }
  // The delivered file with its line `number`, counted from 1, replaced.
  std::string WithLine(const char* name, int number, const std::string& text) const {
    std::istringstream lines(TempFolder::Bytes(Delivered(name)));
    std::string all;
    std::string line;
    for (int i = 1; std::getline(lines, line); ++i) all += (i == number ? text : line) + "\n";
    return all;
  }
  static void Load() { StatFWinBAS::LoadCoefficients({}); }
  static const CoefficientFile& Main() { return CoefficientStatus()[0]; }
  static const CoefficientFile& Royston() { return CoefficientStatus()[1]; }

  // What the fault says, or "none".
  static std::string FaultOf(const std::function<void()>& calculation) {
    try {
      calculation();
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Kind(), FaultKind::MissingConstants);
      return error.what();
    }
    return "none";
  }
  static std::string InverseFault(double p) {
    return FaultOf([&p] { StatFWinBAS::NormalUpperInverse(p); });
  }
  static std::string HillFault(double x) {
    return FaultOf([&x] { StatFWinBAS::NormalUpperHill(x); });
  }

  const std::filesystem::path before_ = std::filesystem::current_path();
  TempFolder folder_;
};

}  // namespace

TEST_F(CoefficientStates, OfTheDeliveredFilesNeedNoWord) {
  Load();
  EXPECT_EQ(Main().state, FileState::Delivered);
  EXPECT_EQ(Main().numbers, 370);
  EXPECT_EQ(Royston().state, FileState::Delivered);
  EXPECT_EQ(Royston().numbers, 53);
  EXPECT_EQ(CoefficientWarning("\r"), "");
}

TEST_F(CoefficientStates, NameTheFileThatIsMissingAndWhereItWasLookedFor) {
  std::filesystem::remove(kMain);
  Load();
  EXPECT_EQ(Main().state, FileState::Missing);
  EXPECT_EQ(Main().path, folder_.Path(kMain));
  EXPECT_EQ(Royston().state, FileState::Delivered);
  EXPECT_EQ(CoefficientWarning("\r"), folder_.Path(kMain) +
                                          " is missing: calculations that need its constants "
                                          "stop.");
}

TEST_F(CoefficientStates, TellHowManyConstantsAShortFileHolds) {
  folder_.Write(kMain, "");
  folder_.Write(kRoyston, WithLine(kRoyston, 52, "x"));
  Load();
  EXPECT_EQ(Main().state, FileState::Short);
  EXPECT_EQ(Main().numbers, 0);
  EXPECT_EQ(Royston().state, FileState::Short);
  EXPECT_EQ(CoefficientWarning(" / "),
            folder_.Path(kMain) +
                " holds 0 of its 370 constants: calculations that need the others stop. / " +
                folder_.Path(kRoyston) +
                " holds 52 of its 53 constants: calculations that need the others stop.");
}

// Items 0 to 97, 196 to 219 and 277 to 310 of the main file are read by routines, and 0 to 42 and
// 49 of the other.
TEST_F(CoefficientStates, FindOneConstantThatIsOnlySlightlyAnotherOne) {
  for (const int item : {0, 97, 196, 219, 277, 291, 292, 310}) {
    folder_.Write(kMain, WithLine(kMain, item + 1, "1.0625"));
    Load();
    EXPECT_EQ(Main().state, FileState::Different) << item;
    EXPECT_THAT(CoefficientWarning("\r"), HasSubstr(folder_.Path(kMain) + " holds other"));
  }
  for (const int item : {0, 5, 6, 29, 34, 35, 42, 49}) {
    folder_.Write(kRoyston, WithLine(kRoyston, item + 1, "1.0625"));
    Load();
    EXPECT_EQ(Royston().state, FileState::Different) << item;
  }
  folder_.Write(kMain, WithLine(kMain, 1, "1.029375373003965"));
  Load();
  EXPECT_EQ(Main().state, FileState::Different);
}

TEST_F(CoefficientStates, FindTwoConstantsThatHaveChangedPlaces) {
  folder_.Write(kMain, "0.297011382274645\n1.029375373003964\n" +
                           WithLine(kMain, 0, "").substr(2 * std::size_t{18}));
  Load();
  EXPECT_EQ(Coefs().ExactRankits[2], 1.162964473640520);
  EXPECT_EQ(Main().state, FileState::Different);
}

TEST_F(CoefficientStates, OfACompleteFileOfTheUsersOwnIsDifferentButItIsUsed) {
  folder_.Write(kMain, WithLine(kMain, 1, "1.03"));
  Load();
  EXPECT_EQ(Coefs().ExactRankits[0], 1.03);
  EXPECT_EQ(InverseFault(0.3), "none");
}

TEST_F(CoefficientStates, DoNotLookAtConstantsThatNoRoutineReads) {
  folder_.Write(kMain, WithLine(kMain, 370, "17"));
  Load();
  EXPECT_EQ(Main().state, FileState::Delivered);
}

// A byte order mark made the first constant unreadable, and with it the largest rankit of four.
TEST_F(CoefficientStates, OfAFileWithAByteOrderMarkAreThoseOfTheFile) {
  folder_.Write(kMain, "\xEF\xBB\xBF" + TempFolder::Bytes(Delivered(kMain)));
  Load();
  EXPECT_EQ(Coefs().ExactRankits[0], 1.029375373003964);
  EXPECT_EQ(Main().state, FileState::Delivered);
}

TEST_F(CoefficientStates, OfAHugeFileComeFromItsFirstMebibyte) {
  std::string text(std::size_t{1} << 20U, ' ');
  folder_.Write(kMain, text + TempFolder::Bytes(Delivered(kMain)));
  std::filesystem::resize_file(kMain, std::uintmax_t{20} << 30U);
  Load();
  EXPECT_EQ(Main().state, FileState::Short);
  EXPECT_EQ(Main().numbers, 0);
}

TEST_F(CoefficientStates, OfAPipeAreThoseOfNoFile) {
  std::filesystem::remove(kMain);
  ASSERT_EQ(::mkfifo(kMain, 0666), 0);
  Load();
  EXPECT_EQ(Main().state, FileState::Missing);
}

// Zeros gave wrong results that looked like right ones.
TEST_F(CoefficientStates, ARoutineWithoutItsConstantsFaultsAndNamesTheFile) {
  folder_.Write(kMain, "");
  folder_.Write(kRoyston, "");
  Load();
  const std::string main = "VALKORIN.COF lacks constants that it needs";
  for (const double p : {0.001, 0.05, 0.3, 0.7, 0.999, 1.0}) EXPECT_EQ(InverseFault(p), main) << p;
  for (const double x : {-6.0, -1.0, 0.5, 1.28, 1.3, 7.0}) EXPECT_EQ(HillFault(x), main) << x;
  EXPECT_EQ(FaultOf([] { StatFWinBAS::RoystonPoly(2, 1, 10); }),
            "asr94COF.txt lacks constants that it needs");
}

TEST_F(CoefficientStates, WhatNeedsNoConstantsGoesOn) {
  folder_.Write(kMain, "");
  Load();
  for (const double p : {0.5, 1E-301}) EXPECT_EQ(InverseFault(p), "none") << p;
  for (const double x : {0.0, 38.0, -38.0}) EXPECT_EQ(HillFault(x), "none") << x;
}

TEST_F(CoefficientStates, OneUnreadableConstantStopsOnlyTheRoutineThatNeedsIt) {
  folder_.Write(kMain, WithLine(kMain, 293, "five"));
  Load();
  EXPECT_EQ(InverseFault(0.3), "none");
  EXPECT_EQ(HillFault(1.5), "VALKORIN.COF lacks constants that it needs");
}
