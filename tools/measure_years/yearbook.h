#pragma once

#include <array>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "program/program.h"
#include "records/leagues.h"

namespace frostmark {

// What the years result in: it looks at the world after each, and tells it as a page of tables.
class Yearbook {
 public:
  // Looks at the world as it stands at the beginning of a season.
  void NoteRosters(Program& program);
  // Looks at the results and the history of the season that has just ended.
  void NoteSeason(Program& program);

  void Print(std::ostream& page) const;

 private:
  static constexpr std::size_t kBands = 8;
  struct Rosters {
    std::array<double, kRankCount> mean_overall{};  // of a league's players, "Rank F" first
    std::array<double, kBands> ages{};              // shares, of 1
    double oldest = 0;
  };
  struct Season {
    int retired = 0;
    int let_go = 0;
    int games = 0;
    int ties = 0;
    std::string champion;
    std::string users_rank;  // in which they played
  };

  static std::size_t BandOf(double age);
  void PrintOverall(std::ostream& page) const;
  void PrintAges(std::ostream& page) const;
  void PrintSeasons(std::ostream& page) const;
  void PrintChampions(std::ostream& page) const;

  std::vector<Rosters> rosters_;  // [0] is the new world
  std::vector<Season> seasons_;
  std::string user_;
};

}  // namespace frostmark
