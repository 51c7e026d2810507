// SPDX-License-Identifier: MIT
#include "tool.h"

#include <new>
#include <ostream>

#include "arguments.h"
#include "check.h"
#include "convert.h"
#include "messages.h"

namespace termvik::tool {

namespace {

constexpr int kFailed = 2;

// True when there is a result, of every input.
bool run(const Options& options, const Collation& collation, Streams& streams, Messages& messages) {
  switch (options.command) {
    case Command::Check:
      return check(options.inputs, options.check, collation, streams, messages);
    case Command::Stats:
      return stats(options, collation, streams, messages);
    case Command::Convert:
    case Command::Merge:
      return convert(options, collation, streams, messages);
  }
  return false;
}

}  // namespace

int runTool(const std::vector<std::string>& arguments, Streams& streams) {
  return runTool(arguments, Collation("sv_SE"), streams);  // as the words of the glossaries stand
}

int runTool(const std::vector<std::string>& arguments, const Collation& collation,
            Streams& streams) {
  Messages messages(streams.err, streams.errIsTerminal);
  try {
    const Request request = readArguments(arguments, collation);
    bool complete = true;
    if (request.options) {
      complete = run(*request.options, collation, streams, messages);
    } else {
      streams.out << request.text;
    }
    if (!streams.out.flush()) throw Failure("termvik-glossary: error: cannot write the output");
    if (complete) return messages.anyErrorOrWarning() ? 1 : 0;
  } catch (const Failure& failure) {
    messages.say(failure.what());
  } catch (const std::bad_alloc&) {
    messages.say("termvik-glossary: error: there is not enough memory");
  }
  return kFailed;
}

}  // namespace termvik::tool
