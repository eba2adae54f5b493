#include "PhaseTables.h"

#include <array>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace almanac {
namespace {

constexpr double degreesBetweenPhases = 90;
constexpr double lunation = 29.530588861;                      // days, in the mean
constexpr JulianDateTT meanNewMoonOfDecember1999 = 2451520.6;  // to a tenth of a day
constexpr double precision = 1e-7;                             // days, about 0.01 s

JulianDateTT instantOfElongation(const Ephemeris& ephemeris, double degrees, JulianDateTT guess) {
  for (JulianDateTT date = guess;;) {
    const Elongation elongation = ephemeris.elongation(date);
    const double step = std::remainder(degrees - elongation.degrees, 360) / elongation.degreesPerDay;
    date += step;
    if (std::abs(step) < precision) return date;
  }
}

const char* codeOf(Phase phase) {
  constexpr std::array codes{"NM", "FQ", "FM", "LQ"};
  return codes[static_cast<std::size_t>(phase)];
}

void writeLine(std::ostream& out, const PhaseEvent& event) {
  const CalendarFields at = calendarFields(event.time);
  out << "    <string>" << at.day << (at.day < 10 ? "  " : " ");
  out << std::setfill('0') << std::setw(2) << at.hour << ':' << std::setw(2) << at.minute;
  out << ' ' << codeOf(event.phase) << "</string>\n";
}

void writeMonth(std::ostream& out, int year, int month, const std::vector<PhaseEvent>& events) {
  out << "  <key>" << month << "</key>\n  <array>\n";
  for (const PhaseEvent& event : events) {
    const CalendarFields at = calendarFields(event.time);
    if (at.year == year && at.month == month) writeLine(out, event);
  }
  out << "  </array>\n";
}

}  // namespace

std::vector<PhaseEvent> principalPhases(const Ephemeris& ephemeris) {
  std::vector<PhaseEvent> events;
  for (int count = 0;; ++count) {
    const int quarter = count % 4;
    const JulianDateTT guess = meanNewMoonOfDecember1999 + count * lunation / 4;
    const JulianDateTT date = instantOfElongation(ephemeris, quarter * degreesBetweenPhases, guess);
    if (date > afterLastYear) return events;
    const PhaseEvent event{static_cast<Phase>(quarter), nearestUtcMinute(date)};
    if (isCovered(event.time)) events.push_back(event);
  }
}

std::string phaseTable(int year, const std::vector<PhaseEvent>& events) {
  std::ostringstream out;
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n";
  for (int month = 1; month <= 12; ++month) writeMonth(out, year, month, events);
  out << "</dict>\n</plist>\n";
  return out.str();
}

}  // namespace almanac
