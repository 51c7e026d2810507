// SPDX-License-Identifier: MIT
// How the main window's controls follow its size.
#include <cmath>

#include "common/system/mathlib.h"
#include "lookup/frm_glossary.h"

namespace termvik {

namespace {

// All measures in twips, from the window's outer edges.
constexpr float kBelowColumns = 800;
constexpr float kGap = 200;
constexpr double kLeftColumnShare = 0.35;
constexpr float kLogoFromRight = 3000;
constexpr float kLeastLogoLeft = 2400;

// The nearest whole number, a tie going to the even neighbour.
template <class Number>
float toWhole(Number measure) {
  return static_cast<float>(std::nearbyint(measure));
}

}  // namespace

void frmGlossary::Form_Resize() {
  using Mathlib::maxOf;
  using Mathlib::minOf;
  const float width = window_->Width();
  const float height = window_->Height();
  lstWords_.setHeight(toWhole(maxOf(0.0F, height - lstWords_.Top() - kBelowColumns)));
  txtArticle_.setHeight(maxOf(0.0F, height - txtArticle_.Top() - kBelowColumns));
  const float column = toWhole(static_cast<double>(width) * kLeftColumnShare);
  const float article = toWhole(maxOf(0.0F, width - txtSearch_.Left() - column - kGap - kGap));
  txtSearch_.setWidth(column);
  lstWords_.setWidth(column);
  txtArticle_.setWidth(article);
  txtArticle_.setLeft(minOf(width, txtSearch_.Left() + txtSearch_.Width() + kGap));
  picLogo_.setLeft(maxOf(kLeastLogoLeft, width - kLogoFromRight));
  lblInternet_.setLeft(maxOf(0.0F, picLogo_.Left() + picLogo_.Width() - lblInternet_.Width()));
}

}  // namespace termvik
