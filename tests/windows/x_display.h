#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

struct xcb_connection_t;

namespace frostmark::test {

// What the X server and the window manager say of one window of an application. Sizes and places
// are in the screen's own pixels.
struct XWindow {
  std::uint32_t id = 0;
  QString title;
  QRect place;    // of the contents, without the manager's frame
  QRect outside;  // with it
  bool mapped = false;
  bool iconic = false;
  std::uint32_t transient_for = 0;
};

// A connection to the X server beside the application's own: eyes and hands of a person in front of
// the screen. It knows nothing of the application but its windows. May be used from one thread at
// a time.
class XDisplay {
 public:
  // Connects to DISPLAY.
  XDisplay();
  ~XDisplay();
  XDisplay(const XDisplay&) = delete;
  XDisplay& operator=(const XDisplay&) = delete;

  // The windows that the manager looks after, minimized ones among them, the lowest first.
  std::vector<XWindow> Windows();
  // One of them, not mapped and with the id 0 when the manager does not know it.
  XWindow Window(std::uint32_t id);
  // The window with the keyboard, 0 for none.
  std::uint32_t Active();

  // All of that in words, for the message of a test that failed.
  std::string Described();

  // As the task bar and the close button of the window manager do.
  void Activate(std::uint32_t window);
  void Close(std::uint32_t window);

  // Has the application believe that WINDOW has lost the keyboard, which it has not.
  void PretendLoss(std::uint32_t window);

  // Places on the screen. Buttons are 1 (left), 2 (middle), 3 (right).
  void MoveMouse(QPoint to);
  void Press(int button = 1);
  void Release(int button = 1);
  void Click(QPoint at, int button = 1);

  // Keys as xdotool names them, with modifiers before them: "ctrl+q", "alt+F4", "Return", "7".
  void Key(const std::string& keys);
  void Type(const std::string& text);

  QSize Screen();
  // What is seen on the screen.
  QImage Picture(const QRect& area);

 private:
  std::uint32_t Atom(const char* name);
  std::vector<std::uint32_t> Numbers(std::uint32_t window, const char* property);
  QString Text(std::uint32_t window, const char* property);
  XWindow Read(std::uint32_t id);
  void Tell(std::uint32_t window, const char* message, std::uint32_t first);
  void LearnKeys();
  void SendKey(std::uint32_t symbol, bool down);

  xcb_connection_t* connection_;
  std::uint32_t root_ = 0;
  std::map<std::string, std::uint32_t> atoms_;
  struct KeyPlace {
    std::uint8_t code;
    bool shifted;
  };
  std::map<std::uint32_t, KeyPlace> keys_;
};

}  // namespace frostmark::test
