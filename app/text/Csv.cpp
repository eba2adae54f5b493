#include <app/text/Csv.h>

namespace velmora::app {
namespace {

/// In quotation marks where it would be read as something else otherwise, those in it doubled.
std::string field(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + "\"";
}

std::string fieldOf(const Json& row, const std::string& column) {
  const auto found = row.find(column);
  if (found == row.end() || found->is_null()) return "";
  return field(found->is_string() ? found->get<std::string>() : jsonLine(*found));
}

}  // namespace

std::string csvTable(const std::vector<std::string>& columns, const Json& rows) {
  Json headings;
  for (const std::string& column : columns) headings[column] = column;
  std::string text;
  const auto add = [&](const Json& row) {
    for (const std::string& column : columns)
      text += (&column == &columns.front() ? "" : ",") + fieldOf(row, column);
    text += "\r\n";
  };
  add(headings);
  for (const Json& row : rows) add(row);
  return text;
}

}  // namespace velmora::app
