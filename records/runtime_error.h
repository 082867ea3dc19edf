#pragma once

#include <stdexcept>

namespace frostmark {

// The one way in which the game itself fails: a strict conversion of text that is not a number, a
// number beyond 16 bits, or a write or removal outside a list. Nothing in the game catches it; a
// front end shows its text and ends the program.
class RuntimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace frostmark
