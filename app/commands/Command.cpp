#include <app/commands/Command.h>

#include <algorithm>

#include <app/commands/Batch.h>
#include <app/commands/Draw.h>
#include <app/commands/Eclipse.h>
#include <app/commands/Eclipses.h>
#include <app/commands/Elevation.h>
#include <app/commands/Ics.h>
#include <app/commands/Month.h>
#include <app/commands/Next.h>
#include <app/commands/Phases.h>
#include <app/commands/Position.h>
#include <app/commands/RiseSet.h>
#include <app/commands/Today.h>
#include <app/commands/Track.h>
#include <app/commands/Year.h>

namespace velmora::app {

bool Command::takes(std::string_view option) const {
  return std::find(options.begin(), options.end(), option) != options.end();
}

const std::vector<const Command*>& allCommands() {
  static const std::vector<const Command*> commands = {
      &todayCommand(),    &monthCommand(),    &yearCommand(),  &phasesCommand(),    &nextCommand(),
      &riseSetCommand(),  &positionCommand(), &trackCommand(), &elevationCommand(), &eclipseCommand(),
      &eclipsesCommand(), &drawCommand(),     &icsCommand(),   &batchCommand(),
  };
  return commands;
}

const Command* findCommand(std::string_view name) {
  const auto& commands = allCommands();
  const auto found = std::find_if(commands.begin(), commands.end(),
                                  [&](const Command* command) { return command->name == name; });
  return found == commands.end() ? nullptr : *found;
}

std::vector<std::string_view> optionList(const std::vector<std::vector<std::string_view>>& groups) {
  std::vector<std::string_view> list;
  for (const auto& group : groups) list.insert(list.end(), group.begin(), group.end());
  return list;
}

const std::vector<std::string_view>& generalOptions() {
  static const std::vector<std::string_view> names = {"now",    "clock", "24h",    "12h",
                                                      "locale", "help",  "version"};
  return names;
}

const std::vector<std::string_view>& outputOptions() {
  static const std::vector<std::string_view> names = {"json", "color"};
  return names;
}

const std::vector<std::string_view>& placeOptions() {
  static const std::vector<std::string_view> names = {"city", "lat", "lon", "tz", "gmt-offset", "name"};
  return names;
}

}  // namespace velmora::app
