#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "console/console.h"
#include "console/line_editor.h"
#include "console/options.h"
#include "records/world_claim.h"

namespace frostmark {
namespace {

// A press that waits for good stays on the stack below all that the user does afterwards. Memory is
// taken only as deep as the stack really grows, so a stack for thousands of such presses costs
// nothing.
constexpr std::size_t kStackBytes = std::size_t{1} << 30U;

struct Session {
  const Options& options;
  int input;
  bool interactive;
  int exit_code = 0;
};

std::unique_ptr<CommandSource> OpenInput(const Session& session) {
  if (session.interactive && LineEditor::CanEdit()) {
    return std::make_unique<LineEditor>(HistoryFile());
  }
  return std::make_unique<FileSource>(session.input);
}

void* RunSession(void* argument) {
  auto& session = *static_cast<Session*>(argument);
  Transcript transcript;
  const std::unique_ptr<CommandSource> input = OpenInput(session);
  ScriptStack script(*input, std::filesystem::path(session.options.script).parent_path().string());
  const auto console =
      std::make_unique<Console>(session.options, transcript, script, session.interactive);
  session.exit_code = console->Run();
  return nullptr;
}

bool RunOnDeepStack(Session& session) {
  for (std::size_t size = kStackBytes; size >= (std::size_t{1} << 23U); size /= 2) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, size);
    pthread_t thread{};
    const int error = pthread_create(&thread, &attributes, RunSession, &session);
    pthread_attr_destroy(&attributes);
    if (error == 0) {
      // Signals are for the session: its terminal is put right by them.
      sigset_t all;
      sigfillset(&all);
      pthread_sigmask(SIG_BLOCK, &all, nullptr);
    }
    if (error == 0) return pthread_join(thread, nullptr) == 0;
  }
  return false;
}

int Fail(const std::string& text) {
  std::fputs(text.c_str(), stderr);
  return kWrongUsage;
}

int Main(int count, char** arguments) {
  // A reader that has gone away is met where a command would be read, never inside of a save.
  std::signal(SIGPIPE, SIG_IGN);
  int exit_code = 0;
  const auto options = ReadOptions(count, arguments, exit_code);
  if (!options) return exit_code;
  int input = STDIN_FILENO;
  if (!options->script.empty()) {
    input = open(options->script.c_str(), O_RDONLY | O_CLOEXEC);
    if (input < 0) return Fail("frostmark-console: cannot read " + options->script + "\n" + kUsage);
  }
  if (options->fresh && !LayOutFolders(options->app_path)) {
    return Fail("frostmark-console: " + options->app_path +
                " already holds a world, or is no folder to lay one out in\n");
  }
  const WorldClaim claim(options->app_path, WorldClaim::Answers::kNo);
  if (claim.Taken()) {
    return Fail("frostmark-console: the world in " + options->app_path + " is open already\n");
  }
  Session session{*options, input, options->script.empty() && isatty(STDIN_FILENO) == 1};
  if (!RunOnDeepStack(session)) return Fail("frostmark-console: there is no memory for a stack\n");
  return session.exit_code;
}

}  // namespace
}  // namespace frostmark

int main(int count, char** arguments) { return frostmark::Main(count, arguments); }
