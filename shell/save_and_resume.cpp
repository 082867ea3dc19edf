#include "shell/program.h"

namespace frostmark {

void Franchise::ConnectSaveAndClose() {
  HighButton2.OnClick = [this] { PressClose(); };
  HighButton3.OnClick = [this] { SaveGame(); };
}

void Startup::ConnectLoad() {
  HighButton5.OnClick = [this] { PressLoad(); };
}

void Franchise::SaveGame() {
  // The five keys reach the disk together, so that a program killed here leaves the marker of one
  // game and not a mixture of two.
  program_.ordvik.WriteSettings({{"Team", TeamName.Caption()},
                                 {"Rank", MyRank.Caption()},
                                 {"Week", NextWeek.Caption()},
                                 {"Season", Season.Caption()},
                                 {"Champion", Champion.Caption()}});
  tempList.Clear();
  for (const ListBox* line : {&MainList, &TrainList}) {
    const int count = line->ListCount();
    for (int i = 0; i < count; ++i) {
      tempList.AddItem(line->List(i));
      program_.desktop.Yield();
    }
  }
  program_.ordvik.SaveListFile(tempList, UserTeamPath());
  const std::string settings = program_.ordvik.AppPath() + "/Settings/";
  for (const ListBox* standings : StatRankLists()) {
    program_.ordvik.SaveListFile(*standings, settings + standings->Name() + ".fmk");
  }
  program_.ordvik.SaveListFile(Alerts, settings + "Alerts.fmk");
  // Said in any case: no file operation tells how it went.
  program_.desktop.ShowBox({BoxIcon::kInformation, BoxButtons::kOk, "File saved!"});
}

void Franchise::PressClose() {
  Hide();
  program_.startup.Show();
}

namespace {

// The league of the saved franchise: the saved one or, when the program ended between a promotion
// and the save behind it, the one where the team now lies. Empty when the team is nowhere.
std::string LeagueOfSavedTeam(Ordvik& ordvik) {
  const std::string team = ordvik.ReadSetting("Team");
  std::string saved = ordvik.ReadSetting("Rank");
  if (Ordvik::FileExists(ordvik.TeamPath(saved, team))) return saved;
  for (const char* rank : kRanks) {
    if (Ordvik::FileExists(ordvik.TeamPath(rank, team))) return rank;
  }
  return {};
}

}  // namespace

void Startup::PressLoad() {
  Ordvik& ordvik = program_.ordvik;
  Franchise& franchise = program_.franchise;
  // Without a saved game there is nothing to take up, and reading a file that is not there would
  // never end.
  const std::string league = LeagueOfSavedTeam(ordvik);
  if (league.empty()) return;
  franchise.TeamName.SetCaption(ordvik.ReadSetting("Team"));
  franchise.MyRank.SetCaption(league);
  franchise.NextWeek.SetCaption(ordvik.ReadSetting("Week"));
  franchise.Season.SetCaption(ordvik.ReadSetting("Season"));
  franchise.Champion.SetCaption(ordvik.ReadSetting("Champion"));

  franchise.tempList.Clear();
  ordvik.LoadPlayerFile(franchise.tempList, franchise.UserTeamPath());
  // The roster and the alerts are not cleared first: a second load in one run adds to what is
  // there.
  franchise.AddAllToRoster(franchise.tempList);
  franchise.tempList.Clear();

  franchise.LoadNewTeams();
  for (ListBox* standings : franchise.StatRankLists()) {
    standings->Clear();
    ordvik.LoadSettingsList(*standings, standings->Name() + ".fmk");
  }
  ordvik.LoadSettingsList(franchise.Alerts, "Alerts.fmk");
  Frame1.Hide();
  HighButton4.Hide();
  HighButton5.Hide();

  franchise.tempList.Clear();
  ordvik.LoadPlayerFile(franchise.tempList, franchise.UserTeamPath());
  program_.hockey_naming.RateTeam(franchise.tempList);
  franchise.ShowOwnRatings();
  franchise.GetNextWeek();
  Hide();
  franchise.Show();
}

}  // namespace frostmark
