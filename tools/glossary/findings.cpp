// SPDX-License-Identifier: MIT
#include "findings.h"

#include <algorithm>

namespace termvik::tool {

void print(const std::string& name, Findings& findings, std::ostream& out) {
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& a, const Finding& b) { return a.line < b.line; });
  for (const Finding& finding : findings) {
    out << placeText(name, finding.line) << severityName(finding.kind->severity) << ": "
        << finding.text << " [" << finding.kind->code << "]\n";
  }
}

std::size_t countOf(const Findings& findings, Severity severity) {
  return static_cast<std::size_t>(std::count_if(
      findings.begin(), findings.end(),
      [severity](const Finding& finding) { return finding.kind->severity == severity; }));
}

}  // namespace termvik::tool
