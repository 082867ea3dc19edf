#pragma once

#include <string>
#include <vector>

namespace frostmark::reference {

using Lines = std::vector<std::string>;

// The game ends by an error of its own: a text that had to be a number, a number beyond 16 bits, or
// the removal of an item that is not there.
struct Fatal {
  std::string what;
};

// VALUE if it fits 16 bits with a sign, else Fatal.
int Short(double value);
// The number that TEXT begins with, or 0.
double LeadingNumber(const std::string& text);
// TEXT as a whole number, half to even; Fatal when it is none.
int StrictNumber(const std::string& text);
// A quotient to the nearest whole number, a half to the even one.
int Nearest(int numerator, int denominator);

Lines SplitAt(const std::string& text, char separator);
std::string JoinWith(const Lines& parts, char separator);

// Item I, or the empty text outside of LIST.
std::string ItemOf(const Lines& list, int i);
// Item I leaves LIST; Fatal when there is none.
void RemoveFrom(Lines& list, int i);
int CountOf(const Lines& list);

// Whether SOUGHT stands anywhere in TEXT. The empty text stands in every text.
bool Contains(const std::string& text, const std::string& sought);

// The field of a player by its name, "" when there is none.
std::string GetField(const std::string& record, const std::string& field_name);
// The same as a number, leniently.
int NumberField(const std::string& record, const std::string& field_name);
// What the four skills are worth at POSITION, OLD at none of the six.
int OverallFor(const std::string& position, int passing, int shooting, int defense, int agility,
               int old);

std::string RosterLine(const std::string& record);  // CF - James Smith (85/23)
std::string PanelLine(const std::string& record);   // CF - James Smith 85/23
std::string PoolLine(const std::string& record);    // James Smith 85/23

// What stands after ") " in a standings line.
std::string TeamBehindRecord(const std::string& team_line);
// One more result in a standings line.
std::string CountResult(const std::string& line, const std::string& kind);

void SortRankList(Lines& list);
void SortByOverall(Lines& list);

}  // namespace frostmark::reference
