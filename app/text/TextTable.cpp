#include <app/text/TextTable.h>

#include <algorithm>
#include <numeric>

#include <app/text/DisplayWidth.h>
#include <app/text/WritingDirection.h>

namespace velmora::app {
namespace {

void trimEnd(std::string& line) { line.erase(line.find_last_not_of(' ') + 1); }

std::string lineOf(const TextTable::Row& row, const std::vector<std::size_t>& widths, std::size_t gap) {
  std::string line;
  std::size_t column = 0, end = 0;
  for (const auto& cell : row) {
    line.append(end - std::min(end, displayWidth(line)), ' ');
    line += isolated(cell.text);
    for (std::size_t i = 0; i < cell.span && column < widths.size(); ++i) end += widths[column++] + gap;
  }
  trimEnd(line);
  return line;
}

}  // namespace

std::vector<std::size_t> TextTable::columnWidths(std::size_t gap) const {
  std::vector<std::size_t> widths;
  for (const auto& text : _headings) widths.push_back(displayWidth(text));
  for (const Row& row : _rows) {
    std::size_t column = 0;
    for (const Cell& cell : row) {
      const std::size_t others =
          std::accumulate(&widths[column], &widths[column] + cell.span - 1, gap * (cell.span - 1));
      column += cell.span;
      widths[column - 1] = std::max(widths[column - 1] + others, displayWidth(cell.text)) - others;
    }
  }
  return widths;
}

std::size_t TextTable::width(std::size_t gap) const {
  const auto widths = columnWidths(gap);
  return std::accumulate(widths.begin(), widths.end(), gap * (widths.size() - 1));
}

std::string TextTable::text(bool boldHeadings) const {
  const std::size_t gap = width(2) <= pageWidth ? 2 : 1;
  const auto widths = columnWidths(gap);
  std::string lines =
      heading(lineOf(Row(_headings.begin(), _headings.end()), widths, gap), boldHeadings) + "\n";
  for (const Row& row : _rows) lines += lineOf(row, widths, gap) + "\n";
  return lines;
}

std::string rightAligned(std::int64_t number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), ' ') + digits;
}

std::string heading(const std::string& text, bool bold) { return bold ? "\033[1m" + text + "\033[0m" : text; }

}  // namespace velmora::app
