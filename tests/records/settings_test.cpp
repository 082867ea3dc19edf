#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/game_fixture.h"

namespace frostmark::test {
namespace {

class SettingsTest : public GameFixture {
 protected:
  std::string File() const { return world.SettingsPath("settings.fmk"); }
  std::string Content() const { return ReadText(File()); }
  void Fill(const std::string& content) { WriteText(File(), content); }
  std::string Read(const char* key) { return ordvik().ReadSetting(key); }
};

TEST_F(SettingsTest, ReadsAsEmptyWhatIsNotThere) {
  EXPECT_EQ(Read("Team"), "");  // no file
  Fill("");
  EXPECT_EQ(Read("Team"), "");
  Fill("Team=Boston Braves\r\n[Other]\r\nTeam=Utah Jets\r\n");
  EXPECT_EQ(Read("Team"), "");  // no section
  Fill("[Frostmark]\r\nRank=Rank F\r\n");
  EXPECT_EQ(Read("Team"), "");  // no key
}

TEST_F(SettingsTest, WritesFileSectionAndKey) {
  ordvik().WriteSetting("Team", "Boston Braves");
  EXPECT_EQ(Content(), "[Frostmark]\r\nTeam=Boston Braves\r\n");
  ordvik().WriteSetting("Rank", "Rank F");
  ordvik().WriteSetting("Team", "Utah Jets");
  EXPECT_EQ(Content(), "[Frostmark]\r\nTeam=Utah Jets\r\nRank=Rank F\r\n");
  EXPECT_EQ(Read("Team"), "Utah Jets");
  EXPECT_EQ(Read("Rank"), "Rank F");
}

TEST_F(SettingsTest, KeepsAllOtherKeysAndSections) {
  Fill("; mine\r\n[Other]\r\nTeam=x\r\n\r\n[Frostmark]\r\nColor=blue\r\n\r\n[Last]\r\nRank=y\r\n");
  ordvik().WriteSetting("Team", "Boston Braves");
  EXPECT_EQ(Content(),
            "; mine\r\n[Other]\r\nTeam=x\r\n\r\n[Frostmark]\r\nColor=blue\r\nTeam=Boston "
            "Braves\r\n\r\n[Last]\r\nRank=y\r\n");
  EXPECT_EQ(Read("Team"), "Boston Braves");
}

TEST_F(SettingsTest, AddsItsSectionAfterWhatIsThere) {
  Fill("[Other]\r\na=b");
  ordvik().WriteSetting("Team", "Boston Braves");
  EXPECT_EQ(Content(), "[Other]\r\na=b\r\n[Frostmark]\r\nTeam=Boston Braves\r\n");
}

TEST_F(SettingsTest, FindsSectionAndKeyWithoutRegardToCaseAndBlanks) {
  Fill("[FROSTMARK]\n  team =  Boston Braves  \nWEEK=Week 3\n");
  EXPECT_EQ(Read("Team"), "Boston Braves");
  EXPECT_EQ(Read("Week"), "Week 3");
}

TEST_F(SettingsTest, ReadsAValueInQuotesWithoutThem) {
  Fill("[Frostmark]\r\nTeam=\"Boston Braves\"\r\nRank='Rank F'\r\nWeek=\"open\r\n");
  EXPECT_EQ(Read("Team"), "Boston Braves");
  EXPECT_EQ(Read("Rank"), "Rank F");
  EXPECT_EQ(Read("Week"), "\"open");
}

TEST_F(SettingsTest, AValueMayHoldAnEqualsSign) {
  ordvik().WriteSetting("Team", "a=b");
  EXPECT_EQ(Read("Team"), "a=b");
}

TEST_F(SettingsTest, CutsALongValueAtItsReading) {
  ordvik().WriteSetting("Team", std::string(300, 'x'));
  EXPECT_EQ(Content().size(), std::string("[Frostmark]\r\nTeam=\r\n").size() + 300);
  EXPECT_EQ(Read("Team"), std::string(254, 'x'));
  ordvik().WriteSetting("Team", std::string(254, 'y'));
  EXPECT_EQ(Read("Team"), std::string(254, 'y'));
}

TEST_F(SettingsTest, SeveralReachTheDiskTogether) {
  Fill("[Frostmark]\r\nTeam=Old\r\n");
  ordvik().WriteSettings({{"Team", "New"}, {"Rank", "Rank F"}, {"Week", ""}});
  EXPECT_EQ(Content(), "[Frostmark]\r\nTeam=New\r\nRank=Rank F\r\nWeek=\r\n");
  EXPECT_EQ(Read("Week"), "");
  EXPECT_EQ(ordvik().counts().file_writes, 1);
  EXPECT_EQ(world.SettingsNames(), (Lines{"settings.fmk"}));
}

TEST_F(SettingsTest, GarbledFilesAreReadAndWrittenWithoutHarm) {
  std::string bytes;
  for (int i = 0; i < 20000; ++i) bytes += static_cast<char>(i * 31 % 256);
  for (const std::string& content :
       {bytes, std::string(100000, '['), std::string(100000, '='), std::string("[Frostmark"),
        std::string("[Frostmark]\r\n=\r\n=x\r\nTeam\r\n"), std::string("\0\0[Frostmark]", 13)}) {
    Fill(content);
    EXPECT_EQ(Read("Team"), "");
    ordvik().WriteSetting("Team", "Boston Braves");
    EXPECT_EQ(Read("Team"), "Boston Braves");
  }
}

TEST_F(SettingsTest, AHundredThousandLinesDoNoHarm) {
  std::string content = "[Frostmark]\r\n";
  for (int i = 0; i < 100000; ++i) content += "Key" + std::to_string(i) + "=x\r\n";
  Fill(content);
  ordvik().WriteSetting("Team", "Boston Braves");
  EXPECT_EQ(Read("Team"), "Boston Braves");
  EXPECT_EQ(Read("Key99999"), "x");
}

TEST_F(SettingsTest, WithoutASettingsFolderNothingIsWrittenAndNothingSaid) {
  std::filesystem::remove_all(world.path() + "/Settings");
  ordvik().WriteSetting("Team", "Boston Braves");
  EXPECT_EQ(Read("Team"), "");
  EXPECT_FALSE(std::filesystem::exists(world.path() + "/Settings"));
  EXPECT_TRUE(front_end().Boxes().empty());
}

}  // namespace
}  // namespace frostmark::test
