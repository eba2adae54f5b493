#include "Catalogue.h"

#include <algorithm>
#include <fstream>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace moonpictures {
namespace {

/// One line: a name, then numbers.
struct Row {
  std::string name;
  std::vector<double> values;
};

double parsedNumber(const std::string& text, const std::string& where) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  double value = 0;
  if (!(stream >> value) || !stream.eof()) throw std::runtime_error(where + ": not a number: " + text);
  return value;
}

Row parsedRow(const std::string& line, std::size_t valueCount, const std::string& where) {
  std::istringstream fields(line);
  Row row;
  std::getline(fields, row.name, ',');
  for (std::string field; std::getline(fields, field, ',');) row.values.push_back(parsedNumber(field, where));
  if (row.values.size() != valueCount) throw std::runtime_error(where + ": wrong number of fields");
  return row;
}

/// The lines of a table below its comments and its heading.
std::vector<Row> readTable(const std::string& path, std::size_t valueCount) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path + ": cannot be read");
  std::vector<Row> rows;
  bool headingSeen = false;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line.front() == '#') continue;
    if (headingSeen) rows.push_back(parsedRow(line, valueCount, path + ":" + std::to_string(number)));
    headingSeen = true;
  }
  return rows;
}

Mare mareOf(const Row& row) {
  const auto& v = row.values;
  return {directionOf({v[0], v[1]}), v[2], v[3], v[4], v[5]};
}

Crater craterOf(const Row& row) {
  const auto& v = row.values;
  return {row.name, directionOf({v[0], v[1]}), v[2], v[3], v[4]};
}

MountainPiece mountainOf(const Row& row) {
  const auto& v = row.values;
  return {directionOf({v[0], v[1]}), directionOf({v[2], v[3]}), v[4], v[5]};
}

Ray rayOf(const Row& row, const std::vector<Crater>& craters) {
  const auto origin = std::find_if(craters.begin(), craters.end(),
                                   [&](const Crater& crater) { return crater.name == row.name; });
  if (origin == craters.end()) throw std::runtime_error("rays.csv: no such crater: " + row.name);
  const auto& v = row.values;
  return {origin->centre, v[0], v[1], v[2], v[3]};
}

}  // namespace

Catalogue readCatalogue(const std::string& folder) {
  Catalogue catalogue;
  for (const Row& row : readTable(folder + "/maria.csv", 6)) catalogue.maria.push_back(mareOf(row));
  for (const Row& row : readTable(folder + "/craters.csv", 5)) catalogue.craters.push_back(craterOf(row));
  for (const Row& row : readTable(folder + "/mountains.csv", 6))
    catalogue.mountains.push_back(mountainOf(row));
  for (const Row& row : readTable(folder + "/rays.csv", 4))
    catalogue.rays.push_back(rayOf(row, catalogue.craters));
  return catalogue;
}

}  // namespace moonpictures
