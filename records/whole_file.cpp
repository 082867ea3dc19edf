#include "records/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace frostmark {
namespace {

constexpr mode_t kModeOfNewFile = 0666;  // less what the user's mask takes
constexpr mode_t kPermissions = 07777;

class Descriptor {
 public:
  Descriptor(const std::string& path, int flags, mode_t mode = 0)
      : number_(open(path.c_str(), flags | O_CLOEXEC, mode)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { (void)Close(); }

  bool IsOpen() const { return number_ >= 0; }
  int number() const { return number_; }
  int Close() {
    const int number = number_;
    number_ = -1;
    return number < 0 || close(number) == 0 ? 0 : errno;
  }

 private:
  int number_;
};

std::optional<struct stat> RegularFile(const Descriptor& file) {
  struct stat status {};
  if (fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return status;
}

int WriteAll(const Descriptor& file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t count = write(file.number(), content.data(), content.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    content.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

int Flush(const Descriptor& file) {
  if (fsync(file.number()) == 0) return 0;
  // Some file systems have nothing to flush and say so.
  return errno == EINVAL || errno == ENOSYS ? 0 : errno;
}

int Fill(Descriptor& file, std::string_view content) {
  if (const int error = WriteAll(file, content)) return error;
  if (const int error = Flush(file)) return error;
  return file.Close();
}

// The new content replaces OLD in FILE, which has room for both.
int ReplaceContent(Descriptor& file, std::string_view content, std::string_view old) {
  int error = WriteAll(file, content);
  if (error == 0 && ftruncate(file.number(), static_cast<off_t>(content.size())) != 0)
    error = errno;
  if (error == 0) error = Flush(file);
  if (error == 0) return 0;
  // Each as far as it can be done: where not a byte could be written, the length is all that has
  // changed.
  if (lseek(file.number(), 0, SEEK_SET) == 0) (void)WriteAll(file, old);
  (void)!ftruncate(file.number(), static_cast<off_t>(old.size()));
  return error;
}

int TakeRoom(const Descriptor& file, std::size_t size, off_t old_size) {
  if (static_cast<off_t>(size) <= old_size) return 0;
  const int error = posix_fallocate(file.number(), 0, static_cast<off_t>(size));
  if (error != 0) (void)!ftruncate(file.number(), old_size);
  return error;
}

// The file at DESTINATION again as it was: OLD, or nothing.
void PutBack(const std::string& destination, const std::optional<std::string>& old) {
  if (old) {
    (void)OverwriteFile(destination, *old);
  } else {
    (void)unlink(destination.c_str());
  }
}

// SOURCE goes only when its copy is on the disk for good.
int CopyAndDelete(const std::string& source, const std::string& destination) {
  const auto content = ReadWholeFile(source);
  if (!content) return EIO;
  std::optional<std::string> old;
  int error = 0;
  if (NothingLiesAt(destination)) {
    error = WriteNewFile(destination, *content, source);
  } else {
    old = ReadWholeFile(destination);
    error = old ? OverwriteFile(destination, *content) : EIO;
  }
  if (error != 0) return error;
  error = FlushFolder(destination.substr(0, destination.rfind('/')));
  if (error == 0 && unlink(source.c_str()) != 0) error = errno;
  if (error != 0) PutBack(destination, old);
  return error;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path) {
  const Descriptor file(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  if (!file.IsOpen()) return std::nullopt;
  const auto status = RegularFile(file);
  if (!status || static_cast<std::size_t>(status->st_size) > kLargestFile) return std::nullopt;
  // One byte more than the file has, so that its end shows in one read.
  std::string content(static_cast<std::size_t>(status->st_size) + 1, '\0');
  std::size_t used = 0;
  while (true) {
    const ssize_t count = read(file.number(), content.data() + used, content.size() - used);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    used += static_cast<std::size_t>(count);
    if (used > kLargestFile) return std::nullopt;
    if (count == 0 || used == static_cast<std::size_t>(status->st_size)) break;
    if (used == content.size()) content.resize(2 * content.size());
  }
  content.resize(used);
  return content;
}

bool NothingLiesAt(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

int WriteNewFile(const std::string& path, std::string_view content, const std::string& like) {
  Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, kModeOfNewFile);
  if (!file.IsOpen()) return errno;
  struct stat old {};
  if (lstat(like.c_str(), &old) == 0 && S_ISREG(old.st_mode)) {
    (void)!fchmod(file.number(), old.st_mode & kPermissions);
  }
  const int error = Fill(file, content);
  if (error != 0) (void)unlink(path.c_str());
  return error;
}

int OverwriteFile(const std::string& path, std::string_view content) {
  if (NothingLiesAt(path)) return WriteNewFile(path, content, path);
  Descriptor file(path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
  if (!file.IsOpen()) return errno;
  const auto status = RegularFile(file);
  if (!status) return EINVAL;
  const auto old = ReadWholeFile(path);
  if (!old) return EIO;  // it could not be put back
  if (const int error = TakeRoom(file, content.size(), status->st_size)) return error;
  if (const int error = ReplaceContent(file, content, *old)) return error;
  return file.Close();
}

bool OnlyOverwritingMayHelp(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EXDEV || error == ENOENT;
}

int MoveWholeFile(const std::string& source, const std::string& destination) {
  if (std::rename(source.c_str(), destination.c_str()) == 0) return 0;
  return errno == EXDEV ? CopyAndDelete(source, destination) : errno;
}

int FlushFolder(const std::string& folder) {
  const Descriptor file(folder, O_RDONLY | O_DIRECTORY);
  return file.IsOpen() ? Flush(file) : errno;
}

}  // namespace frostmark
