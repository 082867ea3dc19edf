#include "tests/windows/x_display.h"

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>

namespace frostmark::test {
namespace {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
std::unique_ptr<Reply, FreeReply> Owned(Reply* reply) {
  return std::unique_ptr<Reply, FreeReply>(reply);
}

constexpr std::uint32_t kIconicState = 3;  // of WM_STATE
constexpr std::uint32_t kFromPager = 2;    // a request of the user's own
constexpr std::uint32_t kShift = 0xFFE1;
constexpr std::uint32_t kMostNumbers = 1024;

// Keysyms of the keys with a name; a letter or a digit is its own.
const std::map<std::string, std::uint32_t>& Named() {
  static const std::map<std::string, std::uint32_t> named = {
      {"Return", 0xFF0D}, {"Escape", 0xFF1B}, {"Tab", 0xFF09},   {"space", 0x20},
      {"Up", 0xFF52},     {"Down", 0xFF54},   {"Left", 0xFF51},  {"Right", 0xFF53},
      {"Home", 0xFF50},   {"End", 0xFF57},    {"Prior", 0xFF55}, {"Next", 0xFF56},
      {"F1", 0xFFBE},     {"F2", 0xFFBF},     {"F4", 0xFFC1},    {"F11", 0xFFC8},
      {"plus", 0x2B},     {"minus", 0x2D},    {"shift", kShift}, {"ctrl", 0xFFE3},
      {"alt", 0xFFE9}};
  return named;
}

std::uint32_t Symbol(const std::string& key) {
  const auto found = Named().find(key);
  return found != Named().end() ? found->second : static_cast<unsigned char>(key.front());
}

std::vector<std::string> Split(const std::string& keys) {
  std::vector<std::string> parts;
  std::size_t begin = 0;
  for (std::size_t plus = keys.find('+'); plus != std::string::npos; plus = keys.find('+', begin)) {
    parts.push_back(keys.substr(begin, plus - begin));
    begin = plus + 1;
  }
  parts.push_back(keys.substr(begin));
  return parts;
}

}  // namespace

XDisplay::XDisplay() : connection_(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(connection_) != 0) qFatal("no X server to look at");
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
  LearnKeys();
}

XDisplay::~XDisplay() { xcb_disconnect(connection_); }

std::uint32_t XDisplay::Atom(const char* name) {
  std::uint32_t& atom = atoms_[name];
  if (atom == 0) {
    const auto reply = Owned(xcb_intern_atom_reply(
        connection_,
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        nullptr));
    if (reply) atom = reply->atom;
  }
  return atom;
}

std::vector<std::uint32_t> XDisplay::Numbers(std::uint32_t window, const char* property) {
  const auto reply = Owned(xcb_get_property_reply(
      connection_,
      xcb_get_property(connection_, 0, window, Atom(property), XCB_ATOM_ANY, 0, kMostNumbers),
      nullptr));
  if (!reply || reply->format != 32) return {};
  const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {values, values + reply->value_len};
}

QString XDisplay::Text(std::uint32_t window, const char* property) {
  const auto reply = Owned(xcb_get_property_reply(
      connection_,
      xcb_get_property(connection_, 0, window, Atom(property), XCB_ATOM_ANY, 0, kMostNumbers),
      nullptr));
  if (!reply) return {};
  return QString::fromUtf8(static_cast<const char*>(xcb_get_property_value(reply.get())),
                           xcb_get_property_value_length(reply.get()));
}

XWindow XDisplay::Read(std::uint32_t id) {
  XWindow window;
  window.id = id;
  window.title = Text(id, "_NET_WM_NAME");
  const auto size =
      Owned(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, id), nullptr));
  const auto place = Owned(xcb_translate_coordinates_reply(
      connection_, xcb_translate_coordinates(connection_, id, root_, 0, 0), nullptr));
  if (size && place) {
    window.place = QRect(place->dst_x, place->dst_y, size->width, size->height);
  }
  const auto frame = Numbers(id, "_NET_FRAME_EXTENTS");  // left, right, top, bottom
  window.outside = window.place;
  if (frame.size() == 4) {
    window.outside.adjust(-static_cast<int>(frame[0]), -static_cast<int>(frame[2]),
                          static_cast<int>(frame[1]), static_cast<int>(frame[3]));
  }
  const auto attributes = Owned(xcb_get_window_attributes_reply(
      connection_, xcb_get_window_attributes(connection_, id), nullptr));
  window.mapped = attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
  const auto state = Numbers(id, "WM_STATE");
  window.iconic = !state.empty() && state[0] == kIconicState;
  const auto owner = Numbers(id, "WM_TRANSIENT_FOR");
  if (!owner.empty()) window.transient_for = owner[0];
  return window;
}

std::vector<XWindow> XDisplay::Windows() {
  std::vector<XWindow> windows;
  for (const std::uint32_t id : Numbers(root_, "_NET_CLIENT_LIST_STACKING")) {
    windows.push_back(Read(id));
  }
  return windows;
}

XWindow XDisplay::Window(std::uint32_t id) {
  for (const XWindow& window : Windows()) {
    if (window.id == id) return window;
  }
  return {};
}

std::uint32_t XDisplay::Active() {
  const auto active = Numbers(root_, "_NET_ACTIVE_WINDOW");
  return active.empty() ? 0 : active[0];
}

std::string XDisplay::Described() {
  std::ostringstream words;
  const std::uint32_t active = Active();
  for (const XWindow& window : Windows()) {
    words << std::hex << window.id << std::dec << " \"" << window.title.toStdString() << "\" at "
          << window.place.x() << "," << window.place.y() << " " << window.place.width() << "x"
          << window.place.height() << (window.mapped ? "" : ", not mapped")
          << (window.iconic ? ", iconic" : "") << (window.id == active ? ", active" : "") << "\n";
  }
  words << "active: " << std::hex << active;
  return words.str();
}

void XDisplay::Tell(std::uint32_t window, const char* message, std::uint32_t first) {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = Atom(message);
  event.data.data32[0] = first;
  event.data.data32[1] = message == std::string("_NET_CLOSE_WINDOW") ? kFromPager : 0;
  xcb_send_event(connection_, 0, root_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(connection_);
}

void XDisplay::Activate(std::uint32_t window) { Tell(window, "_NET_ACTIVE_WINDOW", kFromPager); }

void XDisplay::Close(std::uint32_t window) { Tell(window, "_NET_CLOSE_WINDOW", 0); }

void XDisplay::PretendLoss(std::uint32_t window) {
  xcb_focus_out_event_t event{};
  event.response_type = XCB_FOCUS_OUT;
  event.detail = XCB_NOTIFY_DETAIL_NONLINEAR;
  event.event = window;
  event.mode = XCB_NOTIFY_MODE_NORMAL;
  char message[32] = {};
  std::memcpy(message, &event, sizeof event);
  xcb_send_event(connection_, 0, window, XCB_EVENT_MASK_NO_EVENT, message);
  xcb_flush(connection_);
}

void XDisplay::MoveMouse(QPoint to) {
  xcb_test_fake_input(connection_, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, root_,
                      static_cast<std::int16_t>(to.x()), static_cast<std::int16_t>(to.y()), 0);
  xcb_flush(connection_);
}

void XDisplay::Press(int button) {
  xcb_test_fake_input(connection_, XCB_BUTTON_PRESS, static_cast<std::uint8_t>(button),
                      XCB_CURRENT_TIME, root_, 0, 0, 0);
  xcb_flush(connection_);
}

void XDisplay::Release(int button) {
  xcb_test_fake_input(connection_, XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(button),
                      XCB_CURRENT_TIME, root_, 0, 0, 0);
  xcb_flush(connection_);
}

void XDisplay::Click(QPoint at, int button) {
  MoveMouse(at);
  Press(button);
  Release(button);
}

void XDisplay::LearnKeys() {
  const xcb_setup_t* setup = xcb_get_setup(connection_);
  const auto codes = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const auto reply = Owned(xcb_get_keyboard_mapping_reply(
      connection_, xcb_get_keyboard_mapping(connection_, setup->min_keycode, codes), nullptr));
  if (!reply) return;
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
  for (int code = 0; code < codes; ++code) {
    for (int level = 0; level < 2 && level < reply->keysyms_per_keycode; ++level) {
      const std::uint32_t symbol = symbols[code * reply->keysyms_per_keycode + level];
      keys_.emplace(symbol,
                    KeyPlace{static_cast<std::uint8_t>(setup->min_keycode + code), level == 1});
    }
  }
}

void XDisplay::SendKey(std::uint32_t symbol, bool down) {
  const auto key = keys_.find(symbol);
  if (key == keys_.end()) qFatal("no key for symbol %x", symbol);
  if (key->second.shifted && down) SendKey(kShift, true);
  xcb_test_fake_input(connection_, down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, key->second.code,
                      XCB_CURRENT_TIME, root_, 0, 0, 0);
  if (key->second.shifted && !down) SendKey(kShift, false);
  xcb_flush(connection_);
}

void XDisplay::Key(const std::string& keys) {
  const std::vector<std::string> parts = Split(keys);
  for (const std::string& part : parts) SendKey(Symbol(part), true);
  for (auto part = parts.rbegin(); part != parts.rend(); ++part) SendKey(Symbol(*part), false);
}

void XDisplay::Type(const std::string& text) {
  for (const char letter : text) {
    const auto symbol = static_cast<unsigned char>(letter);
    SendKey(symbol, true);
    SendKey(symbol, false);
  }
}

QSize XDisplay::Screen() {
  const auto size =
      Owned(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, root_), nullptr));
  return size ? QSize(size->width, size->height) : QSize();
}

QImage XDisplay::Picture(const QRect& area) {
  const auto reply = Owned(xcb_get_image_reply(
      connection_,
      xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_,
                    static_cast<std::int16_t>(area.x()), static_cast<std::int16_t>(area.y()),
                    static_cast<std::uint16_t>(area.width()),
                    static_cast<std::uint16_t>(area.height()), ~0U),
      nullptr));
  if (!reply) return {};
  return QImage(xcb_get_image_data(reply.get()), area.width(), area.height(), area.width() * 4,
                QImage::Format_RGB32)
      .copy();
}

}  // namespace frostmark::test
