#include <app/commands/Commands.h>

#include <map>

namespace velmora::app {

const Answer* findAnswer(std::string_view command) {
  static const std::map<std::string_view, const Answer*> answers = {
      {"today", &todayAnswer},       {"month", &monthAnswer},       {"year", &yearAnswer},
      {"phases", &phasesAnswer},     {"next", &nextAnswer},         {"riseset", &riseSetAnswer},
      {"position", &positionAnswer}, {"track", &trackAnswer},       {"elevation", &elevationAnswer},
      {"eclipse", &eclipseAnswer},   {"eclipses", &eclipsesAnswer}, {"ics", &icsAnswer},
      {"place", &ownPlaceAnswer},
  };
  const auto found = answers.find(command);
  return found == answers.end() ? nullptr : found->second;
}

}  // namespace velmora::app
