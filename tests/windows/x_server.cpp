#include "tests/windows/x_server.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <vector>

namespace frostmark::test {
namespace {

bool OnPath(const std::string& program) {
  std::istringstream path(std::getenv("PATH") == nullptr ? "" : std::getenv("PATH"));
  for (std::string folder; std::getline(path, folder, ':');) {
    if (access((folder + "/" + program).c_str(), X_OK) == 0) return true;
  }
  return false;
}

// Starts ARGUMENTS as a program of its own that ends with this one. It keeps no files open but
// KEPT (-1 for none), and what it says goes nowhere: both programs grumble about missing hardware.
pid_t Start(const std::vector<std::string>& arguments, int kept) {
  std::vector<char*> argv;
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);
  const pid_t child = fork();
  if (child != 0) return child;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int nowhere = open("/dev/null", O_RDWR);
  for (const int end : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, end);
  if (kept >= 0) fcntl(kept, F_SETFD, 0);
  execvp(argv[0], argv.data());
  _exit(127);
}

void End(pid_t child) {
  if (child <= 0) return;
  kill(child, SIGTERM);
  waitpid(child, nullptr, 0);
}

// What a child writes into READ_END until it closes its line.
std::string ReadLine(int read_end) {
  std::string line;
  char letter = 0;
  while (read(read_end, &letter, 1) == 1 && letter != '\n') line += letter;
  return line;
}

}  // namespace

bool XServer::Available() { return OnPath("Xvfb") && OnPath("openbox"); }

XServer::XServer(const std::string& screen) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) std::abort();
  // The server looks for a free display itself and tells its number when it is ready.
  server_ = Start({"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen", "0", screen,
                   "-nolisten", "tcp", "-noreset"},
                  ends[1]);
  close(ends[1]);
  const std::string number = ReadLine(ends[0]);
  close(ends[0]);
  if (number.empty()) {
    std::fprintf(stderr, "Xvfb does not start\n");
    std::abort();
  }
  setenv("DISPLAY", (":" + number).c_str(), 1);
  // Keys and places of the person at the machine are none of ours.
  const std::string nowhere = std::filesystem::temp_directory_path() / "no-such-folder";
  setenv("XDG_CONFIG_HOME", nowhere.c_str(), 1);
  StartManager();
}

// Windows that come while it still gets ready are not looked after.
void XServer::StartManager() {
  std::string folder = std::filesystem::temp_directory_path() / "frostmark-windows-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) std::abort();
  const std::string ready = folder + "/ready";
  if (mkfifo(ready.c_str(), S_IRUSR | S_IWUSR) != 0) std::abort();
  manager_ = Start({"openbox", "--sm-disable", "--startup", "sh -c \"echo > " + ready + "\""}, -1);
  const int read_end = open(ready.c_str(), O_RDONLY | O_CLOEXEC);
  ReadLine(read_end);
  close(read_end);
  std::filesystem::remove_all(folder);
}

XServer::~XServer() {
  End(manager_);
  End(server_);
}

}  // namespace frostmark::test
