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

void Startup::PressLoad() {
  Ordvik& ordvik = program_.ordvik;
  Franchise& franchise = program_.franchise;
  // Without a saved game there is nothing to take up, and reading a file that is not there would
  // never end.
  if (!Ordvik::FileExists(
          ordvik.TeamPath(ordvik.ReadSetting("Rank"), ordvik.ReadSetting("Team")))) {
    return;
  }
  franchise.TeamName.SetCaption(ordvik.ReadSetting("Team"));
  franchise.MyRank.SetCaption(ordvik.ReadSetting("Rank"));
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
