// SPDX-License-Identifier: MIT
// The program's modules, put together around one toolkit.
#pragma once

#include <utility>

#include "common/collation/collation.h"
#include "common/system/app.h"
#include "common/toolkit/toolkit.h"
#include "glossary/def_words.h"
#include "lookup/frm_glossary.h"
#include "settings/parameters.h"

namespace termvik {

class Program {
 public:
  // Glossaries that are read ahead are those of the program's folder.
  Program(Toolkit& toolkit, const Collation& collation, const App& app, LinesAhead ahead = {})
      : words_(
            collation, app.Path, [&toolkit](TextView prompt) { toolkit.MsgBox(prompt); },
            *app.files, std::move(ahead)),
        settings_(toolkit, app),
        form_({toolkit, app, words_, settings_}) {}

  // Loads the main window and shows it.
  void start() {
    form_.Form_Load();
    form_.window().Show();
  }

  frmGlossary& form() { return form_; }
  const defWords& words() const { return words_; }

 private:
  defWords words_;
  parameters settings_;
  frmGlossary form_;
};

}  // namespace termvik
