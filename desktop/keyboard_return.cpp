#include "desktop/keyboard_return.h"

#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <QApplication>
#include <QWidget>
#include <QWindow>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace frostmark {
namespace {

// A focus on its way between two windows is there by then.
constexpr std::chrono::milliseconds kOnItsWay{120};

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

xcb_connection_t* Connection() {
  if (QGuiApplication::platformName() != "xcb") return nullptr;
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 == nullptr ? nullptr : x11->connection();
}

// Of the windows of this program, the one that the X server sends keys to.
xcb_window_t WindowWithKeys(xcb_connection_t* connection) {
  const std::unique_ptr<xcb_get_input_focus_reply_t, FreeReply> focus(
      xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
  if (!focus) return XCB_NONE;
  for (const QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->isVisible() && window->handle() != nullptr && window->winId() == focus->focus) {
      return focus->focus;
    }
  }
  return XCB_NONE;
}

}  // namespace

KeyboardReturn::KeyboardReturn() {
  soon_.setSingleShot(true);
  soon_.setInterval(kOnItsWay);
  connect(&soon_, &QTimer::timeout, this, &KeyboardReturn::Look);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* focus) {
    if (focus == nullptr) {
      soon_.start();
    } else {
      soon_.stop();
    }
  });
}

void KeyboardReturn::Look() {
  xcb_connection_t* connection = Connection();
  if (connection == nullptr || QGuiApplication::focusWindow() != nullptr) return;
  const xcb_window_t window = WindowWithKeys(connection);
  if (window == XCB_NONE) return;
  xcb_focus_in_event_t event{};
  event.response_type = XCB_FOCUS_IN;
  event.detail = XCB_NOTIFY_DETAIL_NONLINEAR;
  event.event = window;
  event.mode = XCB_NOTIFY_MODE_NORMAL;
  // Events have 32 bytes, whatever they say.
  char message[32] = {};
  static_assert(sizeof event <= sizeof message);
  std::memcpy(message, &event, sizeof event);
  xcb_send_event(connection, 0, window, XCB_EVENT_MASK_NO_EVENT, message);
  xcb_flush(connection);
  soon_.start();
}

}  // namespace frostmark
