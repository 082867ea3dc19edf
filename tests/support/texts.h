#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/record_list.h"

namespace frostmark::test {

using Lines = std::vector<std::string>;

// The content of the file at PATH, empty when there is none.
std::string ReadText(const std::string& path);
// Throws std::runtime_error when it cannot be written.
void WriteText(const std::string& path, std::string_view content);
// Its lines, without their ends (CR LF). A last line without an end counts.
Lines ReadLines(const std::string& path);
std::string JoinLines(const Lines& lines);  // each ended by CR LF

// The items of LIST.
Lines ItemsOf(const RecordList& list);
void FillList(RecordList& list, const Lines& items);

}  // namespace frostmark::test
