#pragma once

namespace frostmark {

class FDraft;
class FResults;
class Franchise;
class Game;
class ScreenForm;

// What each screen announces to a screen reader as it happens; see Announce.
// Goals with the new score, ends of periods, the result.
void TellPlay(const Game& screen, ScreenForm& form);
// The user's own result of a week.
void TellOwnResult(const Franchise& screen, ScreenForm& form);
// The champion, when the results come up.
void TellChampion(const FResults& screen, ScreenForm& form);
// That it is the user's turn, and for what.
void TellTurn(const FDraft& screen, ScreenForm& form);

}  // namespace frostmark
