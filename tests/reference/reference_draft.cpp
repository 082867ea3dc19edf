#include <vector>

#include "tests/reference/reference_game.h"

namespace frostmark::reference {

namespace {

// The pool lists in their order, and how many players of the position a roster wants.
struct PoolList {
  const char* position;
  const char* list;
  int wanted;
};

const std::vector<PoolList> kPool = {
    {"GO", "FDraft.List1", 1}, {"LD", "FDraft.List2", 2}, {"RD", "FDraft.List3", 2},
    {"LF", "FDraft.List4", 2}, {"CF", "FDraft.List5", 2}, {"RF", "FDraft.List6", 2},
};

// The pool list of POSITION without its element, "" for a position that is none.
std::string ListOf(const std::string& position) {
  for (const PoolList& pool : kPool) {
    if (position == pool.position) return pool.list;
  }
  return "";
}

}  // namespace

void ReferenceGame::PressDraft() {
  lists["FDraft.Events"].clear();
  for (const PoolList& pool : kPool) {
    const std::string name = pool.list;
    lists[name + "(0)"].clear();
    lists[name + "(1)"].clear();
    for (int made = 0; made < 20; ++made) {
      const std::string player = RolledName("draft pool");
      naming.GenPlayerRatings(pool.position, true, rolls);
      lists[name + "(1)"].push_back(
          player + "," + pool.position + "," + std::to_string(naming.cur_overall) + "," +
          std::to_string(naming.cur_passing) + "," + std::to_string(naming.cur_shooting) + "," +
          std::to_string(naming.cur_defense) + "," + std::to_string(naming.cur_agility) + "," +
          std::to_string(naming.cur_age) + ",N");
    }
  }
  for (const PoolList& pool : kPool) {
    const std::string name = pool.list;
    SortByOverall(lists[name + "(1)"]);
    for (const std::string& record : lists[name + "(1)"]) {
      lists[name + "(0)"].push_back(PoolLine(record));
    }
  }
  RunDraft();
}

void ReferenceGame::RunDraft() {
  const std::vector<std::string> ranks = {"Rank A", "Rank B", "Rank C",
                                          "Rank D", "Rank E", "Rank F"};
  for (const std::string& rank : ranks) {
    captions["FDraft.CurRank"] = rank;
    lists["FDraft.File1"] = shelf.List(app_path_ + "/Teams/" + rank);
    int t = CountOf(lists["FDraft.File1"]) - 1;
    do {
      captions["FDraft.CurTeam"] = ItemOf(lists["FDraft.File1"], t);
      TakeTurn(TeamPath(rank, captions["FDraft.CurTeam"]));
      --t;
    } while (t != -1);
  }
}

void ReferenceGame::TakeTurn(const std::string& path) {
  Lines& roster = lists["FDraft.tempList"];
  roster.clear();
  LoadPlayerFile(roster, path);
  if (captions["FDraft.CurTeam"] == captions["Franchise.TeamName"]) {
    lists["FSelectDraft.List1"].clear();
    lists["FSelectDraft.List2"].clear();
    const int retired = FindRetirement();
    std::string position;
    if (retired >= 0) {
      position = GetField(ItemOf(roster, retired), "Position");
      AddRetirementLine(ItemOf(roster, retired));
      RemoveFrom(roster, retired);
    } else {
      ReleaseByUser(position);
    }
    PickByUser(position);
  } else {
    const int retired = FindRetirement();
    std::string training;
    if (retired >= 0) {
      training = GetField(ItemOf(roster, retired), "Training");
      AddRetirementLine(ItemOf(roster, retired));
      RemoveFrom(roster, retired);
    } else {
      training = ReleaseByRule();
    }
    Refill(training);
  }
  if (!released_player.empty()) AddDraftee(released_player);
  shelf.WriteLines(path, roster);
}

int ReferenceGame::FindRetirement() {
  const Lines& roster = lists["FDraft.tempList"];
  for (int i = 0; i < CountOf(roster); ++i) {
    const int age = NumberField(ItemOf(roster, i), "Age");
    if (age > 30 && age < 35) {
      if (rolls.Next(10, "retirement below 35") <= 3) return i;
    }
    if (age >= 35) {
      if (rolls.Next(10, "retirement from 35") <= 8) return i;
    }
  }
  return -1;
}

std::string ReferenceGame::ReleaseByRule() {
  Lines& roster = lists["FDraft.tempList"];
  SortByOverall(roster);
  int k = CountOf(roster);
  do {
    --k;
    if (k < 0) throw Fatal{"No such item"};
  } while (k != 7 && NumberField(ItemOf(roster, k), "Age") < 25);
  if (k == 7) k = CountOf(roster) - 1;
  released_player = ItemOf(roster, k);
  AddReleaseLine(released_player);
  RemoveFrom(roster, k);
  return GetField(released_player, "Training");
}

void ReferenceGame::Refill(const std::string& training) {
  Lines& roster = lists["FDraft.tempList"];
  std::map<std::string, int> counts;
  for (const std::string& record : roster) ++counts[GetField(record, "Position")];
  for (const PoolList& pool : kPool) {
    if (counts[pool.position] >= pool.wanted) continue;
    Lines& shown = lists[std::string(pool.list) + "(0)"];
    Lines& records = lists[std::string(pool.list) + "(1)"];
    const std::string best = ItemOf(records, 0);
    roster.push_back(naming.SetField(best, "Training", training));
    AddPickLine(best);
    RemoveFrom(records, 0);
    RemoveFrom(shown, 0);
  }
}

void ReferenceGame::ReleaseByUser(std::string& position) {
  Lines& roster = lists["FDraft.tempList"];
  for (const std::string& record : roster) {
    lists["FSelectDraft.List1"].push_back(RosterLine(record));
    lists["FSelectDraft.List2"].push_back(record);
  }
  while (true) {
    if (releases.empty()) throw Divergence{"the rules let the user release a player"};
    const DraftChoice choice = releases.front();
    releases.pop_front();
    Tell("question yes no: You sure you'd like to delete this player?\n" +
         ItemOf(lists["FSelectDraft.List1"], choice.index));
    if (!choice.sure) continue;
    RemoveFrom(roster, choice.index);
    released_player = ItemOf(lists["FSelectDraft.List2"], choice.index);
    AddReleaseLine(released_player);
    position = GetField(released_player, "Position");
    return;
  }
}

void ReferenceGame::PickByUser(const std::string& position) {
  Lines& shown = lists[ListOf(position) + "(0)"];
  Lines& records = lists[ListOf(position) + "(1)"];
  while (true) {
    if (picks.empty()) throw Divergence{"the rules let the user pick a player"};
    const DraftChoice choice = picks.front();
    picks.pop_front();
    Tell("question yes no: Add this player to your squad?\n" + ItemOf(shown, choice.index));
    if (!choice.sure) continue;
    AddPickLine(ItemOf(records, choice.index));
    lists["FDraft.tempList"].push_back(ItemOf(records, choice.index));
    RemoveFrom(records, choice.index);
    RemoveFrom(shown, choice.index);
    return;
  }
}

void ReferenceGame::AddPickLine(const std::string& record) {
  lists["FDraft.Events"].push_back(captions["FDraft.CurTeam"] + " has added " +
                                   GetField(record, "Name") +
                                   " to the team. Overall: " + GetField(record, "Overall"));
}

void ReferenceGame::AddReleaseLine(const std::string& record) {
  lists["FDraft.Events"].push_back(captions["FDraft.CurTeam"] + " lost (" +
                                   GetField(record, "Position") + ") " + GetField(record, "Name") +
                                   ". Overall: " + GetField(record, "Overall"));
}

void ReferenceGame::AddRetirementLine(const std::string& record) {
  lists["FDraft.Events"].push_back(
      "(" + GetField(record, "Position") + ") " + GetField(record, "Name") + " has retired from " +
      captions["FDraft.CurTeam"] + " at " + GetField(record, "Age") + " years old");
}

void ReferenceGame::AddDraftee(std::string& record) {
  const std::string name = ListOf(GetField(record, "Position"));
  if (!name.empty()) {
    Lines& shown = lists[name + "(0)"];
    Lines& records = lists[name + "(1)"];
    records.push_back(record);
    shown.clear();
    SortByOverall(records);
    for (const std::string& each : records) shown.push_back(PoolLine(each));
  }
  record.clear();
}

void ReferenceGame::PressNewSeason() {
  LoadNewTeams();
  captions["Franchise.NextWeek"] = "Week 1";
  Lines& roster = lists["Franchise.tempList"];
  roster.clear();
  ClearRoster();
  LoadPlayerFile(roster, TeamPath(captions["Franchise.MyRank"], captions["Franchise.TeamName"]));
  for (const std::string& record : roster) AddToRoster(record);
  SaveGame();
}

}  // namespace frostmark::reference
