// SPDX-License-Identifier: MIT
#include "painted_window.h"

#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace termvik::bench {

namespace {

constexpr int kPatience = 60000;  // milliseconds

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <class Reply>
Owned<Reply> own(Reply* reply) {
  return {reply, &std::free};
}

xcb_window_t rootOf(xcb_connection_t* connection) {
  return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

}  // namespace

void PaintedWindow::Disconnect::operator()(xcb_connection_t* connection) const {
  xcb_disconnect(connection);
}

PaintedWindow::PaintedWindow() : connection_(xcb_connect(nullptr, nullptr)) {
  xcb_connection_t* display = connection_.get();
  if (xcb_connection_has_error(display) != 0) throw std::runtime_error("no X display");
  const auto* damage = xcb_get_extension_data(display, &xcb_damage_id);
  if (damage->present == 0) throw std::runtime_error("the display has no DAMAGE extension");
  damageEvent_ = static_cast<std::uint8_t>(damage->first_event + XCB_DAMAGE_NOTIFY);
  const auto version = xcb_damage_query_version(display, 1, 1);
  own(xcb_damage_query_version_reply(display, version, nullptr));
  watchNewWindows();
}

PaintedWindow::~PaintedWindow() { end(); }

void PaintedWindow::watchNewWindows() {
  const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_.get(), rootOf(connection_.get()), XCB_CW_EVENT_MASK,
                               &events);
  xcb_flush(connection_.get());
}

void PaintedWindow::start(const std::filesystem::path& program) {
  end();
  while (own(xcb_poll_for_event(connection_.get()))) continue;  // of the program before
  const std::string path = program.string();
  std::string name = program.filename().string();
  char* const arguments[] = {name.data(), nullptr};
  if (posix_spawn(&program_, path.c_str(), nullptr, nullptr, arguments, environ) != 0) {
    program_ = 0;
    throw std::runtime_error("cannot start " + path);
  }
  pollfd events{.fd = xcb_get_file_descriptor(connection_.get()), .events = POLLIN, .revents = 0};
  while (!isPainted()) {
    if (poll(&events, 1, kPatience) <= 0) throw std::runtime_error(path + " paints no window");
  }
}

// A window is watched from its creation, when nothing can be painted in it yet.
bool PaintedWindow::isPainted() {
  xcb_connection_t* display = connection_.get();
  while (const auto event = own(xcb_poll_for_event(display))) {
    const std::uint8_t kind = event->response_type & 0x7FU;
    if (kind == damageEvent_) return true;
    if (kind != XCB_CREATE_NOTIFY) continue;
    const auto* created = reinterpret_cast<const xcb_create_notify_event_t*>(event.get());
    xcb_damage_create(display, xcb_generate_id(display), created->window,
                      XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_flush(display);
  }
  return false;
}

void PaintedWindow::end() {
  if (program_ == 0) return;
  kill(program_, SIGKILL);
  waitpid(program_, nullptr, 0);
  program_ = 0;
}

}  // namespace termvik::bench
