#include <velmora/platform/time/intl/ZoneChanges.h>

#include <algorithm>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr std::int64_t secondsPerYear = 31'556'952;  // 365.2425 days

/// No zone has ever changed its clocks twice within this span and gone back (the closest was Freetown's in
/// 1939, within four days), so offsets as close as this betray every change.
constexpr std::int64_t widestStep = 3 * 86'400;

std::int64_t floorDivided(std::int64_t value, std::int64_t divisor) {
  return (value >= 0 ? value : value - divisor + 1) / divisor;
}

}  // namespace

std::int64_t ZoneChanges::bisected(std::int64_t from, std::int64_t to, std::int64_t offsetBefore) const {
  while (to - from > 1) {
    const std::int64_t middle = from + (to - from) / 2;
    (_questions.offset(middle) == offsetBefore ? from : to) = middle;
  }
  return to;
}

/// The changes in (from, to]: told by the engine where it can, else searched.
std::vector<ZoneChange> ZoneChanges::changes(std::int64_t from, std::int64_t to) const {
  std::vector<ZoneChange> found;
  std::int64_t offset = _questions.offset(from);
  while (from < to) {
    const std::optional<std::int64_t> told = _questions.nextChange(from);
    if (told && *told > to) break;
    const std::int64_t next = told.value_or(std::min(from + widestStep, to));
    const std::int64_t offsetThere = _questions.offset(next);
    from = told || offsetThere == offset ? next : bisected(from, next, offset);
    if (offsetThere == offset) continue;
    const std::int64_t after = _questions.offset(from);
    found.push_back({from, offset, after});
    offset = after;
  }
  return found;
}

ZoneChanges::Year ZoneChanges::searched(std::int64_t number) const {
  const std::int64_t justBefore = number * secondsPerYear - 1;
  return {_questions.offset(justBefore), changes(justBefore, justBefore + secondsPerYear)};
}

const ZoneChanges::Year& ZoneChanges::year(std::int64_t number) const {
  const std::lock_guard lock(_mutex);
  const auto kept = _years.find(number);
  return kept != _years.end() ? kept->second : _years.emplace(number, searched(number)).first->second;
}

std::int64_t ZoneChanges::offset(std::int64_t time) const {
  const Year& searchedYear = year(floorDivided(time, secondsPerYear));
  std::int64_t offset = searchedYear.firstOffset;
  for (const ZoneChange& change : searchedYear.changes) {
    if (change.at <= time) offset = change.after;
  }
  return offset;
}

std::vector<ZoneChange> ZoneChanges::between(std::int64_t from, std::int64_t to) const {
  std::vector<ZoneChange> found;
  for (std::int64_t number = floorDivided(from, secondsPerYear); number * secondsPerYear < to; ++number) {
    for (const ZoneChange& change : year(number).changes) {
      if (change.at >= from && change.at < to) found.push_back(change);
    }
  }
  return found;
}

}  // namespace velmora
