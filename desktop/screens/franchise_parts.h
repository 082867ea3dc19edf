#pragma once

namespace frostmark {

class Franchise;
class ScreenForm;

// The parts of the franchise screen that have a file of their own.

// Tab "Alerts": the games of a week league by league, the user's own over them.
void DressNews(const Franchise& screen, ScreenForm& form);

}  // namespace frostmark
