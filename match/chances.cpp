#include "match/chances.h"

namespace frostmark {
namespace {

constexpr int kForwardDie = 3;

}  // namespace

void AimPass(Ordvik& ordvik, int side, std::string& position) {
  if (position == "RF") {
    position = side == 1 ? "CF" : "LF";
  } else if (position == "CF") {
    position = side == 1 ? "RF" : "LF";
  } else if (position == "LF") {
    position = side == 1 ? "CF" : "RF";
  } else {
    const int forward = ordvik.RollUpTo(kForwardDie);
    if (position == "RD" || position == "LD") {
      position = forward == 1 ? "LF" : forward == 2 ? "CF" : "RF";
    }
  }
}

void AimOutletPass(Ordvik& ordvik, bool from_goalie, std::string& position) {
  if (from_goalie) {
    position = RollDefender(ordvik);
  } else {
    const int forward = ordvik.RollUpTo(kForwardDie);
    position = forward == 1 ? "RF" : forward == 2 ? "CF" : "LF";
  }
}

const char* RollDefender(Ordvik& ordvik) { return ordvik.RollUpTo(kToss) == 1 ? "RD" : "LD"; }

}  // namespace frostmark
