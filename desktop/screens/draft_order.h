#pragma once

#include <optional>

namespace frostmark {

class FDraft;

// How far a draft has come, in teams.
struct DraftPlace {
  int now;                 // whose turn it is, from 1
  std::optional<int> own;  // the user's team
  int all;
};

// Nothing before the first turn.
std::optional<DraftPlace> PlaceInDraft(const FDraft& draft);

}  // namespace frostmark
