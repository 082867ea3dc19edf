#pragma once

#include "records/ordvik.h"

namespace frostmark {

// A mark in Settings that something is being made which cannot be played until it is whole: a new
// world, or a beginning franchise. Where a program was cut off the mark stays, and "New" makes the
// world again.
//
// The handlers of one piece of such work may run in the yields of another. The mark stays until the
// outermost has ended.
class UnderWay {
 public:
  explicit UnderWay(Ordvik& ordvik) : ordvik_(ordvik) {}
  UnderWay(const UnderWay&) = delete;
  UnderWay& operator=(const UnderWay&) = delete;

  // The making of a world, for as long as this lives. The mark is on the disk when it has been
  // constructed, if it can be written at all.
  class Build {
   public:
    explicit Build(UnderWay& under_way);
    Build(const Build&) = delete;
    Build& operator=(const Build&) = delete;
    ~Build() { --under_way_.builds_; }

    // To be called at the build's end. A world that is not WHOLE keeps the mark.
    void Complete(bool whole);

   private:
    UnderWay& under_way_;
  };

  // The beginning of a franchise and its save, in the same way.
  class Beginning {
   public:
    explicit Beginning(UnderWay& under_way);
    Beginning(const Beginning&) = delete;
    Beginning& operator=(const Beginning&) = delete;
    ~Beginning();

    // To be called when all is ready to be saved: the next save makes the franchise whole.
    void Ready();

   private:
    UnderWay& under_way_;
    bool ready_ = false;
  };

  // A game has reached the disk as a whole. Nothing is then left of a beginning, unless one is not
  // ready yet.
  void Saved();

  // Whether work has been cut off: it is marked, and it is not this program that is at it.
  bool IsCutOff() const { return builds_ + beginnings_ == 0 && IsSet(); }
  // Whether the teams of the world before may be gone in part, so that its saved game is none any
  // more.
  bool IsBuild() const;
  // Whether a beginning was cut off before its save. The settings are then those of the game
  // before, and so are the tables, whose teams are gone; a team of the same name is another one.
  bool IsUnsavedBeginning() const;

 private:
  bool IsSet() const;
  void Mark(std::string_view work);
  void Clear();

  Ordvik& ordvik_;
  int builds_ = 0;
  int beginnings_ = 0;
  int ready_ = 0;      // of the beginnings
  bool whole_ = true;  // what the builds within one another have made
};

}  // namespace frostmark
