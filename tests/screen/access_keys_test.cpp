#include "screen/access_keys.h"

#include <gmock/gmock.h>

namespace screen {
namespace {

using testing::ElementsAre;

TEST(AccessKeys, StandBehindTheMark) {
  EXPECT_EQ(AccessKeyOf("&File"), 'f');
  EXPECT_EQ(AccessKeyOf("S&tatistics"), 't');
  EXPECT_EQ(AccessKeyOf("Continue"), '\0');
  EXPECT_EQ(AccessKeyOf("R&&D &now"), 'n');
  EXPECT_EQ(AccessKeyOf("this & that"), '\0');
  EXPECT_EQ(AccessKeyOf("end &"), '\0');
}

// Two things that answer the same key answer neither: the toolkit only goes to and fro.
TEST(AccessKeys, OfALaterCaptionMoveToAFreeLetter) {
  EXPECT_THAT(WithOwnKeys({"&File", "S&tatistics", "&Transformation"}),
              ElementsAre("&File", "S&tatistics", "T&ransformation"));
  EXPECT_THAT(WithOwnKeys({"&Reset", "&Raw data file"}), ElementsAre("&Reset", "R&aw data file"));
}

TEST(AccessKeys, OfOtherCaptionsStay) {
  EXPECT_THAT(WithOwnKeys({"&Bar", "&beta", "&Edit"}), ElementsAre("&Bar", "be&ta", "&Edit"));
}

TEST(AccessKeys, AreGivenUpWhereNoLetterIsFree) {
  EXPECT_THAT(WithOwnKeys({"&a", "&b", "&ab"}), ElementsAre("&a", "&b", "ab"));
  EXPECT_THAT(WithOwnKeys({"", "x", "&x"}), ElementsAre("", "x", "&x"));
}

TEST(AccessKeys, OfThreeWithTheSameLetterAllDiffer) {
  EXPECT_THAT(WithOwnKeys({"&one", "&on", "&onw"}), ElementsAre("&one", "o&n", "on&w"));
}

}  // namespace
}  // namespace screen
