#include "tests/reference/text_records.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace frostmark::reference {

int Short(double value) {
  if (value < -32768 || value > 32767) throw Fatal{"Overflow"};
  return static_cast<int>(value);
}

double LeadingNumber(const std::string& text) {
  std::size_t at = 0;
  while (at < text.size() && text[at] == ' ') ++at;
  std::size_t end = at;
  if (end < text.size() && (text[end] == '-' || text[end] == '+')) ++end;
  while (end < text.size() && ((text[end] >= '0' && text[end] <= '9') || text[end] == '.')) ++end;
  return std::strtod(text.substr(at, end - at).c_str(), nullptr);
}

int StrictNumber(const std::string& text) {
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  if (text.empty() || end != text.c_str() + text.size()) throw Fatal{"Type mismatch"};
  return Short(std::nearbyint(value));
}

int Nearest(int numerator, int denominator) {
  const double quotient = static_cast<double>(numerator) / denominator;
  const double below = std::floor(quotient);
  const double rest = quotient - below;
  if (rest < 0.5) return Short(below);
  if (rest > 0.5) return Short(below + 1);
  const bool below_is_even = std::fmod(below, 2.0) == 0.0;
  return Short(below_is_even ? below : below + 1);
}

Lines SplitAt(const std::string& text, char separator) {
  Lines parts(1);
  for (const char c : text) {
    if (c == separator) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

std::string JoinWith(const Lines& parts, char separator) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) text += separator;
    text += parts[i];
  }
  return text;
}

std::string ItemOf(const Lines& list, int i) {
  if (i < 0 || i >= CountOf(list)) return "";
  return list[static_cast<std::size_t>(i)];
}

void RemoveFrom(Lines& list, int i) {
  if (i < 0 || i >= CountOf(list)) throw Fatal{"No item to remove"};
  list.erase(list.begin() + i);
}

int CountOf(const Lines& list) { return static_cast<int>(list.size()); }

bool Contains(const std::string& text, const std::string& sought) {
  return text.find(sought) != std::string::npos;
}

std::string GetField(const std::string& record, const std::string& field_name) {
  const Lines names = {"Name",    "Position", "Overall", "Passing", "Shooting",
                       "Defense", "Agility",  "Age",     "Training"};
  const auto found = std::find(names.begin(), names.end(), field_name);
  if (record.empty() || found == names.end()) return "";
  return ItemOf(SplitAt(record, ','), static_cast<int>(found - names.begin()));
}

int NumberField(const std::string& record, const std::string& field_name) {
  return Short(std::floor(LeadingNumber(GetField(record, field_name))));
}

int OverallFor(const std::string& position, int passing, int shooting, int defense, int agility,
               int old) {
  if (position == "GO") return Nearest(defense + passing, 2);
  if (position == "LD" || position == "RD") return Nearest(defense + passing + agility, 3);
  if (position == "LF" || position == "CF" || position == "RF") {
    return Nearest(shooting + passing + agility, 3);
  }
  return old;
}

std::string RosterLine(const std::string& record) {
  return GetField(record, "Position") + " - " + GetField(record, "Name") + " (" +
         GetField(record, "Overall") + "/" + GetField(record, "Age") + ")";
}

std::string PanelLine(const std::string& record) {
  return GetField(record, "Position") + " - " + GetField(record, "Name") + " " +
         GetField(record, "Overall") + "/" + GetField(record, "Age");
}

std::string PoolLine(const std::string& record) {
  return GetField(record, "Name") + " " + GetField(record, "Overall") + "/" +
         GetField(record, "Age");
}

std::string TeamBehindRecord(const std::string& team_line) {
  const std::size_t bracket = team_line.find(')');
  if (bracket == std::string::npos || bracket + 2 > team_line.size()) return "";
  return team_line.substr(bracket + 2);
}

std::string CountResult(const std::string& line, const std::string& kind) {
  const Lines parts = SplitAt(line, '-');
  std::string wins_text;
  for (const char c : ItemOf(parts, 0)) {
    if (c != '(') wins_text += c;
  }
  const std::string after = ItemOf(parts, 2);
  int wins = StrictNumber(wins_text);
  int losses = StrictNumber(ItemOf(parts, 1));
  int ties = StrictNumber(after.substr(0, after.find(')')));
  if (kind == "Win") {
    wins = Short(wins + 1);
  } else if (kind == "Lose") {
    losses = Short(losses + 1);
  } else if (kind == "Tie") {
    ties = Short(ties + 1);
  } else {
    return "";
  }
  return "(" + std::to_string(wins) + "-" + std::to_string(losses) + "-" + std::to_string(ties) +
         ") " + TeamBehindRecord(line);
}

void SortRankList(Lines& list) {
  const auto wins = [](const std::string& line) {
    return LeadingNumber(line.substr(1, line.find('-') - 1));
  };
  const auto losses = [](const std::string& line) {
    return LeadingNumber(ItemOf(SplitAt(line, '-'), 1));
  };
  for (std::size_t i = 0; i < list.size(); ++i) {
    for (std::size_t j = 0; j < list.size(); ++j) {
      if (j == i) continue;
      if (wins(list[i]) > wins(list[j])) {
        std::swap(list[i], list[j]);
      } else if (wins(list[i]) == wins(list[j]) && losses(list[i]) < losses(list[j])) {
        std::swap(list[i], list[j]);
      }
    }
  }
}

void SortByOverall(Lines& list) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    for (std::size_t j = 0; j < list.size(); ++j) {
      if (j == i) continue;
      if (NumberField(list[i], "Overall") > NumberField(list[j], "Overall")) {
        std::swap(list[i], list[j]);
      }
    }
  }
}

}  // namespace frostmark::reference
