#include "EclipseCatalogue.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>

#include "ShadowAxis.h"

namespace almanac {
namespace {

constexpr double daysToNextSearch = 1;

using Search = Eclipse (Ephemeris::*)(JulianDateTT) const;

void appendEclipses(const Ephemeris& ephemeris, Search next, std::vector<EclipseEvent>& events) {
  for (JulianDateTT date = beforeFirstYear;;) {
    const Eclipse eclipse = (ephemeris.*next)(date);
    if (eclipse.greatest > afterLastYear) return;
    const EclipseEvent event{eclipse.kind, nearestUtcMinute(greatestEclipse(ephemeris, eclipse))};
    if (isCovered(event.time)) events.push_back(event);
    date = eclipse.greatest + daysToNextSearch;
  }
}

const char* codeOf(EclipseKind kind) {
  constexpr std::array codes{"TLE", "PLE", "NLE", "TSE", "PSE", "ASE", "HSE"};
  return codes[static_cast<std::size_t>(kind)];
}

void writeLine(std::ostream& out, const EclipseEvent& event) {
  const CalendarFields at = calendarFields(event.time);
  out << std::setfill('0') << std::setw(2) << at.month << '/' << std::setw(2) << at.day << '/' << at.year;
  out << ' ' << std::setw(2) << at.hour << ':' << std::setw(2) << at.minute << ',' << codeOf(event.kind)
      << '\n';
}

}  // namespace

std::vector<EclipseEvent> allEclipses(const Ephemeris& ephemeris) {
  std::vector<EclipseEvent> events;
  appendEclipses(ephemeris, &Ephemeris::nextLunarEclipse, events);
  appendEclipses(ephemeris, &Ephemeris::nextSolarEclipse, events);
  std::sort(events.begin(), events.end(),
            [](const EclipseEvent& a, const EclipseEvent& b) { return a.time < b.time; });
  return events;
}

std::string eclipseCatalogue(const std::vector<EclipseEvent>& events) {
  std::ostringstream out;
  for (const EclipseEvent& event : events) writeLine(out, event);
  return out.str();
}

}  // namespace almanac
