// SPDX-License-Identifier: MIT
#include "convert.h"

#include <ostream>
#include <utility>

#include "files_in_out.h"
#include "glossary_file.h"
#include "mending.h"
#include "merge.h"
#include "omegat.h"
#include "read_input.h"
#include "stats.h"
#include "table.h"
#include "tbx.h"

namespace termvik::tool {

namespace {

Text fileTitle(const std::string& name, const Collation& collation) {
  return titleOfFile(collation, pathText(pathOf(name).filename()));
}

// The first line of the output: the one that was asked for, or that of the first glossary among the
// inputs, or a file's name.
class TitleChoice {
 public:
  TitleChoice(const Options& options, const Collation& collation) : collation_(collation) {
    title_.text = options.title ? *options.title : fileTitle(options.inputs.front(), collation);
    settled_ = options.title.has_value();
  }

  void offer(const std::string& name, std::uint16_t input, const std::optional<Text>& firstLine) {
    if (std::exchange(settled_, true)) return;
    title_ = firstLine ? Title{*firstLine, {1, input}} : Title{fileTitle(name, collation_), {}};
  }

  Title take() { return std::move(title_); }

 private:
  const Collation& collation_;
  Title title_;
  bool settled_ = false;
};

void write(WordList& list, Title title, const Options& options, const Collation& collation,
           Output& output, Messages& messages) {
  const Format format = options.outputFormat;
  if (format == Format::Glossary) {
    mendForGlossary(list, title, options.lossy, collation, messages);
    if (!messages.anyError()) writeGlossary(list, title.text, output);
    return;
  }
  TextOutput out(output);
  if (format == Format::OmegaT) {
    writeOmegaT(list, options.read, out, messages);
    return;
  }
  keepLanguages(list, messages);
  if (format == Format::Tbx) {
    mendForTbx(list, messages);
    writeTbx(list, out);
  } else if (format == Format::Csv) {
    out << u"\uFEFF";
    writeTable(list, u',', kLineEnd, out);
  } else {
    writeTable(list, u'\t', u"\n", out);
  }
}

void tellCounts(const std::vector<MergeCounts>& counts, Messages& messages) {
  for (std::size_t i = 0; i < counts.size(); ++i) {
    messages.say(messages.inputName(static_cast<std::uint16_t>(i)) + ": " +
                 counted(counts[i].read, "entry", "entries") + " read, " +
                 std::to_string(counts[i].dropped) + " dropped, " +
                 std::to_string(counts[i].joined) + " joined");
  }
}

}  // namespace

bool convert(const Options& options, const Collation& collation, Streams& streams,
             Messages& messages) {
  Output output(options.output, options.inputs, options.force, streams);
  TitleChoice title(options, collation);
  WordList list;
  for (std::size_t i = 0; i < options.inputs.size(); ++i) {
    const std::uint16_t input = messages.addInput(options.inputs[i]);
    const Format format = options.inputFormats[i];
    const auto firstLine =
        readInput(input, format, options.read, collation, streams, list, messages);
    if (format == Format::Glossary) title.offer(options.inputs[i], input, firstLine);
  }
  std::vector<MergeCounts> counts;
  if (options.command == Command::Merge) {
    counts = mergeEntries(list, options.inputs.size(), options.join, collation);
  }
  write(list, title.take(), options, collation, output, messages);
  if (messages.anyError()) return false;
  output.commit();
  tellCounts(counts, messages);
  return true;
}

bool stats(const Options& options, const Collation& collation, Streams& streams,
           Messages& messages) {
  WordList list;
  std::vector<ListPart> parts;
  for (std::size_t i = 0; i < options.inputs.size(); ++i) {
    const std::string& name = options.inputs[i];
    const std::size_t first = list.entries.size();
    try {
      readInput(messages.addInput(name), options.inputFormats[i], options.read, collation, streams,
                list, messages);
      parts.push_back({name, first, list.entries.size()});
    } catch (const Failure& failure) {
      messages.say(failure.what());
      list.entries.resize(first);
    }
  }
  const bool allRead = parts.size() == options.inputs.size();
  if (parts.size() > 1) parts.push_back({"all together", 0, list.entries.size()});
  messages.clearProgress();
  streams.out << statsText(list, parts, collation);
  return allRead;
}

}  // namespace termvik::tool
