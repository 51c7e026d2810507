// SPDX-License-Identifier: MIT
// The settings: six named values, the file that mirrors them, and the window placement that they
// remember. Settings never stop the program: what fails here ends silently.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>

#include "common/system/app.h"
#include "common/system/text.h"
#include "common/toolkit/toolkit.h"

namespace termvik {

class parameters {
 public:
  static constexpr std::int32_t paramCount = 6;

  // The slots. They count from 1, and their lines stand in this order in the file.
  enum Slot : std::int32_t {
    WINDOWSSTATE = 1,  // 0 normal, 1 minimised, 2 maximised
    WINTOP = 2,        // twips, as the three after it
    WINLEFT = 3,
    WINWIDTH = 4,
    WINHEIGHT = 5,
    GLOSSARYINDEX = 6,  // 0 graphical, 1 tools, 2 both
  };

  parameters(Toolkit& toolkit, const App& app) : toolkit_(toolkit), app_(app) {}

  // Sets the file's path and the names; to be called before anything else.
  void setupPNames();

  // Reads the file into the slots that it names. True when the file was there. Where it cannot be
  // read to its end, what was read stands.
  bool readParameters();

  // Replaces the file by the six slots. False when it could not be written to its end.
  bool writeParameters() const;

  // The value of a slot, empty for an index outside 1 to 6.
  Text getParam(std::int32_t index) const;

  // Stores a value, and writes the file if asked to. An index outside 1 to 6 does nothing.
  void setParam(std::int32_t index, TextView value, bool writeNow);

  // Stores the placement of the open window of that name and writes the file.
  void saveFormParams(TextView formName);

  // Applies the stored placement to the open window of that name, value by value, as far as it fits
  // the screen; ends at the first value that is no number.
  void restoreFormParams(TextView formName) const;

 private:
  void readLine(TextView line);
  void savePlacement(const Window& form);
  void restorePlacement(Window& form) const;
  bool findLoadedForm(Window*& form, TextView formName) const;
  std::int32_t formIndexByName(TextView formName) const;

  Toolkit& toolkit_;
  const App& app_;
  std::filesystem::path paramFilePath_;
  std::array<Text, paramCount> paramNames_;
  std::array<Text, paramCount> paramValues_;
};

}  // namespace termvik
