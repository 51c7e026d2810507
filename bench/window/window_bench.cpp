// SPDX-License-Identifier: MIT
// The program in its Qt window under the keys and clicks of a person. The yardstick is that
// person's patience, a time; the work is the slowest act of many, from the key or the click until
// the window has come to rest, painted.
#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <limits>
#include <string>

#include <QAccessible>
#include <QApplication>
#include <QListView>
#include <QPlainTextEdit>

#include "qt_controls.h"
#include "sample_glossary.h"
#include "sample_program.h"
#include "side_by_side.h"
#include "toolkit/qt/qt_hands.h"

namespace termvik::bench {

namespace {

// Seconds. A key that is held, and the fastest of typists, give thirty keys each second.
constexpr double kKey = 1.0 / 30;
constexpr double kLanguage = 1;
constexpr double kAtOnce = 0.1;  // what a person takes for no time at all

constexpr std::int32_t kTypedWords = 100;
constexpr int kTimesMaximised = 9;

using Times = std::vector<double>;

// Counts what is painted.
class Paintings : public QObject {
 public:
  Paintings() { qApp->installEventFilter(this); }

  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

class PersonAtWindow {
 public:
  explicit PersonAtWindow(std::int64_t entries)
      : hands_(makeQtHands(swedish())),
        app_(appIn(sampleFolder(entries))),
        program_(hands_->toolkit(), swedish(), app_),
        store_(loadedStore(entries)) {
    program_.start();
    for (const auto& control : window().controls()) {
      const ControlDesign& design = control->design();
      if (design.name == u"optGlossary" && design.index == 2) hands_->click(*control);
    }
    rest();
  }

  // Each gives the time of every act and counts the acts after which the article shown was not
  // that of the row shown as selected.
  Times types(std::int32_t& staleArticles);
  Times typesHeard(std::int32_t& staleArticles);
  Times holdsPageDown(Control& inControl, std::int32_t& staleArticles);
  Times choosesLanguages(std::int32_t& staleArticles);
  Times maximises(std::int32_t& staleArticles);

  ListBox& list() const { return window().listBox(u"lstWords"); }
  EditBox& box() const { return window().editBox(u"txtSearch"); }

 private:
  Window& window() const { return *hands_->toolkit().Forms().front(); }

  static App appIn(const std::filesystem::path& folder) {
    App app;
    app.Path = folder;
    return app;
  }

  // Lets the window do all that an act has given it to do. Whether it has painted something.
  bool rest() {
    const int before = paintings_.count;
    for (int seen = before - 1; seen != paintings_.count;) {
      seen = paintings_.count;
      hands_->settle();
    }
    return paintings_.count > before;
  }

  double secondsOf(const std::function<void()>& act) {
    using Clock = std::chrono::steady_clock;
    const int before = paintings_.count;
    const auto start = Clock::now();
    act();
    while (!rest() && paintings_.count == before) continue;
    return std::chrono::duration<double>(Clock::now() - start).count();
  }

  // The article on the screen is that of the row that is selected on the screen.
  bool articleIsOfRow() const {
    const auto* view = qobject_cast<QListView*>(qtWidget(list()));
    const auto* article = qobject_cast<QPlainTextEdit*>(qtWidget(window().textBox(u"txtArticle")));
    const std::int32_t entry = list().ItemData(view->currentIndex().row());
    QString expected = toQt(store_->gEntries(entry).getArticle(store_->gWordType));
    return article->toPlainText() == expected.remove(u'\r');
  }

  std::unique_ptr<Hands> hands_;
  Paintings paintings_;
  App app_;
  Program program_;
  std::unique_ptr<defWords> store_;  // what the articles are held against
};

// Words from all over the list, letter by letter, the last row among them.
Times PersonAtWindow::types(std::int32_t& staleArticles) {
  Times times;
  for (std::int32_t i = 1; i <= kTypedWords; ++i) {
    const auto row = static_cast<std::int64_t>(list().ListCount()) * i / kTypedWords - 1;
    const Text word(list().List(static_cast<std::int32_t>(row)));
    hands_->replaceText(box(), {});
    rest();
    for (const char16_t letter : word) {
      times.push_back(secondsOf([&] { hands_->type(box(), letter); }));
      if (!articleIsOfRow()) ++staleArticles;
    }
  }
  hands_->replaceText(box(), {});
  return times;
}

// The same while a screen reader listens.
Times PersonAtWindow::typesHeard(std::int32_t& staleArticles) {
  QAccessible::setActive(true);
  Times times = types(staleArticles);
  QAccessible::setActive(false);
  return times;
}

Times PersonAtWindow::holdsPageDown(Control& inControl, std::int32_t& staleArticles) {
  Times times;
  list().setListIndex(0);
  while (list().ListIndex() < list().ListCount() - 1) {
    times.push_back(secondsOf([&] { hands_->press(inControl, keys::kPageDown); }));
    if (!articleIsOfRow()) ++staleArticles;
  }
  return times;
}

// Through all four languages, with the doublets marked, and back to the first.
Times PersonAtWindow::choosesLanguages(std::int32_t& staleArticles) {
  Times times;
  constexpr std::array<std::pair<TextView, TextView>, 4> kItems = {
      {{u"mnuEnglish", u"E"}, {u"mnuGerman", u"D"}, {u"mnuFrance", u"F"}, {u"mnuSwedish", u"S"}}};
  for (const auto& [item, language] : kItems) {
    MenuItem& menuItem = window().menuItem(item);
    times.push_back(secondsOf([&] { hands_->choose(window(), menuItem); }));
    store_->gWordType = language;
    if (!articleIsOfRow()) ++staleArticles;
  }
  return times;
}

Times PersonAtWindow::maximises(std::int32_t& staleArticles) {
  Times times;
  const float width = window().Width();
  const auto becomes = [&](bool maximised) {
    const bool isMaximised = window().State() == WindowState::Maximised;
    return isMaximised == maximised && (window().Width() != width) == maximised;
  };
  for (int i = 0; i < kTimesMaximised; ++i) {
    times.push_back(secondsOf([&] {
      hands_->maximise(window());
      while (!becomes(true)) hands_->settle();
    }));
    if (!articleIsOfRow()) ++staleArticles;
    hands_->restore(window());
    while (!becomes(false)) hands_->settle();
    rest();
  }
  return times;
}

PersonAtWindow& person() {
  static PersonAtWindow atWindow(kLargest);
  return atWindow;
}

// An act that has ever shown a wrong article is over any limit.
void report(benchmark::State& state, Times times, double patience, std::int32_t staleArticles) {
  std::sort(times.begin(), times.end());
  const double worst = times.back();
  state.SetIterationTime(worst);
  state.counters["ratio"] =
      staleArticles > 0 ? std::numeric_limits<double>::infinity() : worst / patience;
  state.counters["limit"] = 1;
  state.counters["time"] = worst;
  state.counters["pass"] = patience;
  state.counters["acts"] = static_cast<double>(times.size());
  state.counters["median_ms"] = times[times.size() / 2] * 1e3;
  state.counters["stale_articles"] = staleArticles;
}

using Act = std::function<Times(std::int32_t& staleArticles)>;

void addAct(const std::string& name, double patience, const Act& act) {
  add("window/" + name, {kLargest}, [=](benchmark::State& state) {
    std::int32_t staleArticles = 0;
    while (state.KeepRunning()) report(state, act(staleArticles), patience, staleArticles);
  });
}

}  // namespace

void addBenchmarks() {
  addAct("typing", kKey, [](auto& stale) { return person().types(stale); });
  addAct("typing_heard", kKey, [](auto& stale) { return person().typesHeard(stale); });
  addAct("page_down_in_box", kKey,
         [](auto& stale) { return person().holdsPageDown(person().box(), stale); });
  addAct("page_down_in_list", kKey,
         [](auto& stale) { return person().holdsPageDown(person().list(), stale); });
  addAct("language", kLanguage, [](auto& stale) { return person().choosesLanguages(stale); });
  addAct("maximise", kAtOnce, [](auto& stale) { return person().maximises(stale); });
}

}  // namespace termvik::bench
