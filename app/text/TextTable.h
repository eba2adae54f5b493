#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velmora::app {

/// The width that tables for people keep to.
constexpr std::size_t pageWidth = 80;

/// A table of text in columns, the headings above.
class TextTable {
 public:
  struct Cell {
    Cell(std::string cellText, std::size_t cellSpan = 1) : text(std::move(cellText)), span(cellSpan) {}
    Cell(const char* cellText) : text(cellText) {}

    std::string text;
    std::size_t span = 1;  ///< how many columns it stands in
  };
  using Row = std::vector<Cell>;

  explicit TextTable(std::vector<std::string> headings) : _headings(std::move(headings)) {}

  void add(Row row) { _rows.push_back(std::move(row)); }

  /// How many columns of a terminal the longest line takes, with that many blanks between columns.
  std::size_t width(std::size_t gap = 2) const;

  /// The lines, with two blanks between columns, or one where the page is too narrow for two.
  std::string text(bool boldHeadings) const;

 private:
  std::vector<std::size_t> columnWidths(std::size_t gap) const;

  std::vector<std::string> _headings;
  std::vector<Row> _rows;
};

/// The number with blanks in front, so that it takes that many columns at least.
std::string rightAligned(std::int64_t number, std::size_t width);

/// The text in bold on a terminal, or as it is.
std::string heading(const std::string& text, bool bold);

}  // namespace velmora::app
