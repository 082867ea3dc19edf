#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace frostmark::line_text {

// What the formats of all lines are made of.

inline std::string Joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

// Whether TEXT is one digit or more and nothing else.
inline bool IsDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Whether TEXT is two capitals, as every position is.
inline bool IsPosition(std::string_view text) {
  return text.size() == 2 && text[0] >= 'A' && text[0] <= 'Z' && text[1] >= 'A' && text[1] <= 'Z';
}

struct Halves {
  std::string_view before;
  std::string_view after;
};

// What stands before and after the first WORDS in TEXT; nothing when they are not in it.
inline std::optional<Halves> CutAt(std::string_view text, std::string_view words) {
  const std::size_t at = text.find(words);
  if (at == std::string_view::npos) return std::nullopt;
  return Halves{text.substr(0, at), text.substr(at + words.size())};
}

// The same at the last WORDS.
inline std::optional<Halves> CutAtLast(std::string_view text, std::string_view words) {
  const std::size_t at = text.rfind(words);
  if (at == std::string_view::npos) return std::nullopt;
  return Halves{text.substr(0, at), text.substr(at + words.size())};
}

// TEXT without OPENING at its start and CLOSING at its end; nothing when it lacks either.
inline std::optional<std::string_view> Between(std::string_view text, std::string_view opening,
                                               std::string_view closing) {
  if (text.size() < opening.size() + closing.size() || !text.starts_with(opening) ||
      !text.ends_with(closing)) {
    return std::nullopt;
  }
  return text.substr(opening.size(), text.size() - opening.size() - closing.size());
}

}  // namespace frostmark::line_text
