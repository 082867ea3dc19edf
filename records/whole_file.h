#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace frostmark {

// The bytes of the file at PATH, or nothing when there is no file that can be read.
std::optional<std::string> ReadWholeFile(const std::string& path);

// Makes CONTENT the file at PATH: writes it to TEMPORARY, then renames that over PATH, so that a
// reader and a killed program find the old file or the new one. Where the rename is not possible
// PATH is written in place. On a full disk the old file stays. Reports nothing.
void ReplaceFile(const std::string& path, const std::string& temporary, std::string_view content);

}  // namespace frostmark
