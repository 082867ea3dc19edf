#include "records/world_claim.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace frostmark {
namespace {

struct FreeText {
  void operator()(char* text) const { std::free(text); }
};

// The name of the world at TRUE_PATH. A path may be longer than an address, so that it is hashed
// (FNV-1a).
std::string NameOf(std::string_view true_path) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : true_path) {
    hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  }
  std::string name = "frostmark-world-";
  for (int shift = 60; shift >= 0; shift -= 4) name += "0123456789abcdef"[(hash >> shift) & 15U];
  return name;
}

// A name that begins with a zero byte lies in the space of names that is not a folder.
struct Address {
  explicit Address(std::string_view name) {
    to.sun_family = AF_UNIX;
    std::copy(name.begin(), name.end(), to.sun_path + 1);
    length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  }
  const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&to); }

  sockaddr_un to{};
  socklen_t length;
};

}  // namespace

WorldClaim::WorldClaim(const std::string& app_path, Answers answers)
    : answers_(answers == Answers::kYes) {
  const std::unique_ptr<char, FreeText> true_path(realpath(app_path.c_str(), nullptr));
  if (!true_path) return;
  name_ = NameOf(true_path.get());
  // Knocks are single messages: such a socket hears them from the moment that it has its name.
  socket_ = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (socket_ < 0) return;
  const Address address(name_);
  taken_ = bind(socket_, address.get(), address.length) != 0 && errno == EADDRINUSE;
  if (!taken_ && !answers_) shutdown(socket_, SHUT_RD);
}

WorldClaim::~WorldClaim() {
  if (socket_ >= 0) close(socket_);
}

bool WorldClaim::Knock() const {
  const Address address(name_);
  const ssize_t sent = sendto(socket_, nullptr, 0, MSG_NOSIGNAL, address.get(), address.length);
  // A door with many knocks before it has been heard.
  return sent == 0 || errno == EAGAIN;
}

void WorldClaim::TakeKnocks() const {
  std::array<char, 16> message{};
  while (recv(socket_, message.data(), message.size(), 0) >= 0) {
  }
}

}  // namespace frostmark
