#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "program/program.h"
#include "tests/support/scripted_dice.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/temporary_world.h"
#include "tests/support/test_player.h"

namespace frostmark::test {

// One run of the program on a desktop without windows.
struct Session {
  explicit Session(const std::string& app_path) : program(front_end, dice, app_path) {}

  ScriptedFrontEnd front_end;
  ScriptedDice dice;
  Program program;
};

// Makes TEAM of RANK the user's: the two labels, and the lists from its file in WORLD. Then the
// leagues are read and the schedule is made, as at the beginning of a franchise.
inline void TakeOver(Program& program, const TemporaryWorld& world, const std::string& rank,
                     const std::string& team) {
  Franchise& franchise = program.franchise;
  franchise.TeamName.SetCaption(team);
  franchise.MyRank.SetCaption(rank);
  franchise.LoadNewTeams();
  franchise.GenSchedule();
  for (const std::string& record : ReadLines(world.TeamPath(rank, team))) {
    franchise.AddToRoster(record);
  }
}

// A folder and one run of the program in it.
class GameFixture : public ::testing::Test {
 protected:
  GameFixture() : session_(std::make_unique<Session>(world.path())) {}

  TemporaryWorld world;

  ScriptedFrontEnd& front_end() { return session_->front_end; }
  ScriptedDice& dice() { return session_->dice; }
  Program& program() { return session_->program; }
  Startup& startup() { return program().startup; }
  Franchise& franchise() { return program().franchise; }
  HockeyNaming& naming() { return program().hockey_naming; }
  Ordvik& ordvik() { return program().ordvik; }

  // Ends the run and begins a new one in the same folder.
  void Restart() {
    session_.reset();
    session_ = std::make_unique<Session>(world.path());
  }

  void TakeOver(const std::string& rank, const std::string& team) {
    test::TakeOver(program(), world, rank, team);
  }

 private:
  std::unique_ptr<Session> session_;
};

}  // namespace frostmark::test
