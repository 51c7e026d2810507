// SPDX-License-Identifier: MIT
// Where a window stood: into the slots at closing, out of them at start.
#include <optional>

#include "common/system/numbers.h"
#include "settings/parameters.h"
#include "upper_case.h"

namespace termvik {

namespace {

// How much of the screen a restored window must leave below and to the right of its corner, and how
// much less than the screen its height must be. Twips.
constexpr double kLeastFromCorner = 2000;
constexpr double kLeastAboveHeight = 1000;

}  // namespace

void parameters::saveFormParams(TextView formName) {
  Window* form = nullptr;
  if (findLoadedForm(form, formName)) savePlacement(*form);
}

// A window that is not in its normal state keeps the measures that were read at start.
void parameters::savePlacement(const Window& form) {
  const WindowState state = form.State();
  setParam(WINDOWSSTATE, wholeNumberText(static_cast<std::int32_t>(state)), false);
  if (state != WindowState::Normal) {
    writeParameters();
    return;
  }
  const Place place = form.outerPlace();
  const auto text = [this](float measure) { return measureText(measure, app_.decimalSeparator); };
  setParam(WINTOP, text(place.top), false);
  setParam(WINLEFT, text(place.left), false);
  setParam(WINWIDTH, text(place.width), false);
  setParam(WINHEIGHT, text(place.height), true);
}

void parameters::restoreFormParams(TextView formName) const {
  Window* form = nullptr;
  if (findLoadedForm(form, formName)) restorePlacement(*form);
}

void parameters::restorePlacement(Window& form) const {
  const auto stored = [this](Slot slot) { return toInt32(getParam(slot), app_.decimalSeparator); };
  const auto state = stored(WINDOWSSTATE);
  if (!state) return;
  if (*state == static_cast<std::int32_t>(WindowState::Maximised)) {
    form.maximise();
    return;
  }
  const auto top = stored(WINTOP);
  if (!top) return;
  const double screenHeight = form.Screen().Height;
  if (*top >= 0 && *top < screenHeight - kLeastFromCorner) form.setTop(static_cast<float>(*top));

  const auto left = stored(WINLEFT);
  if (!left) return;
  const double screenWidth = form.Screen().Width;
  if (*left >= 0 && *left < screenWidth - kLeastFromCorner) form.setLeft(static_cast<float>(*left));

  const auto width = stored(WINWIDTH);
  if (!width) return;
  const double roomToTheRight = static_cast<double>(form.Screen().Width) - form.Left();
  if (*width > 0 && *width <= roomToTheRight) form.setWidth(static_cast<float>(*width));

  const auto height = stored(WINHEIGHT);
  if (!height) return;
  if (*height > 0 && *height < static_cast<double>(form.Screen().Height) - kLeastAboveHeight) {
    form.setHeight(static_cast<float>(*height));
  }
}

bool parameters::findLoadedForm(Window*& form, TextView formName) const {
  const std::int32_t index = formIndexByName(formName);
  if (index < 0) return false;
  form = toolkit_.Forms()[static_cast<std::size_t>(index)];
  return true;
}

// The position among the open windows, from 0; -1 when none has that name.
std::int32_t parameters::formIndexByName(TextView formName) const {
  const Text wanted = upperCase(formName);
  std::int32_t index = 0;
  for (const Window* form : toolkit_.Forms()) {
    if (upperCase(form->Name()) == wanted) return index;
    ++index;
  }
  return -1;
}

}  // namespace termvik
