#pragma once

#include "records/ordvik.h"

namespace frostmark {

// A mark in Settings that something is being made which cannot be played until it is whole: a new
// world, or a beginning franchise. Where a program was cut off the mark stays, and "New" makes the
// world again.
class UnderWay {
 public:
  explicit UnderWay(Ordvik& ordvik) : ordvik_(ordvik) {}

  // The mark is on the disk before these return, if it can be written at all.
  void MarkBuild();
  void MarkBeginning();
  void Clear();

  bool IsSet() const;
  // Whether the teams of the world before may be gone in part, so that its saved game is none any
  // more.
  bool IsBuild() const;

 private:
  Ordvik& ordvik_;
};

// Finishes what a program that was cut off has left half done: the moves of a season's end, and a
// save. False when that was not possible; what is on the disk is then not fit to be played.
bool FinishCutOffWork(Ordvik& ordvik);

}  // namespace frostmark
