#include <app/request/Command.h>

#include <algorithm>

#include <app/request/DrawingOptions.h>

namespace velmora::app {
namespace {

using Names = std::vector<std::string_view>;

/// The options of the groups as one list.
Names join(std::initializer_list<Names> groups) {
  Names list;
  for (const Names& group : groups) list.insert(list.end(), group.begin(), group.end());
  return list;
}

std::vector<Command> makeCommands() {
  const Names place = {"city", "lat", "lon", "tz", "gmt-offset", "name"};
  const Names output = {"json", "color"};
  const Names general = {"now", "clock", "24h", "12h", "locale", "help", "version"};
  return {
      {"today", "the day at a glance: phase, rise and set, twilight, positions",
       join({place, {"date", "time", "twilight"}, output, general})},
      {"month", "the Moon's phase on each day of a month", join({{"month"}, place, output, general}),
       "month"},
      {"year", "new moons, quarters and full moons of a year", join({{"year"}, place, output, general}),
       "year"},
      {"phases", "new moons, quarters and full moons of a range of days",
       join({place, {"from", "to", "phase"}, output, general})},
      {"next", "the next new moon, first quarter, full moon and last quarter",
       join({place, output, general})},
      {"riseset", "rise, set and twilight of a day or of each day of a range",
       join({place, {"date", "from", "to", "twilight"}, output, general})},
      {"position", "where the Moon or the Sun stands, now or at a date and time",
       join({place, {"date", "time", "body"}, output, general})},
      {"track", "the path of the Moon through a day, or of the Sun through 24 hours",
       join({place, {"date", "time", "body"}, output, general})},
      {"elevation", "when the Moon or the Sun crosses an elevation near the horizon",
       join({{"degrees", "body", "intermediate"}, place, {"date", "time"}, output, general}), "degrees"},
      {"eclipse", "the eclipse that is visible on a day", join({place, {"date"}, output, general})},
      {"eclipses", "all eclipses of a year, and which of them are visible",
       join({{"year"}, place, output, general}), "year"},
      {"draw", "a picture: a day's phase, a month, the sky",
       join({{"view"}, pictureOptions(), viewOptions(), place, {"date", "time", "json"}, general}), "view",
       viewNotes},
      {"ics", "a calendar file (iCalendar) of phases and visible eclipses",
       join({place, {"from", "to", "json"}, general})},
      {.name = "batch",
       .summary = "JSON requests, one a line, with one line of JSON each",
       .options = general,
       .isForBatch = false},
  };
}

}  // namespace

bool Command::takes(std::string_view option) const {
  return std::find(options.begin(), options.end(), option) != options.end();
}

const std::vector<Command>& allCommands() {
  static const std::vector<Command> commands = makeCommands();
  return commands;
}

const Command* findCommand(std::string_view name) {
  const auto& commands = allCommands();
  const auto found = std::find_if(commands.begin(), commands.end(),
                                  [&](const Command& command) { return command.name == name; });
  return found == commands.end() ? nullptr : &*found;
}

}  // namespace velmora::app
