#pragma once

// What painters and the style sheet must agree on. In the sheet `@poster` is kPosterFace, `@script`
// kScriptFace and `@corner` kWindowCorner.
namespace frostmark {

// The faces that the game names; fonts.h has free ones ready where the system has neither.
inline constexpr const char* kPosterFace = "Arial Black";
inline constexpr const char* kPosterStandIn = "Archivo Black";
inline constexpr const char* kScriptFace = "Papyrus";
inline constexpr const char* kScriptStandIn = "Macondo";

inline constexpr int kWindowCorner = 14;  // the radius of a frameless window's corners, in pixels

}  // namespace frostmark
