// Resumes the franchise in a folder and plays it for ever, to be killed in the middle.
//
//   frostmark_endless_franchise FOLDER weeks|years [YEARS]
//
// "weeks" plays and saves one week after the other and sets the marker back before the tenth;
// "years" goes from the off-season through the draft into the new season, and again. With YEARS it
// ends after so many. What it is about to do it says on standard output, a line each.
#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

#include "program/program.h"
#include "tests/support/scripted_front_end.h"

namespace frostmark {
namespace {

// Past all buffers, so that what is said is said also when the program is killed.
void Say(std::string line) {
  line += '\n';
  if (write(STDOUT_FILENO, line.data(), line.size()) < 0) std::abort();
}

// A user who always goes on. A press may stay open permanently beneath what comes next, so that
// they act wherever the program waits for them.
class EndlessUser : public test::ScriptedFrontEnd {
 public:
  void Play(Program& program) { program_ = &program; }

  Answer ShowBox(const MessageBox& box) override {
    if (box.buttons == BoxButtons::kOk) return Answer::kOk;
    // A doubled position is played as it stands; everything else is agreed to.
    return box.icon == BoxIcon::kInformation ? Answer::kNo : Answer::kYes;
  }
  std::string AskText(const std::string& /*prompt*/) override { return until_; }
  void Wait() override { GoOnWithYear(); }

  void PlayWeek() {
    Franchise& franchise = program_->franchise;
    if (franchise.NextWeek.Caption() == "Week 10") franchise.NextWeek.SetCaption("Week 1");
    until_ = std::to_string(std::stoi(franchise.NextWeek.Caption().substr(5)) + 1);
    franchise.Command2.Click();
    Save();
  }

  void GoOnWithYear() {
    FDraft& draft = program_->f_draft;
    Franchise& franchise = program_->franchise;
    if (program_->f_select_draft.Visible()) {
      program_->f_select_draft.List1.DoubleClick(ordvik().RollUpTo(11) - 1);
    } else if (draft.AwaitingPick) {
      Pick();
    } else if (program_->f_results.Visible()) {
      program_->f_results.Command1.Click();
    } else if (draft.Visible() && draft.Command1.Enabled()) {
      draft.Command1.Click();
      Say("year");
      if (--years_ == 0) std::_Exit(EXIT_SUCCESS);
    } else if (franchise.Visible() && franchise.HighButton1.Enabled()) {
      MendLineUp();
      franchise.Command1.Click();
      franchise.HighButton1.Click();
    } else {
      throw std::logic_error("nothing is left to do");
    }
  }
  void EndAfter(int years) { years_ = years; }

 private:
  Ordvik& ordvik() { return program_->ordvik; }

  void Save() {
    const std::string week = program_->franchise.NextWeek.Caption();
    Say("save " + week);
    program_->franchise.HighButton3.Click();
    Say("saved " + week);
  }

  // A veteran from the pool may come as a training player and leave the position without a leader.
  void MendLineUp() {
    Franchise& franchise = program_->franchise;
    const auto stands_on = [](const RecordList& line, std::string_view position) {
      int i = 0;
      while (i < line.ListCount() && FieldView(line.List(i), Field::kPosition) != position) ++i;
      return i < line.ListCount() ? i : -1;
    };
    for (const char* position : FDraft::kPositions) {
      if (stands_on(franchise.MainList, position) >= 0) continue;
      franchise.TrainingRoster.Select(stands_on(franchise.TrainList, position));
      franchise.Command4.Click();
    }
  }

  void Pick() {
    for (ListPair* list : program_->f_draft.Pool()) {
      if (!list->shown.Enabled()) continue;
      list->shown.DoubleClick(0);
      return;
    }
  }

  Program* program_ = nullptr;
  std::string until_;
  int years_ = -1;
};

void PlayOn(const std::string& folder, const std::string& mode, int years) {
  EndlessUser user;
  ClockDice dice;
  Program program(user, dice, folder);
  user.Play(program);
  user.EndAfter(years);
  program.Start();
  program.startup.HighButton5.Click();
  if (!program.franchise.Visible()) throw std::logic_error("there is nothing to resume");
  Say("ready");
  while (true) {
    if (mode == "weeks") {
      user.PlayWeek();
    } else {
      user.GoOnWithYear();
    }
  }
}

}  // namespace
}  // namespace frostmark

int main(int argc, char* argv[]) {
  if (argc < 3) return 2;
  try {
    frostmark::PlayOn(argv[1], argv[2], argc > 3 ? std::atoi(argv[3]) : -1);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
  }
  return 1;
}
