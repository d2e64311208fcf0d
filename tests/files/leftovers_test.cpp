#include "files/leftovers.h"

#include <gmock/gmock.h>
#include <sys/wait.h>

#include "tests/support/temp_folder.h"

namespace {

using files::RemoveLeftovers;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::string NameOf(long process, const char* number = "0") {
  return ".valkorin-" + std::to_string(process) + "-" + number + ".tmp";
}

// The id of a process that has just ended.
long DeadProcess() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  return child;
}

class Leftovers : public testing::Test {
 protected:
  TempFolder folder_;
};

}  // namespace

TEST_F(Leftovers, OfDeadProcessesAreRemoved) {
  folder_.Write(NameOf(DeadProcess()), "half");
  folder_.Write(NameOf(DeadProcess(), "17"), "half");
  RemoveLeftovers(folder_.Path(""));
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

// Process 1 lives on every machine, and may belong to another user.
TEST_F(Leftovers, OfLivingProcessesStay) {
  folder_.Write(NameOf(::getpid()), "now being written");
  folder_.Write(NameOf(1), "now being written");
  RemoveLeftovers(folder_.Path(""));
  EXPECT_THAT(folder_.Names(), UnorderedElementsAre(NameOf(::getpid()), NameOf(1)));
}

TEST_F(Leftovers, OfOtherNamesAndKindsAreNotTouched) {
  const std::vector<std::string> names = {
      "series.vkr",        ".valkorin-.tmp",     ".valkorin-12.tmp",
      ".valkorin-x-0.tmp", ".valkorin--5-0.tmp", ".valkorin-0-0.tmp",
      ".valkorin-9-0",     "valkorin-9-0.tmp",   ".valkorin-9999999999999999999-0.tmp",
      ".valkorin-tmp"};
  for (const std::string& name : names) folder_.Write(name, "mine");
  const std::string link = NameOf(DeadProcess());
  std::filesystem::create_symlink("series.vkr", folder_.Path(link));
  std::filesystem::create_directory(folder_.Path(NameOf(DeadProcess(), "1")));
  RemoveLeftovers(folder_.Path(""));
  EXPECT_EQ(folder_.Names().size(), names.size() + 2);
}

TEST_F(Leftovers, OfAFolderThatIsMissingAreNone) {
  RemoveLeftovers(folder_.Path("nowhere"));
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

TEST_F(Leftovers, AreNamedByTheProcessAndANumber) {
  EXPECT_EQ(files::TemporaryName(3), NameOf(::getpid(), "3"));
}
