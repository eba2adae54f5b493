#include <app/commands/Commands.h>

#include <app/answers/Days.h>
#include <app/answers/Positions.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora::app {
namespace {

using std::chrono::hours;
using std::chrono::sys_days;

std::vector<TimedPosition> hourly(Instant first, const std::vector<PositionData>& positions) {
  std::vector<TimedPosition> samples;
  for (const PositionData& position : positions) {
    samples.push_back({first + hours(static_cast<int>(samples.size())), position});
  }
  return samples;
}

/// 24 samples from the whole universal hour of the instant on.
std::vector<TimedPosition> sunTrack(const Query& query) {
  const Instant start = instantOf(query, hours(0));
  const std::int64_t offset = query.place.zone.secondsFromGMT(start);
  const Instant first = std::chrono::floor<hours>(universalReading(start, offset, query.place));
  return hourly(first, RiseAndSetCalc::Get24HourSunPositionsForDate(start, query.place.location, offset));
}

/// 25 samples from 00:00 to 24:00 of the day, by the offset at 09:00.
std::vector<TimedPosition> moonTrack(const Query& query) {
  const CivilDate day = dayOf(query);
  const Instant morning = instantOn(day, hours(9), query.place.zone);
  const std::int64_t offset = query.place.zone.secondsFromGMT(morning);
  const Instant first = Instant(sys_days(day)) - Seconds(static_cast<double>(offset));
  return hourly(first, RiseAndSetCalc::Get24HourMoonPositionsForDate(morning, query.place.location, offset));
}

std::vector<TimedPosition> answer(const Query& query) {
  return query.request.body == Body::sun ? sunTrack(query) : moonTrack(query);
}

Json json(const Query& query) {
  Json samples = Json::array();
  for (const TimedPosition& sample : answer(query)) {
    samples.push_back(positionJson(sample));
    // The hour that the Sun's series carries is no clock time, only the instant is.
    if (query.request.body == Body::sun) samples.back().erase("hour");
  }
  return samples;
}

std::string text(const Query& query) {
  return query.place.heading() + "Path of the " + bodyTitle(query.request.body) + "\n\n" +
         positionTable(answer(query), query);
}

}  // namespace

const Answer trackAnswer{json, text};

}  // namespace velmora::app
