#include "ShippedData.h"

#include <fstream>
#include <regex>
#include <stdexcept>

#include <tests/support/SourceDirectory.h>

namespace velmora::shipped {
namespace {

using namespace std::chrono;

const std::string folder = sourceDirectory() + "/velmora/resources/Data/";

std::vector<std::string> linesOf(const std::string& name) {
  std::ifstream file(folder + name);
  if (!file) throw std::runtime_error("cannot read " + name);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

Instant instantOf(int yearNumber, int monthNumber, const std::string& dayText, const std::string& clock,
                  const std::string& source) {
  const year_month_day date(year(yearNumber), month(static_cast<unsigned>(monthNumber)),
                            day(static_cast<unsigned>(std::stoi(dayText))));
  const int hour = std::stoi(clock.substr(0, 2));
  const int minute = std::stoi(clock.substr(3));
  if (!date.ok() || hour > 23 || minute > 59) throw std::runtime_error("no such date: " + source);
  return sys_days(date) + hours(hour) + minutes(minute);
}

void appendTable(int yearNumber, std::vector<Event>& events) {
  static const std::regex key(R"( *<key>(\d+)</key>)");
  static const std::regex line(R"( *<string>(\d{1,2}) {1,2}(\d\d:\d\d) (NM|FQ|FM|LQ)</string>)");
  static const std::regex frame(R"( *</?(array|dict|plist.*|\?xml.*)>)");
  const std::string name = std::to_string(yearNumber) + ".plist";
  int monthNumber = 0;
  for (const std::string& text : linesOf(name)) {
    const std::string source = name + ": " + text;
    std::smatch fields;
    if (std::regex_match(text, fields, line)) {
      events.push_back({instantOf(yearNumber, monthNumber, fields[1], fields[2], source), fields[3], source});
    } else if (std::regex_match(text, fields, key)) {
      if (fields[1] != std::to_string(++monthNumber)) throw std::runtime_error("wrong month: " + source);
    } else if (!std::regex_match(text, frame)) {
      throw std::runtime_error("cannot read " + source);
    }
  }
  if (monthNumber != 12) throw std::runtime_error("months missing: " + name);
}

}  // namespace

std::vector<Event> phases() {
  std::vector<Event> events;
  for (int yearNumber = 2000; yearNumber <= 2040; ++yearNumber) appendTable(yearNumber, events);
  return events;
}

std::vector<Event> eclipses() {
  static const std::regex record(R"((\d\d)/(\d\d)/(\d{4}) (\d\d:\d\d),([TPN]LE|[TPAH]SE))");
  std::vector<Event> events;
  for (const std::string& text : linesOf("events.txt")) {
    std::smatch fields;
    if (!std::regex_match(text, fields, record)) throw std::runtime_error("cannot read events.txt: " + text);
    const Instant time = instantOf(std::stoi(fields[3]), std::stoi(fields[1]), fields[2], fields[4], text);
    events.push_back({time, fields[5], "events.txt: " + text});
  }
  return events;
}

}  // namespace velmora::shipped
