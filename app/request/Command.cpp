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
  const Names place = {"city", "lat", "lon", "tz", "gmt-offset", "name", "height"};
  const Names output = {"json", "color"}, table = {"csv", "json", "color"};
  const Names general = {"now", "clock", "24h", "12h", "locale", "help", "version"};
  const Names days = {"date", "from", "to"};
  return {
      {"today", "the day at a glance: the Moon, rise and set, positions, an eclipse",
       join({place, {"date", "time", "twilight"}, output, general})},
      {"month", "the Moon's phase on each day of a month, 2000 to 2040",
       join({{"month", "grid"}, place, output, general}), "month"},
      {"year", "new moons, quarters and full moons of a year, 2000 to 2040",
       join({{"year"}, place, output, general}), "year"},
      {.name = "phases",
       .summary = "new moons, quarters and full moons of a range of days",
       .options = join({place, {"from", "to", "phase"}, table, general}),
       .required = {"from", "to"}},
      {"next", "the next of each phase, rise and set, and the next eclipse seen here",
       join({place, output, general})},
      {"riseset", "rise, set and twilight of a day or of each day of a range",
       join({place, days, {"twilight", "transit"}, table, general})},
      {"position", "where the Moon or the Sun stands, now or at a date and time",
       join({place, {"date", "time", "body"}, output, general})},
      {"track", "the path of the Moon or the Sun through a day",
       join({place, {"date", "step", "body"}, table, general})},
      {"elevation", "when the Moon or the Sun passes an elevation above the horizon",
       join({{"degrees", "body"}, place, days, table, general}), "degrees"},
      {"eclipse", "the eclipse of a day as it is seen from the place",
       join({place, {"date"}, output, general})},
      {"eclipses", "all eclipses of a year, 1900 to 2100, and what is seen of them here",
       join({{"year"}, place, table, general}), "year"},
      {.name = "draw",
       .summary = "a picture of a day's phase, a month, a year or the sky",
       .options = join({{"view"}, pictureOptions(), viewOptions(), place, {"date", "time", "json"}, general}),
       .positional = "view",
       .notes = viewNotes,
       .required = {"output"}},
      {.name = "ics",
       .summary = "a calendar file (iCalendar) of phases and of eclipses seen here",
       .options = join({place, {"from", "to", "all-day", "json"}, general}),
       .required = {"from", "to"}},
      {.name = "place",
       .summary = "your own place, used where none is named; a place given is kept",
       .options = join({place, {"forget"}, output, general}),
       .isForBatch = false},
      {.name = "batch",
       .summary = "JSON requests, one per line, each answered by one line of JSON",
       .options = join({{"pictures"}, general}),
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
