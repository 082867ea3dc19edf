#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace frostmark {

using TextLines = std::vector<std::string>;

// How many columns of a terminal TEXT (UTF-8) takes.
std::size_t WidthOf(std::string_view text);

// TEXT with everything that a terminal would act on, that turns the direction of writing or that
// shows nothing, and every byte that is not UTF-8, replaced by a question mark.
std::string Printable(std::string_view text);

// TEXT and blanks after it up to WIDTH columns.
std::string Padded(std::string text, std::size_t width);

// The beginning of TEXT that fits WIDTH columns.
std::string Cut(std::string_view text, std::size_t width);

// TEXT in lines of at most WIDTH columns, broken between words; a word is broken only where it is
// longer than a line. Lines after the first are indented by INDENT blanks, less than WIDTH.
TextLines Wrapped(std::string_view text, std::size_t width, std::size_t indent);

}  // namespace frostmark
