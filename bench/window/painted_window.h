// SPDX-License-Identifier: MIT
// Programs on an X display as a person meets them: started, and there when their window is painted.
#pragma once

#include <filesystem>
#include <memory>
#include <sys/types.h>

struct xcb_connection_t;

namespace termvik::bench {

// Watches the display from outside; the programs know nothing of it.
class PaintedWindow {
 public:
  // Opens the display that the environment names. Throws std::runtime_error where there is none, or
  // where it cannot tell of paintings (the DAMAGE extension).
  PaintedWindow();
  ~PaintedWindow();
  PaintedWindow(const PaintedWindow&) = delete;
  PaintedWindow& operator=(const PaintedWindow&) = delete;

  // Starts a program and returns when something stands painted in a window of it. Throws
  // std::runtime_error when the program ends before, or lets a minute pass.
  void start(const std::filesystem::path& program);

  // Ends the program that start() has started, at once; nothing when there is none.
  void end();

 private:
  struct Disconnect {
    void operator()(xcb_connection_t* connection) const;
  };

  void watchNewWindows();
  bool isPainted();

  std::unique_ptr<xcb_connection_t, Disconnect> connection_;
  std::uint8_t damageEvent_ = 0;  // the number of the event that tells of a painting
  pid_t program_ = 0;
};

}  // namespace termvik::bench
