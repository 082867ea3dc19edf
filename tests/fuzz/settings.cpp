// A settings file of any bytes after the first line, which is written into it.
#include <array>

#include "tests/fuzz/fuzz.h"
#include "tests/support/temporary_world.h"

namespace frostmark::test {
namespace {

constexpr std::array kKeys = {"Team", "Rank", "Week", "Season", "Champion"};
constexpr std::size_t kLongestValue = 254;

struct Settings {
  TemporaryWorld world;
  Game game{world.path()};
};

// What a label can hold, so that it must come back.
bool IsCaption(std::string_view value) {
  if (value.size() > kLongestValue) return false;
  for (const char c : value) {
    if (static_cast<unsigned char>(c) < ' ') return false;
  }
  return true;
}

}  // namespace

void Take(std::string_view input) {
  static Settings settings;
  const std::size_t end = std::min(input.find('\n'), input.size());
  const std::string_view value = input.substr(0, end);
  input.remove_prefix(std::min(end + 1, input.size()));
  WriteText(settings.world.SettingsPath("settings.fmk"), input);
  Ordvik& ordvik = settings.game.program.ordvik;
  std::array<std::string, kKeys.size()> before;
  for (std::size_t i = 0; i < kKeys.size(); ++i) {
    before[i] = ordvik.ReadSetting(kKeys[i]);
    Require(before[i].size() <= kLongestValue, "a value is cut");
  }
  if (!IsCaption(value)) return;
  ordvik.WriteSetting("Team", value);
  Require(ordvik.ReadSetting("Team") == value, "a team comes back");
  for (std::size_t i = 1; i < kKeys.size(); ++i) {
    Require(ordvik.ReadSetting(kKeys[i]) == before[i], "other keys stay");
  }
}

}  // namespace frostmark::test
