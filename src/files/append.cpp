#include "files/append.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <thread>

namespace files {
namespace {

using Clock = std::chrono::steady_clock;

Appended WhyNotOpened() {
  switch (errno) {
    case ENOENT:
    case ENOTDIR:
      return Appended::NoFolder;
    case EISDIR:
      return Appended::IsFolder;
    case ENXIO:
      return Appended::NoFile;
    case EACCES:
    case EPERM:
    case EROFS:
      return Appended::NotAllowed;
    case ENAMETOOLONG:
      return Appended::NameTooLong;
    default:
      return Appended::NotOpened;
  }
}

Appended KindOf(const struct stat& about) {
  if (S_ISREG(about.st_mode)) return Appended::Done;
  return S_ISDIR(about.st_mode) ? Appended::IsFolder : Appended::NoFile;
}

// A file open for append. A new one is removed again where nothing was appended to it.
class GrowingFile {
 public:
  // A pipe or a device is not even opened: that alone may wait, or do something.
  explicit GrowingFile(const std::string& path) : path_(path) {
    struct stat about {};
    const bool exists = ::stat(path.c_str(), &about) == 0;
    if (exists) state_ = KindOf(about);
    if (state_ != Appended::Done) return;
    constexpr int kFlags = O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    handle_ = ::open(path.c_str(), kFlags | O_CREAT, 0666);
    created_ = !exists;
    if (handle_ < 0)
      state_ = WhyNotOpened();
    else
      state_ = ::fstat(handle_, &about) == 0 ? KindOf(about) : Appended::NotOpened;
  }
  ~GrowingFile() {
    if (handle_ >= 0) ::close(handle_);
  }
  GrowingFile(const GrowingFile&) = delete;
  GrowingFile& operator=(const GrowingFile&) = delete;

  Appended State() const { return state_; }

  // False when another process holds the file until `end`. Where the file system knows no locks,
  // the one write in one piece has to do.
  bool Lock(Clock::time_point end) {
    constexpr std::chrono::milliseconds kPause(10);
    while (::flock(handle_, LOCK_EX | LOCK_NB) != 0) {
      if (errno != EWOULDBLOCK && errno != EINTR) return true;
      if (Clock::now() >= end) return false;
      std::this_thread::sleep_for(kPause);
    }
    return true;
  }

  // Whether the name still leads here: who waited for the lock may hold a file that was removed.
  bool StandsUnderItsName() const {
    struct stat here {};
    struct stat named {};
    return ::fstat(handle_, &here) == 0 && ::stat(path_.c_str(), &named) == 0 &&
           here.st_dev == named.st_dev && here.st_ino == named.st_ino;
  }

  bool Write(std::string_view bytes) {
    struct stat before {};
    if (::fstat(handle_, &before) != 0) return false;
    const ssize_t wrote = ::write(handle_, bytes.data(), bytes.size());
    if (wrote == static_cast<ssize_t>(bytes.size()) && ::fsync(handle_) == 0) return true;
    CutBack(before.st_size);
    return false;
  }

 private:
  void CutBack(off_t size) {
    const bool cut = ::ftruncate(handle_, size) == 0;
    if (!cut || !created_ || size != 0) return;
    // A link that led to no file leads to none again.
    std::error_code error;
    const std::filesystem::path file = std::filesystem::canonical(path_, error);
    if (!error) ::unlink(file.c_str());
  }

  const std::string path_;
  Appended state_ = Appended::Done;
  int handle_ = -1;
  bool created_ = false;
};

}  // namespace

bool RefusesToOpen(Appended outcome) {
  return outcome != Appended::Done && outcome != Appended::InUse && outcome != Appended::NotWritten;
}

Appended AppendWhole(const std::string& path, std::string_view bytes,
                     std::chrono::milliseconds patience) {
  const Clock::time_point end = Clock::now() + patience;
  for (;;) {
    GrowingFile file(path);
    if (file.State() != Appended::Done) return file.State();
    if (!file.Lock(end)) return Appended::InUse;
    if (file.StandsUnderItsName()) return file.Write(bytes) ? Appended::Done : Appended::NotWritten;
    if (Clock::now() >= end) return Appended::InUse;
  }
}

bool SameFile(const std::string& one, const std::string& other) {
  std::error_code error;
  return std::filesystem::equivalent(one, other, error);
}

bool IsSeriesFile(const std::string& path, const std::string& series) {
  return !series.empty() && (path == series || SameFile(path, series));
}

}  // namespace files
