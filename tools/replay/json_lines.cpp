// SPDX-License-Identifier: MIT
#include "json_lines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace termvik::replay {

namespace {

Json placeJson(const Place& place) {
  return {measureJson(place.left), measureJson(place.top), measureJson(place.width),
          measureJson(place.height)};
}

std::int32_t chosen(const OptionGroup& group, std::int32_t options) {
  for (std::int32_t i = 0; i < options; ++i) {
    if (group.Value(i)) return i;
  }
  return -1;
}

std::string memberName(const Control& control) {
  const ControlDesign& design = control.design();
  std::string name = toUtf8(design.name);
  if (design.index == ControlDesign::kNoIndex) return name;
  return name + "(" + std::to_string(design.index) + ")";
}

}  // namespace

Json textJson(TextView text) { return toUtf8(text); }

Json measureJson(float measure) {
  constexpr float kMostWhole = 1e9F;
  if (std::trunc(measure) == measure && std::abs(measure) < kMostWhole) {
    return static_cast<std::int64_t>(measure);
  }
  std::array<char, 64> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), measure);
  double shortest = 0;
  std::from_chars(digits.data(), written.ptr, shortest);
  return shortest;
}

Json stateJson(Program& program) {
  Window& window = program.form().window();
  const ListBox& list = window.listBox(u"lstWords");
  const EditBox& search = window.editBox(u"txtSearch");
  const std::int32_t row = list.ListIndex();
  const defWords& words = program.words();
  Json state;
  state["rows"] = list.ListCount();
  state["index"] = row;
  state["row"] = row < 0 ? Json() : textJson(list.List(row));
  state["item"] = row < 0 ? Json() : Json(list.ItemData(row));
  state["article"] = textJson(window.textBox(u"txtArticle").text());
  state["search"] = textJson(search.text());
  state["selStart"] = search.SelStart();
  state["selLength"] = search.SelLength();
  state["optGlossary"] = chosen(window.optionGroup(u"optGlossary"), 3);
  state["optSearch"] = chosen(window.optionGroup(u"optSearch"), 2);
  state["again"] = window.commandButton(u"cmdSearchAgain").Enabled();
  state["doublets"] = window.checkBox(u"chkShowDoublet").Value();
  state["wordType"] = textJson(words.gWordType);
  state["windowState"] = static_cast<int>(window.State());
  state["window"] = placeJson(window.outerPlace());
  state["graph"] = {words.gGraphFirst, words.gGraphLast};
  state["tools"] = {words.gToolsFirst, words.gToolsLast};
  return {{"state", state}};
}

Json rowsJson(Program& program, std::int32_t first, std::int32_t count) {
  const ListBox& list = program.form().window().listBox(u"lstWords");
  Json rows = Json::array();
  const std::int64_t end = std::min<std::int64_t>(list.ListCount(), std::int64_t{first} + count);
  for (std::int32_t row = first; row < end; ++row) {
    rows.push_back(Json::array({textJson(list.List(row)), list.ItemData(row)}));
  }
  return {{"rows", rows}};
}

Json controlsJson(Program& program) {
  Json places = Json::object();
  for (const auto& control : program.form().window().controls()) {
    places[memberName(*control)] = placeJson(control->place());
  }
  return {{"controls", places}};
}

Json aboutJson(const Window& box) {
  Json about;
  about["left"] = measureJson(box.Left());
  about["top"] = measureJson(box.Top());
  about["title"] = textJson(box.control(u"lblTitle").design().caption);
  about["disclaimer"] = textJson(box.textBox(u"Text1").text());
  about["authors"] = textJson(box.textBox(u"Text2").text());
  return {{"about", about}};
}

}  // namespace termvik::replay
