#include <gmock/gmock.h>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <iostream>

// The window toolkit puts the process into the user's locale before anything else runs, and from
// then on the C library reads and writes decimal commas. The tests run under the same condition,
// so that the suite under LC_ALL=de_DE.UTF-8 finds every number that follows the locale.
//
// VALKORIN_TEST_DECIMAL names the decimal separator that the caller's locale must have. A run
// under a locale that is not installed would prove nothing: it ends as skipped.
int main(int argc, char** argv) {
  constexpr int skipped = 77;
  std::setlocale(LC_ALL, "");
  const char* wanted = std::getenv("VALKORIN_TEST_DECIMAL");
  if (wanted != nullptr && std::strcmp(wanted, std::localeconv()->decimal_point) != 0) {
    std::cout << "skipped: the locale of LC_ALL is not installed\n";
    return skipped;
  }
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
