#pragma once

#include <sys/types.h>

#include <string>

namespace frostmark::test {

// An X server without a monitor (Xvfb) with a window manager (openbox) on it, for as long as the
// object lives. Both end with the test program, however that ends.
class XServer {
 public:
  // SCREEN is width, height and depth, as "1920x1080x24". Sets DISPLAY for this process.
  explicit XServer(const std::string& screen);
  ~XServer();
  XServer(const XServer&) = delete;
  XServer& operator=(const XServer&) = delete;

  // Whether both programs are installed.
  static bool Available();

 private:
  void StartManager();

  pid_t server_ = 0;
  pid_t manager_ = 0;
};

}  // namespace frostmark::test
