#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/figures.h"
#include "bench/ratios.h"

namespace frostmark {
namespace {

using Clock = std::chrono::steady_clock;

double MillisecondsOf(const std::string& program) {
  std::string name = program;
  char* arguments[] = {name.data(), nullptr};
  pid_t child = 0;
  const auto start = Clock::now();
  if (posix_spawn(&child, name.c_str(), nullptr, nullptr, arguments, environ) != 0) {
    std::fprintf(stderr, "cannot start %s\n", name.c_str());
    std::exit(EXIT_FAILURE);
  }
  int status = 0;
  waitpid(child, &status, 0);
  const std::chrono::duration<double, std::milli> took = Clock::now() - start;
  if (status != 0) {
    std::fprintf(stderr, "%s failed\n", name.c_str());
    std::exit(EXIT_FAILURE);
  }
  return took.count();
}

double Median(std::vector<double> times) {
  const auto middle = times.begin() + std::ssize(times) / 2;
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

}  // namespace

bool StartupHolds(const char* bench) {
  constexpr int kStarts = 31;
  const std::string self = bench;
  const std::string folder = self.substr(0, self.rfind('/') + 1);
  std::vector<double> empty;
  std::vector<double> game;
  for (int i = 0; i < kStarts; ++i) {
    empty.push_back(MillisecondsOf(folder + "startup-empty-window"));
    game.push_back(MillisecondsOf(folder + "startup-start-screen"));
  }
  const double ratio = Median(game) / Median(empty);
  if (std::getenv("DISPLAY") == nullptr) {
    std::printf("Start to first frame off screen: %.2f times an empty window\n", ratio);
    return true;
  }
  return Holds("Start to first frame, empty window", ratio, "times", 1.25);
}

}  // namespace frostmark
