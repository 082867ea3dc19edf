#pragma once

#include <array>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/reference/file_shelf.h"
#include "tests/reference/match_machines.h"
#include "tests/reference/naming.h"
#include "tests/reference/roll_trace.h"
#include "tests/reference/text_records.h"

namespace frostmark::reference {

// A file that is not there is read without end: what the procedure had still to do is never done.
struct EndlessLoad {};

// One double click of the user in the draft: the line, and the answer to the question after it.
struct DraftChoice {
  int index;
  bool sure;
};

// A second, slow telling of the rules of the game that the tests compare with. It knows no screens:
// lists and captions are found by the names that they bear in the game ("Franchise.MainList"),
// files are kept in memory, and the results of all rolls are those that the game itself was given.
class ReferenceGame {
 public:
  // APP_PATH: the program's folder, as the game has it. GIVEN, FAMILY: the name lists.
  ReferenceGame(std::string app_path, Lines given, Lines family);
  ReferenceGame(const ReferenceGame&) = delete;
  ReferenceGame& operator=(const ReferenceGame&) = delete;

  RollTrace rolls;
  FileShelf shelf;
  std::map<std::string, Lines> lists;
  std::map<std::string, std::string> captions;
  Naming naming;
  UnwatchedMatch unwatched;
  WatchedMatch watched;
  int score1 = 0;
  int score2 = 0;
  bool sim_running = false;
  bool cancel_visible = false;
  // The user cancels the next Sim run while its first week is played.
  bool cancels = false;

  // What the user was told and asked, one text a box: "stop ok: You are missing a position!".
  Lines boxes;
  // What the user answers: "yes", "no", or the text for an input box.
  std::deque<std::string> answers;
  // The user's draft turns: whom they let go (only when nobody retired), whom they pick.
  std::deque<DraftChoice> releases;
  std::deque<DraftChoice> picks;
  // How many presses never came back because of a file that is not there.
  int endless_loads = 0;

  // The start screen and its panel (reference_world.cpp).
  void PressNew();
  void PressGenerate();
  void PressBeginOfPanel(const std::string& city, const std::string& nickname);
  void BuildLeague();
  void GenTeam();

  // Files (reference_game.cpp). A file that is not there throws EndlessLoad.
  void LoadPlayerFile(Lines& list, const std::string& path);
  void LoadSettingsList(Lines& list, const std::string& name);

  // Saving (reference_saving.cpp).
  void SaveGame();
  void PressLoad();
  void PressToTraining(int selected);
  void PressToLeadLine(int selected);

  // The season (reference_season.cpp).
  void PressBegin();
  void PressSim();
  void PressTesting();
  void GenSchedule();
  void GetNextWeek();
  void LoadNewTeams();
  void TheOffSeason();

  // A game and what follows from it (reference_results.cpp).
  void PlayGame(const std::string& name1, const std::string& name2, const std::string& rank);
  void SetStandings(Lines& list, const std::string& name1, const std::string& name2);
  void TrimAlerts();
  void TrainThem(Lines& list, const std::string& path);

  // A watched game (reference_watched.cpp).
  void SetUpMatch(const Lines& list1, const std::string& name1, const Lines& list2,
                  const std::string& name2);
  void PressStart();
  void TickOfPeriod(int period);
  void PressCloseOfGame();
  void Abandon();
  // What the user does while a franchise game waits for them: they play it to its end.
  std::function<void(ReferenceGame&)> watch = [](ReferenceGame& rules) { rules.WatchToTheEnd(); };
  void WatchToTheEnd();
  bool franchise_match = false;
  // By the number of the period, from 1: its steps so far, and whether its timer runs.
  std::array<int, 4> period_steps = {};
  std::array<bool, 4> timer_runs = {};

  // The draft (reference_draft.cpp).
  void PressDraft();
  void RunDraft();
  void AddDraftee(std::string& record);
  void PressNewSeason();
  std::string released_player;

  // All lists and captions, with those that the two machines hold.
  std::map<std::string, Lines> AllLists() const;
  std::map<std::string, std::string> AllCaptions() const;

  Lines& List(const std::string& name) { return lists[name]; }
  std::string& Caption(const std::string& name) { return captions[name]; }
  std::string TeamPath(const std::string& rank, const std::string& team) const;
  std::string SettingsPath(const std::string& name) const;

 private:
  // reference_game.cpp
  void Tell(const std::string& box) { boxes.push_back(box); }
  bool Asked(const std::string& box);
  std::string AskedText(const std::string& prompt);
  std::string RolledName(const std::string& asked_by);

  // reference_world.cpp
  void MakePlayer(const std::string& position, const std::string& training);
  void BuildTeam(const std::string& rank);

  // reference_saving.cpp
  void AddToRoster(const std::string& record);
  void ClearRoster();
  void ShowOwnRatings();
  void SaveRoster();

  // reference_season.cpp
  bool LineUpAccepted();
  void BeginOnce();
  void LoadOwnRoster();
  void FindOpponent(const std::string& name1, const std::string& name2, const std::string& letter);

  // reference_promotion.cpp
  void MoveTeam(const std::string& team, const std::string& from, const std::string& to);
  void FollowIfOwn(const std::string& team, const std::string& rank);

  // reference_results.cpp
  void WatchGame(const std::string& name1, const std::string& name2);
  void ShowOwnResult(const std::string& name1, const std::string& name2);
  void Develop(Lines& list, int i, const std::string& skill);

  // reference_watched.cpp
  void AnnounceResult();

  // reference_draft.cpp
  void TakeTurn(const std::string& path);
  int FindRetirement();
  std::string ReleaseByRule();
  void Refill(const std::string& training);
  void ReleaseByUser(std::string& position);
  void PickByUser(const std::string& position);
  void AddPickLine(const std::string& record);
  void AddReleaseLine(const std::string& record);
  void AddRetirementLine(const std::string& record);

  std::string app_path_;
  Lines given_;
  Lines family_;
};

// The leagues from the bottom up.
inline const std::vector<std::string> kLetters = {"F", "E", "D", "C", "B", "A"};

}  // namespace frostmark::reference
