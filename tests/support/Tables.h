#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

#include <tests/support/SourceDirectory.h>

namespace velmora::testing {

/// One row of a table under tests/data: its place in the file, for messages, and its fields.
struct TableRow {
  std::string where;
  std::string kind;  ///< the first field
  std::istringstream fields;
};

/// The rows of a table, without blank lines and those that start with '#'.
inline std::vector<TableRow> tableRows(const std::string& name) {
  std::ifstream file(sourceDirectory() + "/tests/data/" + name);
  EXPECT_TRUE(file) << name << " cannot be read";
  std::vector<TableRow> rows;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line.front() == '#') continue;
    std::istringstream fields(line);
    fields.imbue(std::locale::classic());
    std::string kind;
    fields >> kind;
    rows.push_back({name + ":" + std::to_string(number), kind, std::move(fields)});
  }
  EXPECT_FALSE(rows.empty()) << name << " has no rows";
  return rows;
}

}  // namespace velmora::testing
