#include "tests/house/banned_calls.h"

#include <gmock/gmock.h>

namespace house {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(NumbersAndTheLocale, NothingOutsideTheTestsReadsOrWritesNumbersByTheLocale) {
  int looked = 0;
  for (const SourceFile& file : ReadTree(VALKORIN_SOURCE_DIR)) {
    if (!IsCpp(file) || file.Folder() == "tests") continue;
    ++looked;
    EXPECT_THAT(LocaleFaults(file), IsEmpty());
  }
  EXPECT_GT(looked, 40) << "the tree was not read";
}

// The check itself, on made-up text.

TEST(NumbersAndTheLocaleCheck, BitesOnEveryKindOfCall) {
  for (const char* code :
       {"std::printf(\"%g\", x);", "snprintf(b, n, f, x)", "auto x = strtod(t, &e);",
        "double x = std::stod(text);", "text += std::to_string(x);", "std::ostringstream out;",
        "out << std::setprecision(17) << x;", "sscanf(t, f, &x)", "QLocale().toString(x)",
        "std::transform(a, b, c, std::stoi);"}) {
    EXPECT_THAT(LocaleFaults({"limits/steps.cpp", code}), testing::SizeIs(1)) << code;
  }
}

TEST(NumbersAndTheLocaleCheck, TellsTheLineAndTheCall) {
  EXPECT_THAT(LocaleFaults({"ui/binder.cpp", "int a;\n/* one\ntwo */ f(); std::stod(t);\n"}),
              ElementsAre("ui/binder.cpp:3: stod"));
}

TEST(NumbersAndTheLocaleCheck, LooksAtCodeOnly) {
  for (const char* text : {"// printf( is not for us", "/* std::stod(text)\n */",
                           "const char* t = \"strtod(x)\";", "R\"x(to_string( \" stod()x\"",
                           "std::to_chars(a, b, x);", "path.string();", "HistoDraw(1'000, 'a');"}) {
    EXPECT_THAT(LocaleFaults({"limits/steps.cpp", text}), IsEmpty()) << text;
  }
}

TEST(NumbersAndTheLocaleCheck, GoesOnBehindLiteralsAndComments) {
  EXPECT_THAT(LocaleFaults({"a/b.cpp", "f(\"\\\"\", '\"', 10'000); // x\nstod(t);"}),
              ElementsAre("a/b.cpp:2: stod"));
  EXPECT_THAT(LocaleFaults({"a/b.cpp", "g(R\"(\")\"); stod(t);"}), ElementsAre("a/b.cpp:1: stod"));
}

}  // namespace
}  // namespace house
