#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "tests/support/temporary_world.h"
#include "tools/measure_years/coach.h"
#include "tools/measure_years/fingerprint.h"
#include "tools/measure_years/yearbook.h"

namespace frostmark {
namespace {

void Run(int years, int seed) {
  const test::TemporaryWorld world;
  Coach coach(static_cast<std::uint64_t>(seed), world.path());
  Yearbook yearbook;
  coach.BeginFranchise();
  yearbook.NoteRosters(coach.program());
  for (int year = 0; year < years; ++year) {
    coach.PlayYear();
    yearbook.NoteSeason(coach.program());
    yearbook.NoteRosters(coach.program());
  }
  std::cout
      << "# What " << years << " years result in\n\n"
      << "Made by `tools/measure-years` with the dice of seed " << seed
      << ", so that a change of a rule shows here. The user's team\n"
         "begins in \"Rank F\"; each season the best player of a position leads and the other "
         "trains, and in the\ndraft the weakest goes and the best of the pool comes.\n\n";
  yearbook.Print(std::cout);
}

// One line per year, so that a change of a rule, or of a byte of a file, shows the year in which it
// first tells.
void PrintFingerprints(int years, int seed) {
  const test::TemporaryWorld world;
  Coach coach(static_cast<std::uint64_t>(seed), world.path());
  coach.BeginFranchise();
  std::cout << "0 " << FingerprintOf(world.path()) << '\n';
  for (int year = 1; year <= years; ++year) {
    coach.PlayYear();
    std::cout << year << ' ' << FingerprintOf(world.path()) << '\n';
  }
}

}  // namespace
}  // namespace frostmark

int main(int count, char** arguments) {
  const bool fingerprints = count > 1 && std::string_view(arguments[1]) == "--fingerprints";
  if (fingerprints) {
    ++arguments;
    --count;
  }
  const int years = count > 1 ? std::atoi(arguments[1]) : 200;
  const int seed = count > 2 ? std::atoi(arguments[2]) : 1;
  if (count > 3 || years < 1) {
    (void)std::fputs("usage: frostmark-measure-years [--fingerprints] [YEARS [SEED]]\n", stderr);
    return 2;
  }
  try {
    (fingerprints ? frostmark::PrintFingerprints : frostmark::Run)(years, seed);
  } catch (const std::exception& error) {
    (void)std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
