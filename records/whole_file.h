#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace frostmark {

// The largest file that is read. A world's files have a few hundred bytes.
inline constexpr std::size_t kLargestFile = std::size_t{16} << 20U;

// The bytes of the file at PATH, or nothing when they cannot all be read: no such file, a read
// error, anything but a regular file (a pipe would wait for its writer), more than kLargestFile.
std::optional<std::string> ReadWholeFile(const std::string& path);

// Whether nothing at all lies at PATH, not even a link that leads nowhere.
bool NothingLiesAt(const std::string& path);

// The functions below report failure by an error number of <cerrno>; 0 is success.

// Makes a new file at PATH, with the permissions of the file at LIKE if there is one, and flushes
// it to the disk. EEXIST when something lies at PATH. After any failure nothing is left of it.
int WriteNewFile(const std::string& path, std::string_view content, const std::string& like);

// Writes CONTENT over the file at PATH, or makes it, and flushes it. Room is taken before the first
// byte changes, so that a full disk costs nothing; a program killed in the middle leaves a mixture.
// Only a regular file that can be read is written, never through a link: it is put back as it was
// when writing fails.
int OverwriteFile(const std::string& path, std::string_view content);

// Whether ERROR says that a new file is not allowed where an old one may still be written over: no
// right to make one, another file system, no folder. A lack of room is none of these.
bool OnlyOverwritingMayHelp(int error);

// Moves the file SOURCE to DESTINATION, over a file that may be there: by a rename or, between two
// file systems, by a copy. After a failure both are as they were. Between two file systems a file
// at DESTINATION is written over in place, so it has to be readable and not a link.
int MoveWholeFile(const std::string& source, const std::string& destination);

// Flushes the entries of FOLDER to the disk: what files it holds and how they are called.
int FlushFolder(const std::string& folder);

}  // namespace frostmark
