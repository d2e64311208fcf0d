#include "files/append.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <unistd.h>

#include <thread>

#include "tests/support/full_disk.h"
#include "tests/support/temp_folder.h"

// What the log is written by.
namespace {

using files::Appended;
using files::AppendWhole;
using files::SameFile;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr milliseconds kShort(30);
constexpr milliseconds kLong(20000);

// Another process that appends: its lock is one of its own.
class Holder {
 public:
  explicit Holder(const std::string& path) : handle_(::open(path.c_str(), O_WRONLY | O_CLOEXEC)) {
    EXPECT_EQ(::flock(handle_, LOCK_EX), 0);
  }
  ~Holder() { ::close(handle_); }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

 private:
  int handle_;
};

class Appending : public testing::Test {
 protected:
  Appended Append(const std::string& name, const std::string& bytes = "new\r\n",
                  milliseconds patience = kShort) const {
    return AppendWhole(folder_.Path(name), bytes, patience);
  }
  std::string Bytes(const std::string& name) const { return TempFolder::Bytes(folder_.Path(name)); }

  TempFolder folder_;
};

TEST_F(Appending, CreatesTheFileAndGrowsItAtItsEnd) {
  EXPECT_EQ(Append("a.LOG", "one\r\n"), Appended::Done);
  EXPECT_EQ(Append("a.LOG", "two\r\n"), Appended::Done);
  EXPECT_EQ(Bytes("a.LOG"), "one\r\ntwo\r\n");
}

TEST_F(Appending, WritesBehindWhatOthersHaveWrittenMeanwhile) {
  folder_.Write("a.LOG", "by hand, without a line end");
  EXPECT_EQ(Append("a.LOG"), Appended::Done);
  EXPECT_EQ(Bytes("a.LOG"), "by hand, without a line endnew\r\n");
}

TEST_F(Appending, TakesAnyNameThatTheSystemTakes) {
  for (const std::string& name : {std::string("\"quoted\" 'name'"), std::string("two\r\nlines"),
                                  std::string(250, 'x'), std::string("no UTF-8 \xFF\xC3")}) {
    EXPECT_EQ(Append(name), Appended::Done) << name;
    EXPECT_EQ(Bytes(name), "new\r\n") << name;
  }
}

TEST_F(Appending, GrowsTheFileBehindALinkAndLeavesTheLink) {
  folder_.Write("behind", "old\r\n");
  std::filesystem::create_symlink("behind", folder_.Path("link"));
  std::filesystem::create_symlink("new", folder_.Path("ahead"));
  EXPECT_EQ(Append("link"), Appended::Done);
  EXPECT_EQ(Append("ahead"), Appended::Done);
  EXPECT_EQ(Bytes("behind"), "old\r\nnew\r\n");
  EXPECT_EQ(Bytes("new"), "new\r\n");
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("link")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("ahead")));
}

TEST_F(Appending, RefusesWhatIsNoPlainFileAndWaitsForNobody) {
  std::filesystem::create_directory(folder_.Path("folder"));
  ASSERT_EQ(::mkfifo(folder_.Path("pipe").c_str(), 0666), 0);
  std::filesystem::create_symlink("pipe", folder_.Path("to pipe"));
  std::filesystem::create_symlink("ring", folder_.Path("ring"));
  EXPECT_EQ(Append("folder"), Appended::IsFolder);
  EXPECT_EQ(Append("pipe"), Appended::NoFile);
  EXPECT_EQ(Append("to pipe"), Appended::NoFile);
  EXPECT_EQ(Append("ring"), Appended::NotOpened);
  EXPECT_EQ(AppendWhole("/dev/full", "new", kShort), Appended::NoFile);
  EXPECT_EQ(Append("none/a.LOG"), Appended::NoFolder);
  EXPECT_EQ(Append(std::string(300, 'x')), Appended::NameTooLong);
}

TEST_F(Appending, APipeWithAReaderStaysEmpty) {
  ASSERT_EQ(::mkfifo(folder_.Path("pipe").c_str(), 0666), 0);
  const int reader = ::open(folder_.Path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(reader, 0);
  EXPECT_EQ(Append("pipe"), Appended::NoFile);
  char byte = 0;
  EXPECT_EQ(::read(reader, &byte, 1), 0);
  ::close(reader);
}

TEST_F(Appending, RespectsWriteProtection) {
  folder_.Write("kept", "old");
  ::chmod(folder_.Path("kept").c_str(), 0444);
  std::filesystem::create_directory(folder_.Path("folder"));
  ::chmod(folder_.Path("folder").c_str(), 0555);
  const AsOrdinaryUser user;
  EXPECT_EQ(Append("kept"), Appended::NotAllowed);
  EXPECT_EQ(Append("folder/a.LOG"), Appended::NotAllowed);
  EXPECT_EQ(Bytes("kept"), "old");
}

TEST_F(Appending, OnAFullDiskLeavesTheFileAsItWas) {
  folder_.Write("a.LOG", "0123456789");
  {
    const support::FullDisk disk(13);
    EXPECT_EQ(Append("a.LOG"), Appended::NotWritten) << "three of five bytes found room";
  }
  EXPECT_EQ(Bytes("a.LOG"), "0123456789");
  {
    const support::FullDisk disk(15);
    EXPECT_EQ(Append("a.LOG"), Appended::Done) << "to the last byte";
  }
  EXPECT_EQ(Bytes("a.LOG"), "0123456789new\r\n");
}

TEST_F(Appending, OnAFullDiskCreatesNothing) {
  folder_.Write("empty", "");
  for (const rlim_t room : {0U, 3U}) {
    const support::FullDisk disk(room);
    EXPECT_EQ(Append("a.LOG"), Appended::NotWritten);
    EXPECT_EQ(Append("empty"), Appended::NotWritten);
  }
  EXPECT_THAT(folder_.Names(), ElementsAre("empty"));
}

TEST_F(Appending, OnAFullDiskLeavesALinkToNoFileAsItWas) {
  std::filesystem::create_symlink("new", folder_.Path("ahead"));
  const support::FullDisk disk(3);
  EXPECT_EQ(Append("ahead"), Appended::NotWritten);
  EXPECT_THAT(folder_.Names(), ElementsAre("ahead"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("ahead")));
}

TEST_F(Appending, GrowsAFileBeyondTwoGigabytes) {
  constexpr std::uintmax_t kSize = 3ULL << 30;
  folder_.Write("huge", "");
  std::filesystem::resize_file(folder_.Path("huge"), kSize);
  EXPECT_EQ(Append("huge"), Appended::Done);
  EXPECT_EQ(std::filesystem::file_size(folder_.Path("huge")), kSize + 5);
}

TEST_F(Appending, GivesUpWhileAnotherProcessKeepsTheFile) {
  folder_.Write("a.LOG", "old");
  const Holder other(folder_.Path("a.LOG"));
  EXPECT_EQ(Append("a.LOG"), Appended::InUse);
  EXPECT_EQ(Bytes("a.LOG"), "old");
}

TEST_F(Appending, WaitsForAnotherProcessToFinish) {
  folder_.Write("a.LOG", "old ");
  auto other = std::make_unique<Holder>(folder_.Path("a.LOG"));
  std::thread finishes([&other] {
    std::this_thread::sleep_for(kShort);
    other.reset();
  });
  EXPECT_EQ(Append("a.LOG", "new", kLong), Appended::Done);
  finishes.join();
  EXPECT_EQ(Bytes("a.LOG"), "old new");
}

// The process that had created the file found the disk full, and has removed it again.
TEST_F(Appending, FindsTheNewFileWhenTheOneItWaitedForWasRemoved) {
  folder_.Write("a.LOG", "old");
  auto other = std::make_unique<Holder>(folder_.Path("a.LOG"));
  std::thread removes([this, &other] {
    std::this_thread::sleep_for(kShort);
    std::filesystem::remove(folder_.Path("a.LOG"));
    other.reset();
  });
  EXPECT_EQ(Append("a.LOG", "new", kLong), Appended::Done);
  removes.join();
  EXPECT_EQ(Bytes("a.LOG"), "new");
}

TEST_F(Appending, OfManyWritersLeavesEveryPieceWhole) {
  constexpr int kWriters = 4;
  constexpr int kPieces = 25;
  std::vector<std::thread> writers;
  for (int i = 0; i < kWriters; ++i)
    writers.emplace_back([this, i] {
      const std::string piece(5000, static_cast<char>('a' + i));
      for (int k = 0; k < kPieces; ++k) EXPECT_EQ(Append("a.LOG", piece, kLong), Appended::Done);
    });
  for (std::thread& writer : writers) writer.join();
  const std::string all = Bytes("a.LOG");
  ASSERT_EQ(all.size(), 5000U * kWriters * kPieces);
  for (std::size_t at = 0; at < all.size(); at += 5000)
    EXPECT_EQ(all.substr(at, 5000), std::string(5000, all[at]));
}

TEST_F(Appending, KnowsTheSameFileByEveryName) {
  folder_.Write("a", "");
  folder_.Write("b", "");
  std::filesystem::create_symlink("a", folder_.Path("soft"));
  std::filesystem::create_hard_link(folder_.Path("a"), folder_.Path("hard"));
  for (const char* name : {"a", "./a", "soft", "hard"})
    EXPECT_TRUE(SameFile(folder_.Path("a"), folder_.Path(name))) << name;
  EXPECT_FALSE(SameFile(folder_.Path("a"), folder_.Path("b")));
  EXPECT_FALSE(SameFile(folder_.Path("a"), folder_.Path("none")));
  EXPECT_FALSE(SameFile(folder_.Path("none"), folder_.Path("none")));
}

}  // namespace
