#include "console/command_source.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace frostmark {

bool FileSource::HasLine() const { return ended_ || ahead_.find('\n', at_) != std::string::npos; }

bool FileSource::Fill() {
  ahead_.erase(0, at_);
  at_ = 0;
  std::array<char, 1 << 14> piece;
  ssize_t length = 0;
  do {
    length = read(descriptor_, piece.data(), piece.size());
  } while (length < 0 && errno == EINTR);
  if (length <= 0) {
    ended_ = true;
    return false;
  }
  ahead_.append(piece.data(), static_cast<std::size_t>(length));
  return true;
}

bool FileSource::ReadLine(std::string& line) {
  std::size_t end = ahead_.find('\n', at_);
  while (end == std::string::npos && !ended_ && Fill()) end = ahead_.find('\n', at_);
  if (end == std::string::npos && at_ == ahead_.size()) return false;
  const std::size_t stop = std::min(end, ahead_.size());
  line.assign(ahead_, at_, stop - at_);
  at_ = end == std::string::npos ? stop : stop + 1;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

bool FileSource::WaitForInput(Time at_most) {
  return HasLine() || WaitToRead(descriptor_, at_most);
}

bool WaitToRead(int descriptor, CommandSource::Time at_most) {
  pollfd input{descriptor, POLLIN, 0};
  const timespec limit{static_cast<time_t>(at_most.count() / 1'000'000),
                       static_cast<long>(at_most.count() % 1'000'000 * 1000)};
  return ppoll(&input, 1, at_most == CommandSource::Time::max() ? nullptr : &limit, nullptr) > 0;
}

}  // namespace frostmark
