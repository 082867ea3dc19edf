#pragma once

#include <string>

namespace frostmark {

// Thrown by a command that cannot be done or understood, with the reason as a person reads it
// after "refused:". Caught where the command was read; no std::exception, so that nobody takes it
// for a failure of the game.
struct Refusal {
  std::string reason;
};

}  // namespace frostmark
