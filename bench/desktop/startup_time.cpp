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

void PrintStartupTime(const char* bench) {
  constexpr int kStarts = 31;
  const std::string self = bench;
  const std::string folder = self.substr(0, self.rfind('/') + 1);
  std::vector<double> empty;
  std::vector<double> game;
  for (int i = 0; i < kStarts; ++i) {
    empty.push_back(MillisecondsOf(folder + "startup-empty-window"));
    game.push_back(MillisecondsOf(folder + "startup-start-screen"));
  }
  // Without a display no window system takes part, and an empty window starts in half the time that
  // it takes a user to see it: run the bench under xvfb-run for the figure that counts.
  const bool shown = std::getenv("DISPLAY") != nullptr;
  std::printf(
      "Start to first frame %s: %.1f ms, an empty Qt window %.1f ms, ratio %.2f (at most 1.3 on a "
      "display)\n",
      shown ? "on the display" : "off screen", Median(game), Median(empty),
      Median(game) / Median(empty));
}

}  // namespace frostmark
