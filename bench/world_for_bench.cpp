#include "bench/world_for_bench.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "records/leagues.h"

namespace frostmark {
namespace {

std::string NewFolder() {
  std::string folder = (std::filesystem::temp_directory_path() / "frostmark-bench-XXXXXX").string();
  if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no temporary folder: " + folder);
  for (const char* rank : kRanks) {
    std::filesystem::create_directories(folder + "/Teams/" + rank);
  }
  std::filesystem::create_directories(folder + "/Settings");
  return folder;
}

}  // namespace

WorldForBench::WorldForBench()
    : folder_(NewFolder()), program_(std::make_unique<Program>(desktop_, dice_, folder_)) {
  program_->Start();
  program_->startup.PressNew();
  program_->startup.PressGenerate();
  program_->startup.PressBegin();
}

WorldForBench::~WorldForBench() { std::filesystem::remove_all(folder_); }

void WorldForBench::PlayOneWeek() {
  program_->franchise.SimRunning = true;
  program_->franchise.PressBegin();
  program_->franchise.SimRunning = false;
}

}  // namespace frostmark
