#include "tests/kill/victim.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>
#include <thread>

namespace frostmark::test {

Victim::Victim(const std::vector<std::string>& arguments) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  output_ = ends[0];
  std::string program = FROSTMARK_VICTIM;
  std::vector<std::string> words = arguments;
  std::vector<char*> argv = {program.data()};
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, ends[0]);
  const int failure =
      posix_spawn(&process_, program.c_str(), &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  if (failure != 0) throw std::runtime_error("cannot start " + program);
}

Victim::~Victim() {
  if (process_ > 0) {
    kill(process_, SIGKILL);
    WaitForEnd();
  }
  close(output_);
}

bool Victim::BecomesReady() { return ReadLine() && said_.back() == "ready"; }

bool Victim::KillAfter(std::chrono::microseconds delay) {
  std::this_thread::sleep_for(delay);
  kill(process_, SIGKILL);
  const int status = WaitForEnd();
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

bool Victim::EndsWell() {
  const int status = WaitForEnd();
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool Victim::ReadLine() {
  while (true) {
    const std::size_t end = unread_.find('\n');
    if (end != std::string::npos) {
      said_.push_back(unread_.substr(0, end));
      unread_.erase(0, end + 1);
      return true;
    }
    std::array<char, 4096> buffer{};
    const ssize_t count = read(output_, buffer.data(), buffer.size());
    if (count <= 0) return false;
    unread_.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

int Victim::WaitForEnd() {
  while (ReadLine()) {
  }
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  return status;
}

}  // namespace frostmark::test
