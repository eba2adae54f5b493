#include <velmora/posters/CalendarHead.h>

#include <algorithm>
#include <array>

#include <velmora/platform/resources/Words.h>
#include <velmora/posters/CalendarMarks.h>
#include <velmora/posters/KeyRow.h>
#include <velmora/posters/MoonNames.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

struct Key {
  const char* name;
  CalendarMarks::Kind mark;
  double width;  // units
};

constexpr std::array keys = {
    Key{"Sun", CalendarMarks::Kind::sun, 7}, Key{"Moon", CalendarMarks::Kind::moon, 8},
    Key{"Rise", CalendarMarks::Kind::rise, 6}, Key{"Set", CalendarMarks::Kind::set, 6}};

}  // namespace

void CalendarHead::draw(bool isTilted) const {
  drawTitle();
  drawPhases(isTilted);
  drawKeys();
  drawNotes();
}

void CalendarHead::drawTitle() const {
  const Instant first = std::chrono::sys_days(_month.month / 1);
  _sheet.label(_plain.date(first, "y"), _layout.caption,
               {.size = 14 * _unit, .color = _palette.accent, .weight = FontWeight::semibold});
  _sheet.label(_plain.date(first, "LLLL"), _layout.title,
               {.size = 32 * _unit, .color = _palette.ink, .weight = FontWeight::semibold});
  _sheet.label(_place.name, _layout.place, {.size = 13 * _unit, .color = _palette.quiet});
}

void CalendarHead::drawPhases(bool isTilted) const {
  std::size_t next = 0;
  for (const CalendarDay& day : _month.days) {
    if (!day.moon.phase) continue;
    const CalendarLayout::Phase& room = _layout.phases[next++];
    const auto& [at, phase] = *day.moon.phase;
    if (const auto moon = almanac::illumination(_place.place, at))
      drawDisc(room.center, room.radius, at, *moon, isTilted);
    _sheet.label(phaseName(phase), room.name,
                 {8.5 * _unit, _palette.ink, Side::middle, FontWeight::semibold});
    _sheet.label(_local.date(at, "MMMd"), room.date, {8.5 * _unit, _palette.quiet, Side::middle});
    _sheet.label(_local.time(at), room.time, {8.5 * _unit, _palette.quiet, Side::middle});
  }
}

void CalendarHead::drawKeys() const {
  const LabelStyle style = {.size = 8.5 * _unit, .color = _palette.quiet};
  std::vector<double> wanted;
  for (const Key& key : keys) wanted.push_back(Sheet::widthOf(words(key.name), style));
  const KeyRow row = KeyRow::of(_layout.keys, _unit, wanted, false);
  CalendarMarks marks;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    marks.add(keys[i].mark, row.swatches[i], keys[i].width * _unit);
    _sheet.label(words(keys[i].name), row.names[i], style);
  }
  marks.draw(_sheet);
}

std::vector<const CalendarDay*> CalendarHead::eclipseDays() const {
  std::vector<const CalendarDay*> days;
  for (const CalendarDay& day : _month.days)
    if (day.moon.eclipse) days.push_back(&day);
  return days;
}

std::string CalendarHead::eclipseText(const almanac::LocalEclipse& eclipse) const {
  return _local.date(eclipse.best.at, "MMMd") + ", " + _local.time(eclipse.best.at) + "  " +
         eclipseName(eclipse.body, eclipse.kind);
}

void CalendarHead::drawNotes() const {
  const LabelStyle style = {.size = 8.5 * _unit, .color = _palette.quiet};
  const auto eclipses = eclipseDays();
  std::string note = words("The Moon of each day at %1", {_plain.time(Instant(MoonDays::evening))});
  if (!eclipses.empty()) note += " · " + words("Ringed: an eclipse seen from here");
  _sheet.label(note, _layout.note, style);
  for (std::size_t i = 0; i < eclipses.size(); ++i)
    _sheet.label(eclipseText(*eclipses[i]->moon.eclipse), _layout.eclipses[i],
                 {.size = 8.5 * _unit, .color = _palette.ink});
}

}  // namespace velmora
