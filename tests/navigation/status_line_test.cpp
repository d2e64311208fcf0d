// What the line below every screen tells of the series: whose estimates stand there, and which
// outcomes are left out.
#include <gmock/gmock.h>

#include "plots/plot_form.h"
#include "tests/support/program_session.h"

namespace {

using testing::HasSubstr;
using testing::Not;

struct User : support::ProgramSession {
  User() { OpenSeries({1, 2, 3, 4, 5, 6, 7, 8, 9}); }
  const std::string& Status() { return Text("StatusLbl"); }
  void RangeFrom(const std::string& LOQ) {
    Click("DetecChB");
    Type("DetecLTxb", LOQ);
  }
};

constexpr char kOfAll[] = "GM, GSD and df are those of all 9 outcomes.";
constexpr char kByRange[] =
    "GM and GSD are of all 9 outcomes, with the 6 degrees of freedom that the detection range "
    "leaves.";
constexpr char kOfLine[] =
    "GM and GSD are estimated by the line through the 6 outcomes within the range.";

TEST(StatusLine, SaysNothingOfEstimatesWithoutARange) {
  User user;
  EXPECT_EQ(user.Status(), "9 outcomes read.");
  user.Tab("descript");
  EXPECT_EQ(user.Status(), "");
}

TEST(StatusLine, TellsWhoseEstimatesStandWhereThereIsARange) {
  User user;
  user.RangeFrom("3.5");
  EXPECT_THAT(user.Status(), HasSubstr(kByRange));
  user.Tab("descript");
  EXPECT_THAT(user.Status(), HasSubstr(kByRange));
  user.Tab("raw");
  EXPECT_THAT(user.Status(), HasSubstr(kOfAll)) << "the raw data puts them back";
  user.Tab("plot");
  EXPECT_THAT(user.Status(), HasSubstr(kOfLine));
  user.Tab("descript");
  EXPECT_THAT(user.Status(), HasSubstr(kOfLine));
  user.Tab("raw");
  EXPECT_THAT(user.Status(), HasSubstr(kOfAll));
  EXPECT_THAT(user.Status(), Not(HasSubstr(kOfLine)));
}

TEST(StatusLine, NamesOnlyTheFirstOfManyOutcomesThatAreLeftOut) {
  User user;
  user.Tab("basis");
  user.Type("SampSizTxB", "2");
  EXPECT_THAT(user.Status(),
              HasSubstr("The 7 highest outcomes are left out (3, 4, 5, 6, 7, 8, ...); sample size "
                        "9 brings them back."));
  user.Type("SampSizTxB", "3");
  EXPECT_THAT(user.Status(), HasSubstr("The 6 highest outcomes are left out (4, 5, 6, 7, 8, 9);"));
}

}  // namespace
