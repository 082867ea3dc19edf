#include "tools/measure_years/fingerprint.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string_view>

#include "records/whole_file.h"

namespace frostmark {
namespace {

namespace fs = std::filesystem;

// FNV-1a with 64 bits.
class Hash {
 public:
  void Add(std::string_view bytes) {
    for (const char byte : bytes) AddByte(static_cast<unsigned char>(byte));
    AddByte(0);  // so that "ab", "c" and "a", "bc" differ
  }
  std::uint64_t value() const { return value_; }

 private:
  void AddByte(unsigned char byte) {
    value_ ^= byte;
    value_ *= 0x100000001b3U;
  }

  std::uint64_t value_ = 0xcbf29ce484222325U;
};

}  // namespace

std::string FingerprintOf(const std::string& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    const std::string path = entry.path().string();
    files[path.substr(folder.size())] = ReadWholeFile(path).value_or("");
  }
  Hash hash;
  for (const auto& [name, content] : files) {
    hash.Add(name);
    hash.Add(content);
  }
  std::array<char, 17> text{};
  (void)std::snprintf(text.data(), text.size(), "%016llx",
                      static_cast<unsigned long long>(hash.value()));
  return text.data();
}

}  // namespace frostmark
