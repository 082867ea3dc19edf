#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace frostmark::fuzz {

// A world's folders for the targets that read files. Run them with TMPDIR in memory.
class WorldInMemory {
 public:
  WorldInMemory() {
    namespace fs = std::filesystem;
    path_ = (fs::temp_directory_path() / "frostmark-fuzz-XXXXXX").string();
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder");
    fs::create_directories(path_ + "/Settings");
    fs::create_directories(path_ + "/Teams/Rank F");
  }
  WorldInMemory(const WorldInMemory&) = delete;
  WorldInMemory& operator=(const WorldInMemory&) = delete;
  ~WorldInMemory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& path() const { return path_; }
  void Write(const std::string& name, std::string_view content) const {
    std::ofstream(path_ + "/" + name, std::ios::binary) << content;
  }

 private:
  std::string path_;
};

}  // namespace frostmark::fuzz
