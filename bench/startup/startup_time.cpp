#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

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
  std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
  return times[times.size() / 2];
}

}  // namespace

// Starts an empty window and the game in turn, each until its first frame, and prints both medians
// and their ratio. Uses the display that there is, or the offscreen platform.
int main(int /*argc*/, char** argv) {
  constexpr int kStarts = 31;
  if (std::getenv("DISPLAY") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const std::string self = argv[0];
  const std::string folder = self.substr(0, self.rfind('/') + 1);
  std::vector<double> empty;
  std::vector<double> game;
  for (int i = 0; i < kStarts; ++i) {
    empty.push_back(MillisecondsOf(folder + "startup-empty-window"));
    game.push_back(MillisecondsOf(folder + "startup-start-screen"));
  }
  std::printf(
      "Start to first frame: %.1f ms, an empty Qt window %.1f ms, ratio %.2f (at most 1.3)\n",
      Median(game), Median(empty), Median(game) / Median(empty));
  return EXIT_SUCCESS;
}
