#include "tests/house/sizes.h"

#include <gmock/gmock.h>

#include <map>

namespace house {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kFileBelow = 300;
constexpr int kFunction = 40;
constexpr int kAlgorithm = 60;

// Each with its reason.
const std::map<std::string, std::string> kLongFiles = {
    {"src/catalog/rows.cpp", "the table of the given texts"},
    {"src/drawing/font_table.cpp", "the table of the widths of the drawings' font"},
};

// Published algorithms, which may reach 60 lines, by "file function": none needs it now.
const std::map<std::string, std::string> kAlgorithms = {};

// One line for each room of `file` that is too large and has no exception.
std::vector<std::string> SizeFaults(const SourceFile& file) {
  std::vector<std::string> faults;
  if (LinesOf(file) >= kFileBelow && !kLongFiles.contains(file.path))
    faults.push_back(file.path + ": " + std::to_string(LinesOf(file)) + " lines");
  for (const Function& function : FunctionsOf(file)) {
    const bool algorithm = kAlgorithms.contains(file.path + " " + function.name);
    if (function.lines > (algorithm ? kAlgorithm : kFunction))
      faults.push_back(file.path + ":" + std::to_string(function.line) + ": " + function.name +
                       " has " + std::to_string(function.lines) + " lines");
  }
  return faults;
}

TEST(Rooms, NoFileAndNoFunctionIsLargerThanTheRule) {
  std::size_t functions = 0;
  for (const SourceFile& file : ReadTree(VALKORIN_SOURCE_DIR)) {
    if (!IsCpp(file) || !file.path.starts_with("src/")) continue;
    functions += FunctionsOf(file).size();
    EXPECT_THAT(SizeFaults(file), IsEmpty());
  }
  EXPECT_GT(functions, 1500u) << "the functions were not found";
}

TEST(Rooms, EveryExceptionIsStillNeeded) {
  int needed = 0;
  for (const SourceFile& file : ReadTree(VALKORIN_SOURCE_DIR)) {
    if (kLongFiles.contains(file.path)) needed += LinesOf(file) >= kFileBelow ? 1 : 0;
    for (const Function& function : FunctionsOf(file))
      if (kAlgorithms.contains(file.path + " " + function.name))
        needed += function.lines > kFunction ? 1 : 0;
  }
  EXPECT_EQ(needed, static_cast<int>(kLongFiles.size() + kAlgorithms.size()));
}

// The check itself, on made-up text.

std::string Lines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "  f();\n";
  return text;
}

TEST(RoomsCheck, BitesOnAFunctionAndAFileOverTheRule) {
  EXPECT_THAT(SizeFaults({"src/a/b.cpp", "void Short() {\n" + Lines(38) + "}\n"}), IsEmpty());
  EXPECT_THAT(SizeFaults({"src/a/b.cpp",
                          "int x;\nvoid A::Long(int a,\n  int b) const {\n" + Lines(38) + "}\n"}),
              ElementsAre("src/a/b.cpp:2: A::Long has 41 lines"));
  EXPECT_THAT(SizeFaults({"src/a/b.cpp", Lines(299)}), IsEmpty());
  EXPECT_THAT(SizeFaults({"src/a/b.cpp", Lines(300)}), ElementsAre("src/a/b.cpp: 300 lines"));
}

std::vector<std::string> Found(const std::string& text) {
  std::vector<std::string> found;
  for (const Function& function : FunctionsOf({"src/a/b.cpp", text}))
    found.push_back(function.name + " " + std::to_string(function.line) + " " +
                    std::to_string(function.lines));
  return found;
}

TEST(RoomsCheck, FindsFunctionsWhereverTheyStand) {
  EXPECT_THAT(Found("#include <a>\nnamespace x {\nint f(int a) { return a; }\n}\n"),
              ElementsAre("f 3 1"));
  EXPECT_THAT(Found("struct A : B {\n  Q_OBJECT\n public:\n  A(int n) : b{n}, c(n) {\n  }\n"
                    "  int m() const override { return 1; }\n  int x = 3;\n};\n"),
              ElementsAre("A 4 2", "m 6 1"));
  EXPECT_THAT(
      Found("const T t[] = {{1, [](int x) {\n return x; }}};\nenum class E { a };\n"
            "auto f() -> std::vector<int> {\n  if (a) { b(); }\n}\nauto operator==(A) {}\n"),
      ElementsAre("f 4 3", "operator== 7 1"));
}

TEST(RoomsCheck, ReadsNoBraceInATextOrComment) {
  EXPECT_THAT(Found("void f() {\n  g(\"}\");  // }\n  h('{');\n}\nvoid g() {}\n"),
              ElementsAre("f 1 4", "g 5 1"));
}

}  // namespace
}  // namespace house
