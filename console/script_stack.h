#pragma once

#include <memory>
#include <string>
#include <vector>

#include "console/command_source.h"

namespace frostmark {

// The command lines of a session: those of its input, and on top of them the files that it includes
// and the blocks that it repeats, each of which is read to its end first.
class ScriptStack : public CommandSource {
 public:
  // FOLDER: where the files that the input includes are looked for.
  ScriptStack(CommandSource& input, std::string folder)
      : input_(input), folder_(std::move(folder)) {}

  CommandSource& Input() { return input_; }

  bool ReadLine(std::string& line) override;
  bool HasLine() const override;
  bool WaitForInput(Time at_most) override;

  // Whether the next line comes from a file or a block rather than from the input.
  bool AboveInput() const;

  // Reads PATH, relative to the folder of the file that the last line came from, before anything
  // else. Throws Refusal when it cannot be read or files include one another too deeply.
  void Include(const std::string& path);

  // Takes the lines up to the "end" that belongs to them and reads them COUNT times. Throws Refusal
  // when the file that the last line came from has no such "end"; its lines are used up then.
  void Repeat(int count);

 private:
  using Lines = std::vector<std::string>;

  struct Part {
    std::shared_ptr<const Lines> lines;  // never empty; shared by the rounds
    std::string folder;
    int depth;  // of inclusion
    int rounds_left;
    std::size_t at = 0;

    bool Ended() const { return at == lines->size() && rounds_left == 1; }
  };

  void Push(Lines lines, std::string folder, int depth, int rounds);
  // The next line of the file or the block that the last one came from.
  bool ReadOn(std::string& line);
  const std::string& Folder() const { return parts_.empty() ? folder_ : parts_.back().folder; }
  int Depth() const { return parts_.empty() ? 0 : parts_.back().depth; }

  CommandSource& input_;
  std::string folder_;
  // The last one is read first. It stays until the next line is asked for, so that the last line of
  // a file knows its folder.
  std::vector<Part> parts_;
};

}  // namespace frostmark
