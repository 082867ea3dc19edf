#include "bench/world_for_bench.h"

namespace frostmark {
WorldForBench::WorldForBench() : program_(std::make_unique<Program>(front_end_, dice_, Folder())) {
  program_->Start();
  program_->startup.PressNew();
  program_->startup.PressGenerate();
  program_->startup.PressBegin();
}

void WorldForBench::PlayOneWeek() {
  program_->franchise.SimRunning = true;
  program_->franchise.PressBegin();
  program_->franchise.SimRunning = false;
}

}  // namespace frostmark
