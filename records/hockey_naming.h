#pragma once

#include <string>
#include <string_view>

#include "records/lines/player_record.h"
#include "records/numbers.h"
#include "records/ordvik.h"
#include "records/record_list.h"
#include "records/ui_queue.h"

namespace frostmark {

class Program;

// The module of record operations: how players and teams are read, changed, rated and sorted. Its
// variables are the results of the operations and good until the next call: read them at once.
class HockeyNaming {
 public:
  HockeyNaming(Program& program, UiQueue& queue, Ordvik& ordvik);

  // The player last changed by SetField or rolled by GenPlayerRatings.
  std::string CurName;
  std::string CurPosition;
  std::string CurTraining;
  Int16 CurOverall;
  Int16 CurPassing;
  Int16 CurShooting;
  Int16 CurDefense;
  Int16 CurAgility;
  Int16 CurAge;

  // The team last rated by RateTeam.
  Int16 TeamOffense;
  Int16 TeamDefense;
  Int16 TeamOverall;

  // player_fields.cpp
  // The text of the field called FIELD_NAME ("Name", "Position", "Overall", "Passing", "Shooting",
  // "Defense", "Agility", "Age", "Training"); "" when RECORD has no such field.
  static std::string GetField(std::string_view record, std::string_view field_name);
  // RECORD with VALUE added to a skill or the age (floored), or with VALUE as its Training. Skills
  // are cut at 99 and Overall follows from them at every call.
  std::string SetField(std::string_view record, std::string_view field_name,
                       std::string_view value);

  // ratings_and_sorting.cpp
  // Sets TeamOffense, TeamDefense and TeamOverall from all players of LIST, training line included.
  void RateTeam(const RecordList& list);
  // Sorts standings lines: most wins first, among equal wins fewest losses first.
  static void SortRankList(RecordList& list);
  // Sorts player records: highest Overall first.
  static void SortByOverall(RecordList& list);
  // Gives the better of two players at a position "N" (lead line) and the other "Y" (training).
  void SetTrainingFlags(RecordList& list);

  // count_result.cpp
  // LINE with one more win ("Win"), loss ("Lose") or tie ("Tie"); "" for any other KIND. Throws
  // RuntimeError when LINE has no record in brackets.
  static std::string CountResult(std::string_view line, std::string_view kind);

  // new_player.cpp
  // Rolls the skills and the age of a new player of POSITION into the Cur... variables. Skills are
  // 70 to 99, with WEAKER 65 to 94; the age is 18 to 24.
  void GenPlayerRatings(std::string_view position, bool weaker);
  // The record of a player called NAME with the ratings rolled last.
  std::string GeneratedRecord(std::string_view name, std::string_view position,
                              std::string_view training) const;

  // world/player_names.cpp
  // Rolls a given name and a family name from the name lists: James Smith.
  std::string GenPlayerName();

  // match/watched_set_up.cpp
  // Prepares the Game screen for LIST1 (home) against LIST2 (visitor) and shows it. Callers set its
  // FranchiseMatch first.
  void SetUpMatch(const RecordList& list1, const std::string& name1, const RecordList& list2,
                  const std::string& name2);

 private:
  Ratings CurRatings() const;

  Program& program_;
  UiQueue& queue_;
  Ordvik& ordvik_;
};

}  // namespace frostmark
