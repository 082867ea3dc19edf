#pragma once

#include <string>

namespace frostmark {

// One program plays in a world at a time. Whoever plays holds a name on the machine that follows
// from the world's true path, in a space of names apart from the files: nothing is locked, nothing
// is left behind, and the name is free again when its program ends, be it by a kill.
class WorldClaim {
 public:
  enum class Answers { kNo, kYes };  // whether the program has a window to bring to the front

  // Takes the name of the world in the folder APP_PATH, unless another program has it. Where there
  // is no such folder or no such space of names the game goes on without a claim.
  WorldClaim(const std::string& app_path, Answers answers);
  WorldClaim(const WorldClaim&) = delete;
  WorldClaim& operator=(const WorldClaim&) = delete;
  ~WorldClaim();

  // Whether another program plays in this world.
  bool Taken() const { return taken_; }
  // Asks the other program for its window. False when it has none or has ended meanwhile.
  bool Knock() const;

  // Becomes readable when another program knocks; -1 when the claim is not held or does not answer.
  int Door() const { return taken_ || !answers_ ? -1 : socket_; }
  // Takes all knocks that have come so far.
  void TakeKnocks() const;

 private:
  int socket_ = -1;
  bool taken_ = false;
  bool answers_;
  std::string name_;
};

}  // namespace frostmark
