#include <QApplication>
#include <chrono>
#include <cstdio>
#include <ctime>

#include "bench/figures.h"
#include "bench/world_for_bench.h"
#include "desktop/qt_front_end.h"

namespace frostmark {
namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// What a Yield costs in a walk over a list, the events that it lets run included.
double NanosecondsAYield(QtFrontEnd& front_end, const RecordList& list) {
  constexpr int kYields = 5'000'000;
  std::size_t length = 0;
  const auto start = Clock::now();
  for (int i = 0; i < kYields; ++i) {
    length += list.List(i % list.ListCount()).size();
    front_end.Yield();
  }
  const double seconds = SecondsSince(start);
  return length == 0 ? 0 : seconds / kYields * 1e9;
}

double ProcessorSecondsOfWaiting(QtFrontEnd& front_end, std::chrono::seconds wait) {
  const std::clock_t before = std::clock();
  const auto start = Clock::now();
  while (Clock::now() - start < wait) front_end.WaitFor(wait);
  return static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

double MillisecondsAWeek(Program& program) {
  constexpr int kWeeks = 9;
  program.franchise.SimRunning = true;
  const auto start = Clock::now();
  for (int week = 1; week <= kWeeks; ++week) program.franchise.PressBegin();
  program.franchise.SimRunning = false;
  return SecondsSince(start) / kWeeks * 1e3;
}

}  // namespace

void PrintDesktopFigures(int argc, char** argv) {
  const QApplication application(argc, argv);
  const WorldForBench world;  // lays out and saves the game that the windows resume
  QtFrontEnd front_end;
  ClockDice dice;
  Program program(front_end, dice, world.Folder());
  program.Start();
  program.startup.PressLoad();
  std::printf("\nOn the desktop: a Yield takes %.1f ns (below 50)",
              NanosecondsAYield(front_end, program.franchise.tempList));
  std::printf("; a simulated week in the window %.1f ms (below 40)", MillisecondsAWeek(program));
  std::printf("; 10 s of waiting take %.3f s of processor time (below 0.1)\n",
              ProcessorSecondsOfWaiting(front_end, std::chrono::seconds(10)));
}

}  // namespace frostmark
