#include <gmock/gmock.h>

#include "tests/support/program_session.h"
#include "tests/support/temp_folder.h"

// The program with a damaged coefficient file in its current directory.
namespace {

using support::ProgramSession;
using testing::HasSubstr;
using testing::Not;

class DamagedConstants : public testing::Test {
 protected:
  DamagedConstants() { std::filesystem::current_path(folder_.Path("")); }
  ~DamagedConstants() override {
    std::filesystem::current_path(before_);
    ProgramSession();  // loads the delivered files
  }
  // Ten outcomes, of which the plain result is that the tolerance limit lies above 4.
  static void ShowTests(ProgramSession& user) {
    user.OpenSeries({0.21, 0.35, 0.5, 0.62, 0.8, 1.1, 1.3, 1.9, 2.5, 3.1});
    user.Record().OELV = 4;
    user.Record().U = 95;
    user.Record().D = 70;
    user.Record().LimitsOk = true;
    user.program.Open(navigation::ScreenId::PercEx);
  }

  const std::filesystem::path before_ = std::filesystem::current_path();
  TempFolder folder_;
};

}  // namespace

TEST_F(DamagedConstants, OpenNoBoxButAreToldOnTheStartScreen) {
  const std::string path = folder_.Write("VALKORIN.COF", "");
  ProgramSession user;
  EXPECT_TRUE(user.box.shown.empty());
  EXPECT_THAT(user.Text("BoodschLbl"), HasSubstr("What kind of exposure data"));
  EXPECT_THAT(user.Text("BoodschLbl"), HasSubstr(path + " holds 0 of its 370 constants"));
}

TEST_F(DamagedConstants, AreStillToldWhenTheDataWereClosed) {
  folder_.Write("asr94COF.txt", "1\n");
  ProgramSession user;
  user.OpenSeries({1, 2, 3});
  user.Click("Menuclose");
  EXPECT_THAT(user.Text("BoodschLbl"), HasSubstr("asr94COF.txt holds 1 of its 53 constants"));
}

TEST_F(DamagedConstants, OfTheDeliveredFilesNothingIsSaid) {
  ProgramSession user;
  EXPECT_THAT(user.Text("BoodschLbl"), Not(HasSubstr("constants")));
}

// Zeros in the place of constants said 3.94 and a green "Compliance" where 5.20 is right.
TEST_F(DamagedConstants, GiveNoVerdictButTheNameOfTheFile) {
  folder_.Write("VALKORIN.COF", "");
  ProgramSession user;
  ShowTests(user);
  user.box.shown.clear();
  user.Click("TuggleCmb");
  EXPECT_THAT(user.LastBox().text, HasSubstr("VALKORIN.COF lacks constants"));
  EXPECT_EQ(user.Record().UTL, 0);
}
