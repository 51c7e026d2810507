// SPDX-License-Identifier: MIT
// The main window on one of the toolkits, in the hands of a person, and the events that it raises.
#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "lookup/frm_glossary_design.h"
#include "toolkit/hands/hands_by_name.h"

namespace termvik {

class ToolkitContract : public testing::TestWithParam<std::string> {
 protected:
  ToolkitContract() {
    list.Click = [this] { log("list " + std::to_string(list.ListIndex())); };
    glossary.Click = [this](std::int16_t index) { log("glossary " + std::to_string(index)); };
    window->Resize = [this] { log("resize"); };
    window->Show();
    events.clear();
  }

  void log(const std::string& event) { events.push_back(event); }

  // What has happened since the last call.
  std::vector<std::string> happened() { return std::exchange(events, {}); }

  OptionButton& option(TextView name, std::int32_t index) const {
    for (const auto& control : window->controls()) {
      if (control->design().name == name && control->design().index == index) {
        return dynamic_cast<OptionButton&>(*control);
      }
    }
    throw std::logic_error("no such option");
  }

  using Events = std::vector<std::string>;

  const Collation collation{"sv_SE"};
  const std::unique_ptr<Hands> hands = makeHands(GetParam(), collation, {28800, 16200});
  const std::unique_ptr<Window> window = hands->toolkit().createWindow(frmGlossaryDesign());
  EditBox& search = window->editBox(u"txtSearch");
  TextBox& article = window->textBox(u"txtArticle");
  ListBox& list = window->listBox(u"lstWords");
  OptionGroup& glossary = window->optionGroup(u"optGlossary");
  Events events;
};

}  // namespace termvik
