#include "records/whole_file.h"

#include <cstdio>
#include <memory>

namespace frostmark {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { (void)std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File Open(const std::string& path, const char* mode) {
  File file(std::fopen(path.c_str(), mode));
  // A file is read or written in one go, so a buffer of the library's would only cost a copy.
  if (file) (void)std::setvbuf(file.get(), nullptr, _IONBF, 0);
  return file;
}

enum class Outcome { kWritten, kNotOpened, kCutShort };

Outcome Write(const std::string& path, std::string_view content) {
  File file = Open(path, "wb");
  if (!file) return Outcome::kNotOpened;
  const std::size_t written = std::fwrite(content.data(), 1, content.size(), file.get());
  const bool closed = std::fclose(file.release()) == 0;
  return closed && written == content.size() ? Outcome::kWritten : Outcome::kCutShort;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path) {
  const File file = Open(path, "rb");
  if (!file) return std::nullopt;
  std::string content(1024, '\0');  // a team file fits
  std::size_t used = 0;
  while (true) {
    used += std::fread(content.data() + used, 1, content.size() - used, file.get());
    if (used < content.size()) break;
    content.resize(2 * content.size());
  }
  // A folder opens like a file and fails only here.
  if (std::ferror(file.get()) != 0) return std::nullopt;
  content.resize(used);
  return content;
}

void ReplaceFile(const std::string& path, const std::string& temporary, std::string_view content) {
  const Outcome outcome = Write(temporary, content);
  if (outcome == Outcome::kWritten && std::rename(temporary.c_str(), path.c_str()) == 0) return;
  (void)std::remove(temporary.c_str());
  if (outcome != Outcome::kCutShort) Write(path, content);
}

}  // namespace frostmark
