#include "console/script_stack.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

#include "console/refusal.h"

namespace frostmark {
namespace {

namespace fs = std::filesystem;

constexpr int kDeepestInclusion = 16;
constexpr std::uintmax_t kLongestScript = std::uintmax_t{16} << 20U;

std::optional<std::vector<std::string>> LinesOf(const fs::path& path) {
  std::error_code error;
  const bool readable =
      fs::is_regular_file(path, error) && fs::file_size(path, error) <= kLongestScript && !error;
  std::ifstream file;
  if (readable) file.open(path, std::ios::binary);
  if (!file.is_open()) return std::nullopt;
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(std::move(line));
  }
  return lines;
}

std::string FirstWord(const std::string& line) {
  const std::size_t start = line.find_first_not_of(" \t");
  if (start == std::string::npos) return "";
  return line.substr(start, line.find_first_of(" \t", start) - start);
}

}  // namespace

bool ScriptStack::AboveInput() const {
  return std::any_of(parts_.begin(), parts_.end(), [](const Part& part) { return !part.Ended(); });
}

bool ScriptStack::ReadLine(std::string& line) {
  while (!parts_.empty() && parts_.back().Ended()) parts_.pop_back();
  return ReadOn(line);
}

bool ScriptStack::ReadOn(std::string& line) {
  if (parts_.empty()) return input_.ReadLine(line);
  Part& part = parts_.back();
  if (part.Ended()) return false;
  if (part.at == part.lines->size()) {
    part.at = 0;
    --part.rounds_left;
  }
  line = (*part.lines)[part.at++];
  return true;
}

bool ScriptStack::HasLine() const { return AboveInput() || input_.HasLine(); }

bool ScriptStack::WaitForInput(Time at_most) {
  return AboveInput() || input_.WaitForInput(at_most);
}

void ScriptStack::Push(Lines lines, std::string folder, int depth, int rounds) {
  if (lines.empty() || rounds <= 0) return;
  parts_.push_back(
      {std::make_shared<const Lines>(std::move(lines)), std::move(folder), depth, rounds});
}

void ScriptStack::Include(const std::string& path) {
  if (Depth() >= kDeepestInclusion) throw Refusal{"too many files include one another: " + path};
  const fs::path file = fs::path(Folder()) / path;
  auto lines = LinesOf(file);
  if (!lines) throw Refusal{"cannot read " + path};
  Push(std::move(*lines), file.parent_path().string(), Depth() + 1, 1);
}

void ScriptStack::Repeat(int count) {
  Lines block;
  int open = 1;
  for (std::string line; ReadOn(line); block.push_back(std::move(line))) {
    const std::string word = FirstWord(line);
    if (word == "repeat") ++open;
    if (word == "end" && --open == 0) return Push(std::move(block), Folder(), Depth(), count);
  }
  throw Refusal{"the end of a repeat is missing"};
}

}  // namespace frostmark
