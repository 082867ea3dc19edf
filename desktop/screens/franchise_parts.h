#pragma once

namespace frostmark {

class Franchise;
class ScreenForm;

// The parts of the franchise screen that have a file of their own.

// Tab "Alerts": the games of a week league by league, the user's own over them.
void DressNews(const Franchise& screen, ScreenForm& form);
// Tab "Roster": which positions are played, and what the selected players can do.
void DressLineUp(const Franchise& screen, ScreenForm& form);
// What waits for the user: weeks to be saved, the end of the season; and the tab of their league.
void DressWeek(const Franchise& screen, ScreenForm& form);

}  // namespace frostmark
