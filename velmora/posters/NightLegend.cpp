#include <velmora/posters/NightLegend.h>

#include <algorithm>

#include <velmora/platform/resources/Words.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr const char* untold = "–";
constexpr double textSize = 10.5, frameWidth = 0.75, cornerRadius = 2;  // units
constexpr std::size_t mostLines = 2;

/// From when to when; in words where the Sun does not set.
std::string stretchText(const DaypartStretch& stretch, const NightSky& night, const PosterTexts& texts) {
  const bool isWhole = stretch.interval.start <= night.start && stretch.interval.end >= night.end;
  if (stretch.part == Daypart::daylight && isWhole) return words("up all day");
  return rangeText(stretch.interval, night, texts);
}

}  // namespace

std::string rangeText(const almanac::Interval& interval, const NightSky& night, const PosterTexts& texts) {
  const std::string from = interval.start > night.start ? texts.time(interval.start) : "…";
  const std::string to = interval.end < night.end ? texts.time(interval.end) : "…";
  return from + " – " + to;
}

NightLegend::NightLegend(const NightSky& night, const PosterTexts& texts, const Palette& palette)
    : _palette(palette) {
  constexpr std::array names = {"Daytime", "Twilight (civil)", "Twilight (nautical)",
                                "Twilight (astronomical)", "Night"};
  for (std::size_t i = 0; i < names.size(); ++i)
    _keys[i] = {palette.sky(static_cast<Daypart>(i)), words(names[i]), {}};
  _keys.back() = moonKey(night, texts);
  for (const DaypartStretch& stretch : daypartStretches(night))
    _keys.at(static_cast<std::size_t>(stretch.part)).lines.push_back(stretchText(stretch, night, texts));
  for (Key& key : _keys) {
    if (key.lines.empty()) key.lines.push_back(untold);
    key.lines.resize(std::min(key.lines.size(), mostLines));
  }
}

NightLegend::Key NightLegend::moonKey(const NightSky& night, const PosterTexts& texts) const {
  using almanac::EventKind;
  Key key = {mixed(_palette.night, _palette.moonlight, mostMoonlight), words("Moonlight"), {}};
  for (const almanac::Event& event : night.events.events) {
    if (event.body != ephemeris::Body::moon || event.kind == EventKind::transit) continue;
    const char* const name = event.kind == EventKind::rise ? "Moonrise" : "Moonset";
    key.lines.push_back(words(name) + " " + texts.time(event.at));
  }
  return key;
}

LabelStyle NightLegend::nameStyle(double unit) const {
  return {.size = textSize * unit, .color = _palette.ink, .weight = FontWeight::semibold};
}

LabelStyle NightLegend::lineStyle(double unit) const {
  return {.size = textSize * unit, .color = _palette.quiet};
}

std::array<double, NightLayout::keys> NightLegend::wantedWidths(double unit) const {
  std::array<double, NightLayout::keys> widths{};
  for (std::size_t i = 0; i < _keys.size(); ++i) {
    widths[i] = Sheet::widthOf(_keys[i].name, nameStyle(unit));
    for (const std::string& line : _keys[i].lines)
      widths[i] = std::max(widths[i], Sheet::widthOf(line, lineStyle(unit)));
  }
  return widths;
}

void NightLegend::draw(Sheet& sheet, const NightLayout& layout) const {
  const double unit = sheet.unit();
  for (std::size_t i = 0; i < _keys.size(); ++i) {
    const NightLayout::Key& place = layout.legend[i];
    const Path swatch = Path::roundedRect(place.swatch, cornerRadius * unit);
    sheet.fill(swatch, _keys[i].color);
    sheet.stroke(swatch, _palette.line, frameWidth * unit);
    sheet.label(_keys[i].name, place.name, nameStyle(unit * layout.keyShare));
    for (std::size_t line = 0; line < _keys[i].lines.size(); ++line)
      sheet.label(_keys[i].lines[line], place.lines[line], lineStyle(unit * layout.keyShare));
  }
}

}  // namespace velmora
