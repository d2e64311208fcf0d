#include "tests/house/glossary.h"

#include <gmock/gmock.h>

namespace house {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

TEST(Glossary, ExplainsEveryWordInTheNameOfAControl) {
  const Glossary glossary =
      ReadGlossary(ReadText(std::string(VALKORIN_SOURCE_DIR) + "/docs/glossary.md"));
  int looked = 0;
  for (const SourceFile& file : ReadTree(VALKORIN_SOURCE_DIR)) {
    if (!file.path.starts_with("src/") || !file.path.ends_with("_form.h")) continue;
    for (const std::string& control : ControlNames(file)) {
      ++looked;
      const std::string word = Word(control, glossary);
      EXPECT_TRUE(word.empty() || glossary.words.contains(word))
          << file.path << ": " << word << " of " << control << " is not in docs/glossary.md";
    }
  }
  EXPECT_GT(looked, 200) << "the screens were not read";
}

// The check itself, on a made-up page.

const char* const kPage =
    "Of `text` nothing is read.\n"
    "| word | meaning |\n"
    "|---|---|\n"
    "| `GM`, `RM_2` | means; see `AM` |\n"
    "| `-TxB`, `-_UpD` | a box |\n"
    "| `Menu-` | a menu |\n";

TEST(GlossaryCheck, ReadsTheFirstColumn) {
  const Glossary glossary = ReadGlossary(kPage);
  EXPECT_THAT(glossary.words, UnorderedElementsAre("GM", "RM_2"));
  EXPECT_THAT(glossary.endings, UnorderedElementsAre("TxB", "_UpD"));
  EXPECT_THAT(glossary.beginnings, UnorderedElementsAre("Menu"));
}

TEST(GlossaryCheck, FindsTheControlsOfAScreen) {
  EXPECT_THAT(ControlNames({"src/hall/hall_form.h",
                            "  Control GMTxB{*this, screen::Kind::TextBox, \"GMTxB\"};\n"
                            "  Control Dim0{*this, screen::Kind::Label,\n      \"Dim(0)\"};\n"
                            "  screen::Picture Plan{*this, \"Plan\"};\n"}),
              ElementsAre("GMTxB", "Dim(0)", "Plan"));
}

TEST(GlossaryCheck, TakesAControlsNameApart) {
  const Glossary glossary = ReadGlossary(kPage);
  EXPECT_EQ(Word("GMTxB", glossary), "GM");
  EXPECT_EQ(Word("GMTxB2", glossary), "GM");
  EXPECT_EQ(Word("GMTxB(12)", glossary), "GM");
  EXPECT_EQ(Word("GM2_UpD", glossary), "GM");
  EXPECT_EQ(Word("MenuRM_2", glossary), "RM_2");
  EXPECT_EQ(Word("Secret", glossary), "Secret");
  EXPECT_EQ(Word("TxB2", glossary), "");
}

}  // namespace
}  // namespace house
