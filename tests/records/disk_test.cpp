#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "records/whole_file.h"
#include "tests/support/full_disk.h"
#include "tests/support/game_fixture.h"

// Disks and folders that do not play along, and what programs before have left.
namespace frostmark::test {
namespace {

namespace fs = std::filesystem;

class DiskTest : public GameFixture {
 protected:
  std::string TeamFile() const { return world.TeamPath("Rank F", "Boston Braves"); }
  void Save(const Lines& items) {
    RecordList list;
    FillList(list, items);
    ordvik().SaveListFile(list, TeamFile());
  }

  // A process that has ended.
  static std::string DeadProcess() {
    const pid_t child = fork();
    if (child == 0) _exit(0);
    waitpid(child, nullptr, 0);
    return std::to_string(child);
  }

  // Runs WORK in a process of its own as a user who owns nothing of this world.
  template <class Work>
  static void AsAnotherUser(Work work) {
    const pid_t child = fork();
    if (child == 0) {
      if (setegid(65534) != 0 || seteuid(65534) != 0) _exit(2);
      work();
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    ASSERT_EQ(WEXITSTATUS(status), 0);
  }
};

TEST_F(DiskTest, LeftoversOfDeadProcessesGoWithTheFirstWrite) {
  const std::string dead = "unfinished." + DeadProcess();
  const std::string alive = "unfinished." + std::to_string(getppid()) + ".0.tmp";
  WriteText(world.SettingsPath(dead + ".0.tmp"), "half a te");
  WriteText(world.SettingsPath(dead + ".12.tmp"), "");
  WriteText(world.path() + "/letter", "to a friend");
  fs::create_symlink("../letter", world.SettingsPath(dead + ".1.tmp"));
  WriteText(world.SettingsPath(alive), "being written");
  WriteText(world.SettingsPath("unfinished.business.tmp"), "mine");
  WriteText(world.SettingsPath("unfinished.1.2.3.tmp"), "mine");
  ASSERT_EQ(mkfifo(world.SettingsPath(dead + ".2.tmp").c_str(), 0600), 0);
  Save({"whole"});
  EXPECT_EQ(ReadText(TeamFile()), "whole\r\n");
  Lines left = {"unfinished.1.2.3.tmp", alive, dead + ".2.tmp", "unfinished.business.tmp"};
  std::sort(left.begin(), left.end());
  EXPECT_EQ(world.SettingsNames(), left);
  EXPECT_EQ(ReadText(world.path() + "/letter"), "to a friend");
}

TEST_F(DiskTest, ALinkIsReplacedAndWhatItLeadsToIsKept) {
  WriteText(world.path() + "/letter", "to a friend");
  fs::create_symlink("../../letter", TeamFile());
  fs::create_symlink("../letter", world.SettingsPath("settings.fmk"));
  Save({"a team"});
  ordvik().WriteSetting("Team", "Boston Braves");
  EXPECT_EQ(ReadText(world.path() + "/letter"), "to a friend");
  EXPECT_FALSE(fs::is_symlink(TeamFile()));
  EXPECT_EQ(ReadText(TeamFile()), "a team\r\n");
}

TEST_F(DiskTest, OnlyRegularFilesOfASaneSizeAreRead) {
  ASSERT_EQ(mkfifo(world.SettingsPath("pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", world.SettingsPath("endless"));
  WriteText(world.SettingsPath("large"), "x");
  fs::resize_file(world.SettingsPath("large"), kLargestFile + 1);
  for (const char* name : {"pipe", "endless", "large"}) {
    EXPECT_FALSE(ReadWholeFile(world.SettingsPath(name))) << name;
  }
  fs::resize_file(world.SettingsPath("large"), kLargestFile);
  EXPECT_TRUE(ReadWholeFile(world.SettingsPath("large")));
}

// Whoever may write a team's file but make none in its folder writes it in place.
TEST_F(DiskTest, WhereNoNewFileIsAllowedTheOldOneIsWrittenOver) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
  fs::permissions(world.path(),
                  fs::perms::owner_all | fs::perms::others_exec | fs::perms::others_read,
                  fs::perm_options::replace);
  WriteText(TeamFile(), "a line of the file as it was\r\n");
  fs::permissions(TeamFile(), fs::perms::others_read | fs::perms::others_write,
                  fs::perm_options::add);
  for (const Lines& lines : {Lines{"short"}, Lines{"longer than it was before", "by a line"}}) {
    AsAnotherUser([&] { Save(lines); });
    EXPECT_EQ(ReadText(TeamFile()), JoinLines(lines));
  }
  AsAnotherUser([&] {
    const FullDisk full(5);
    Save({"much too long for what the disk has left"});
  });
  EXPECT_EQ(ReadText(TeamFile()), JoinLines({"longer than it was before", "by a line"}));
  EXPECT_TRUE(world.SettingsNames().empty());
}

// Nothing is deleted in a league that cannot be listed: the new teams come beside the old ones.
TEST_F(DiskTest, AWorldThatIsBuiltBesideAnotherKeepsItsMark) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
  world.FillWorld();
  for (const char* folder : {"", "/Settings", "/Teams", "/Teams/Rank F", "/Teams/Rank E",
                             "/Teams/Rank D", "/Teams/Rank C", "/Teams/Rank B", "/Teams/Rank A"}) {
    fs::permissions(world.path() + folder, fs::perms::all, fs::perm_options::replace);
  }
  const auto build = [this] {
    dice().KeepRolls(false);
    startup().BuildLeague();
  };
  fs::permissions(world.path() + "/Teams/Rank C", fs::perms::others_read, fs::perm_options::remove);
  AsAnotherUser(build);
  EXPECT_EQ(world.FileNames("Rank C").size(), 12U);
  EXPECT_EQ(world.SettingsNames(), Lines{"unfinished.new"});
  fs::permissions(world.path() + "/Teams/Rank C", fs::perms::others_read, fs::perm_options::add);
  AsAnotherUser(build);
  EXPECT_EQ(world.FileNames("Rank C").size(), 6U);
  EXPECT_TRUE(world.SettingsNames().empty());
}

// A league on another disk, where no rename leads.
class OtherDiskTest : public DiskTest {
 protected:
  void SetUp() override {
    std::string folder = "/dev/shm/frostmark-test-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr) GTEST_SKIP() << "no second disk";
    other_ = folder;
    fs::remove(world.path() + "/Teams/Rank E");
    fs::create_directory_symlink(other_, world.path() + "/Teams/Rank E");
    world.WriteTeam("Rank F", "Boston Braves", MakeRoster(80));
  }
  void TearDown() override {
    std::error_code ignored;
    if (!other_.empty()) fs::remove_all(other_, ignored);
  }
  std::string Destination() const { return world.TeamPath("Rank E", "Boston Braves"); }

 private:
  std::string other_;
};

TEST_F(OtherDiskTest, ATeamIsCopiedAndThenDeleted) {
  fs::permissions(TeamFile(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(Ordvik::MoveFile(TeamFile(), Destination()));
  EXPECT_EQ(ReadLines(Destination()), MakeRoster(80));
  EXPECT_EQ(fs::status(Destination()).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_FALSE(fs::exists(TeamFile()));
}

TEST_F(OtherDiskTest, WithoutRoomTheTeamStaysAndLeavesNoGhost) {
  const FullDisk full(100);
  EXPECT_FALSE(Ordvik::MoveFile(TeamFile(), Destination()));
  EXPECT_EQ(ReadLines(TeamFile()), MakeRoster(80));
  EXPECT_FALSE(fs::exists(Destination()));
}

// Another team of that name gives way to the one that comes, but only to the whole of it.
TEST_F(OtherDiskTest, ATeamTakesThePlaceOfOneOfItsName) {
  for (const Lines& other : {MakeRoster(90), Lines{"short"}, Lines(40, MakeRoster(90)[0])}) {
    world.WriteTeam("Rank F", "Boston Braves", MakeRoster(80));
    world.WriteTeam("Rank E", "Boston Braves", other);
    EXPECT_TRUE(Ordvik::MoveFile(TeamFile(), Destination()));
    EXPECT_EQ(ReadLines(Destination()), MakeRoster(80));
    EXPECT_FALSE(fs::exists(TeamFile()));
  }
}

TEST_F(OtherDiskTest, WithoutRoomTheTeamOfItsNameStaysToo) {
  for (const Lines& other : {MakeRoster(90), Lines{"short"}, Lines{}}) {
    world.WriteTeam("Rank E", "Boston Braves", other);
    for (const rlim_t room : {0, 3, 100, 350}) {
      const FullDisk full(room);
      EXPECT_FALSE(Ordvik::MoveFile(TeamFile(), Destination())) << room;
    }
    EXPECT_EQ(ReadLines(TeamFile()), MakeRoster(80));
    EXPECT_EQ(ReadLines(Destination()), other);
  }
}

// Where the copy is made and the old file cannot be deleted there would be two.
TEST_F(OtherDiskTest, ATeamThatCannotBeDeletedIsNotCopied) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can become another user";
  for (const char* folder : {"", "/Teams/Rank E/."}) {
    fs::permissions(world.path() + folder, fs::perms::others_all, fs::perm_options::add);
  }
  AsAnotherUser([&] { (void)Ordvik::MoveFile(TeamFile(), Destination()); });
  EXPECT_EQ(ReadLines(TeamFile()), MakeRoster(80));
  EXPECT_FALSE(fs::exists(Destination()));
  world.WriteTeam("Rank E", "Boston Braves", MakeRoster(90));
  fs::permissions(Destination(), fs::perms::others_all, fs::perm_options::add);
  AsAnotherUser([&] { (void)Ordvik::MoveFile(TeamFile(), Destination()); });
  EXPECT_EQ(ReadLines(TeamFile()), MakeRoster(80));
  EXPECT_EQ(ReadLines(Destination()), MakeRoster(90));
}

TEST_F(OtherDiskTest, ATeamIsWrittenInPlace) {
  EXPECT_TRUE(Ordvik::MoveFile(TeamFile(), Destination()));
  RecordList list;
  FillList(list, MakeRoster(90));
  ordvik().SaveListFile(list, Destination());
  EXPECT_EQ(ReadLines(Destination()), MakeRoster(90));
  {
    const FullDisk full(0);
    FillList(list, Lines(40, "far too long"));
    ordvik().SaveListFile(list, Destination());
  }
  EXPECT_EQ(ReadLines(Destination()), MakeRoster(90));
  EXPECT_TRUE(world.SettingsNames().empty());
}

class CutOffSaveTest : public GameFixture {
 protected:
  void SetUp() override {
    world.FillWorld();
    TakeOver("Rank F", "F2 Wolves");
    franchise().NextWeek.SetCaption("Week 3");
    franchise().SaveGame();
  }

  // Files that a program has staged, and their list.
  void Stage(const std::string& process, const Lines& names, const std::string& text,
             bool with_list = true) {
    std::string list = "frostmark save\n";
    for (std::size_t i = 0; i < names.size(); ++i) {
      const std::string temporary = "unfinished." + process + "." + std::to_string(i) + ".tmp";
      WriteText(world.SettingsPath(temporary), text);
      list += temporary + "\n" + names[i] + "\n";
    }
    if (with_list) WriteText(world.SettingsPath("unfinished." + process + ".save"), list + "end\n");
  }
  void Load() {
    Restart();
    startup().PressLoad();
    ASSERT_TRUE(franchise().Visible());
  }
};

TEST_F(CutOffSaveTest, IsFinishedByTheNextLoadOnceItIsComplete) {
  // The process may have ended, or its number may be somebody else's by now.
  for (const std::string& process : {std::string("999999999"), std::to_string(getppid())}) {
    Stage(process, {"Alerts.fmk", "StatRankF.fmk"}, "news of " + process + "\r\n");
    Load();
    EXPECT_EQ(ItemsOf(franchise().Alerts), Lines{"news of " + process});
    EXPECT_EQ(ItemsOf(franchise().StatRankF), Lines{"news of " + process});
    EXPECT_EQ(world.SettingsNames().size(), 8U);
  }
}

TEST_F(CutOffSaveTest, GoesOnWhereItWas) {
  Stage("999999999", {"Alerts.fmk", "StatRankF.fmk"}, "news\r\n");
  fs::rename(world.SettingsPath("unfinished.999999999.0.tmp"), world.SettingsPath("Alerts.fmk"));
  Load();
  EXPECT_EQ(ItemsOf(franchise().Alerts), Lines{"news"});
  EXPECT_EQ(ItemsOf(franchise().StatRankF), Lines{"news"});
  EXPECT_EQ(world.SettingsNames().size(), 8U);
}

TEST_F(CutOffSaveTest, LeavesTheSaveBeforeWhileItIsNotComplete) {
  const Lines before = world.Everything();
  Stage("999999999", {"Alerts.fmk", "settings.fmk"}, "half\r\n", /*with_list=*/false);
  Load();
  EXPECT_EQ(world.Everything(), before);
}

TEST_F(CutOffSaveTest, ComesBeforeTheNextSaveAndNotOverIt) {
  Stage("999999999", {"Alerts.fmk"}, "old news\r\n");
  Restart();
  TakeOver("Rank F", "F2 Wolves");
  FillList(franchise().Alerts, {"new"});
  franchise().SaveGame();
  EXPECT_EQ(ReadLines(world.SettingsPath("Alerts.fmk")), Lines{"new"});
  Load();
  EXPECT_EQ(ItemsOf(franchise().Alerts), Lines{"new"});
}

TEST_F(CutOffSaveTest, OfAForeignWorldWritesNothingButListsOfTheGame) {
  WriteText(world.path() + "/letter.fmk", "to a friend");
  const Lines before = world.Everything();
  Stage("1", {"../letter.fmk", "../Teams/Rank F/F0 Wolves", "program"}, "evil\r\n");
  WriteText(world.SettingsPath("unfinished.2.save"), "nonsense");
  WriteText(world.SettingsPath("unfinished.3.save"),
            "frostmark save\n../letter.fmk\nAlerts.fmk\nend\n");
  Load();
  Lines after;
  for (const std::string& file : world.Everything()) {
    if (!file.starts_with("Settings/unfinished.1.")) after.push_back(file);
  }
  EXPECT_EQ(after, before);
}

}  // namespace
}  // namespace frostmark::test
