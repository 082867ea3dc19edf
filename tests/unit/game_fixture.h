#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "program/program.h"
#include "tests/unit/scripted_dice.h"
#include "ui/headless_desktop.h"

namespace frostmark::testing {

using Lines = std::vector<std::string>;

// A program's folder in the temporary folder of the system, with its empty "Teams/Rank F" to
// "Teams/Rank A" and "Settings". It goes with everything in it.
class WorldFolder {
 public:
  WorldFolder();
  WorldFolder(const WorldFolder&) = delete;
  WorldFolder& operator=(const WorldFolder&) = delete;
  ~WorldFolder();

  // The program's folder, without a separator at its end.
  const std::string& path() const { return path_; }
  // The file TEAM in the league RANK ("Rank F"), and the file NAME in Settings.
  std::string TeamPath(std::string_view rank, std::string_view team) const;
  std::string SettingsPath(std::string_view name) const;

  // The names of all that lies in the folder of RANK, or in Settings, in plain order.
  Lines FileNames(std::string_view rank) const;
  Lines SettingsNames() const;
  // All files with their contents, "path below the program's folder: content", in plain order.
  Lines Everything() const;

  // Writes RECORDS as the team file TEAM of RANK.
  void WriteTeam(std::string_view rank, std::string_view team, const Lines& records) const;
  // Writes six teams of eleven into each league: "F0 Wolves" to "F5 Wolves" in "Rank F" and so on,
  // the better the higher the league.
  void FillWorld() const;

 private:
  std::string path_;
};

// One run of the program on a desktop without windows.
struct Session {
  explicit Session(const std::string& app_path) : program(desktop, dice, app_path) {}

  HeadlessDesktop desktop;
  ScriptedDice dice;
  Program program;
};

// A folder and one run of the program in it.
class GameFixture : public ::testing::Test {
 protected:
  GameFixture() : session_(std::make_unique<Session>(world.path())) {}

  WorldFolder world;

  HeadlessDesktop& desktop() { return session_->desktop; }
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

  // Makes TEAM of RANK the user's: the two labels, and the lists from its file. Then the leagues
  // are read and the schedule is made, as at the beginning of a franchise.
  void TakeOver(const std::string& rank, const std::string& team);

 private:
  std::unique_ptr<Session> session_;
};

// The nine fields of a record, with an Overall that follows from the skills.
struct ManOfTest {
  std::string name = "John Doe";
  std::string position = "CF";
  int passing = 80;
  int shooting = 80;
  int defense = 80;
  int agility = 80;
  int age = 20;
  std::string training = "N";
};
std::string MakeRecord(const ManOfTest& man);

// Eleven records in roster order with all skills at SKILL: GO RD LD RF CF LF on the lead line, RD
// LD RF CF LF on the training line. The names are all different.
Lines MakeRoster(int skill);

// "F0 Wolves" for the league "Rank F" and 0.
std::string WolvesOf(std::string_view rank, int number);

// The content of the file at PATH, empty when there is none.
std::string ReadText(const std::string& path);
void WriteText(const std::string& path, std::string_view content);
// Its lines, without their ends (CR LF). A last line without an end counts.
Lines ReadLines(const std::string& path);
std::string JoinLines(const Lines& lines);  // each ended by CR LF

// The items of LIST.
Lines ItemsOf(const RecordList& list);
void FillList(RecordList& list, const Lines& items);

}  // namespace frostmark::testing
