#pragma once

#include <QColor>

namespace frostmark::palette {

// Every color of the desktop: night over an arena, its ice, the red and blue lines on it. The
// style sheet names them as well: `@panel` there is kPanel here.
inline constexpr QRgb kDeep = 0xFF071224;        // behind everything, wells of lists and bars
inline constexpr QRgb kNight = 0xFF0C1C36;       // the ground of a window
inline constexpr QRgb kPanel = 0xFF13294B;       // a card or frame on it
inline constexpr QRgb kRaised = 0xFF1D3A66;      // buttons, the row under the mouse
inline constexpr QRgb kEdge = 0xFF31558C;        // borders
inline constexpr QRgb kIce = 0xFFEEF6FC;         // text and the rink
inline constexpr QRgb kFrost = 0xFFB4C9E0;       // captions and other quiet text
inline constexpr QRgb kFaint = 0xFF8199BA;       // disabled text
inline constexpr QRgb kBlue = 0xFF2F80ED;        // the blue line: bars, the home side
inline constexpr QRgb kBlueDeep = 0xFF1A4F9F;    // under light text: selection, badges
inline constexpr QRgb kBlueBright = 0xFF6FB1FF;  // keyboard focus, links, blue text on night
inline constexpr QRgb kRed = 0xFFD9303E;         // the red line: the primary button, the visitor
inline constexpr QRgb kRedDeep =
    0xFFB0202D;  // under light text: the primary button hovered, badges
inline constexpr QRgb kRedBright = 0xFFFF7B84;  // red text on night, who goes down
inline constexpr QRgb kGold = 0xFFF4C552;       // the user's own team, a champion, a goal
inline constexpr QRgb kGreen = 0xFF5FD3A4;      // who goes up, a win

}  // namespace frostmark::palette
