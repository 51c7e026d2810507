// SPDX-License-Identifier: MIT
// The rows of a list as a plain vector, looked through from its beginning each time.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "collator.h"
#include "common/collation/sorted_rows.h"
#include "common/system/text.h"

namespace termvik::fuzz {

class PlainRows {
 public:
  struct Row {
    Text text;
    std::int32_t itemData = 0;
  };

  explicit PlainRows(const Collator& judge) : judge_(&judge) {}

  const std::vector<Row>& rows() const { return rows_; }
  std::int32_t count() const { return static_cast<std::int32_t>(rows_.size()); }
  TextView text(std::int32_t row) const { return at(row).text; }
  std::int32_t itemData(std::int32_t row) const { return at(row).itemData; }
  std::int32_t newest() const { return newest_; }

  void clear();
  void add(TextView text, std::int32_t itemData);
  void setText(std::int32_t row, TextView text) {
    rows_[static_cast<std::size_t>(row)].text = text;
  }

  // The first row that begins with the longest part of the text that any row begins with, and the
  // length of that part.
  std::pair<std::int32_t, std::size_t> bestFit(TextView text) const;
  std::int32_t endOfRun(TextView text, std::int32_t row) const;
  std::vector<SortedRows::Run> equalRuns() const;

 private:
  const Row& at(std::int32_t row) const { return rows_[static_cast<std::size_t>(row)]; }
  bool begins(const Row& row, TextView part) const {
    return judge_->compare(TextView(row.text).substr(0, part.size()), part) == 0;
  }

  const Collator* judge_;
  std::vector<Row> rows_;
  std::int32_t newest_ = -1;
};

}  // namespace termvik::fuzz
