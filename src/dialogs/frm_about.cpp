// SPDX-License-Identifier: MIT
#include "dialogs/frm_about.h"

#include "common/system/numbers.h"
#include "dialogs/frm_about_design.h"

namespace termvik {

namespace {

constexpr TextView kAuthors = u"Authors: Sigvard Ek and Tore Holm";
constexpr TextView kVersionDate = u"  2004-12-21";

}  // namespace

frmAbout::frmAbout(Toolkit& toolkit, const App& app)
    : app_(app), window_(toolkit.createWindow(frmAboutDesign())) {
  window_->commandButton(u"cmdOK").Click = [this] { close(); };
  window_->Click = [this] { close(); };
  window_->Deactivate = [this] { close(); };
}

void frmAbout::ShowModal() {
  Form_Load();
  window_->ShowModal();
}

void frmAbout::Form_Load() {
  const ScreenSize screen = window_->Screen();
  window_->setLeft((screen.Width - window_->Width()) / 2);
  window_->setTop((screen.Height - window_->Height()) / 2);
  Text authors(kAuthors);
  authors.append(kLineEnd).append(u"Version: ");
  authors.append(wholeNumberText(app_.Major)).append(u".");
  authors.append(wholeNumberText(app_.Minor)).append(u".");
  authors.append(wholeNumberText(app_.Revision)).append(kVersionDate);
  window_->textBox(u"Text2").setText(authors);
}

}  // namespace termvik
