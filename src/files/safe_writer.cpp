#include "files/safe_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "files/leftovers.h"

namespace files {
namespace {

namespace fs = std::filesystem;

// The file that a name leads to.
fs::path BehindLinks(fs::path path) {
  constexpr int mostLinks = 40;  // as the system itself follows
  std::error_code error;
  for (int i = 0; i < mostLinks && fs::is_symlink(path, error); ++i) {
    const fs::path target = fs::read_symlink(path, error);
    if (error) break;
    path = path.parent_path() / target;  // an absolute target replaces the whole
  }
  return path;
}

fs::path FolderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

// A new file in the folder of the old one. It is removed again unless Replace has put it into the
// old one's place.
class FileBeside {
 public:
  explicit FileBeside(const fs::path& target) : target_(target) {
    constexpr int mostTries = 100;
    for (int i = 0; i < mostTries && handle_ < 0; ++i) {
      path_ = FolderOf(target) / TemporaryName(i);
      handle_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      if (handle_ < 0 && errno != EEXIST) return;
    }
  }
  ~FileBeside() {
    if (handle_ >= 0) ::close(handle_);
    if (created_ || handle_ >= 0) ::unlink(path_.c_str());
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  bool IsOpen() const { return handle_ >= 0; }

  // A member of the file's group may not give it to its owner, but to its group: those who share
  // it must not lose it. The rights must not become other ones.
  bool TakeRightsOf(const struct stat& old) {
    constexpr uid_t sameOwner = static_cast<uid_t>(-1);
    if (::fchown(handle_, old.st_uid, old.st_gid) != 0 &&
        ::fchown(handle_, sameOwner, old.st_gid) != 0)
      errno = 0;
    return ::fchmod(handle_, old.st_mode & 07777) == 0;
  }

  bool Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t wrote = ::write(handle_, bytes.data(), bytes.size());
      if (wrote < 0 && errno == EINTR) continue;
      if (wrote <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(wrote));
    }
    return true;
  }

  // Only what has reached the disk may take the old file's place.
  bool Replace() {
    created_ = true;
    const bool safe = ::fsync(handle_) == 0;
    const bool closed = ::close(handle_) == 0;
    handle_ = -1;
    if (!safe || !closed || std::rename(path_.c_str(), target_.c_str()) != 0) return false;
    created_ = false;
    SyncFolder();
    return true;
  }

 private:
  // The new name survives a crash once the folder is on the disk. When the folder can't be synced
  // the file is still whole, under the old content or the new.
  void SyncFolder() const {
    const int folder = ::open(FolderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return;
    ::fsync(folder);
    ::close(folder);
  }

  fs::path target_;
  fs::path path_;
  int handle_ = -1;
  bool created_ = false;  // and closed: the name still has to be removed
};

}  // namespace

bool WriteSafely(const std::string& path, std::string_view bytes) {
  const fs::path target = BehindLinks(path);
  // Links that lead round in a ring lead to no file.
  if (std::error_code error; !target.has_filename() || fs::is_symlink(target, error)) return false;
  struct stat old {};
  const bool exists = ::stat(target.c_str(), &old) == 0;
  // Renaming would also replace a file that its owner has write-protected.
  if (exists &&
      (!S_ISREG(old.st_mode) || ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0))
    return false;
  RemoveLeftovers(FolderOf(target).string());
  FileBeside file(target);
  if (!file.IsOpen() || (exists && !file.TakeRightsOf(old))) return false;
  return file.Write(bytes) && file.Replace();
}

}  // namespace files
