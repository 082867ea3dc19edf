#include "desktop/compositing.h"

#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <QByteArray>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>

namespace frostmark {
namespace {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

}  // namespace

bool DesktopIsComposited() {
  if (QGuiApplication::platformName() != "xcb") return true;
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) return true;
  // By agreement among X programs the compositor of the first screen owns this selection.
  static constexpr char kCompositor[] = "_NET_WM_CM_S0";
  xcb_connection_t* connection = x11->connection();
  const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> atom(xcb_intern_atom_reply(
      connection, xcb_intern_atom(connection, 0, sizeof kCompositor - 1, kCompositor), nullptr));
  if (!atom) return false;
  const std::unique_ptr<xcb_get_selection_owner_reply_t, FreeReply> owner(
      xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom),
                                    nullptr));
  return owner && owner->owner != XCB_NONE;
}

}  // namespace frostmark
