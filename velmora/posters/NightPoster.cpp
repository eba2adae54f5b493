#include <velmora/posters/NightPoster.h>

#include <algorithm>

#include <velmora/platform/resources/Words.h>
#include <velmora/posters/DarkHours.h>
#include <velmora/posters/MoonNames.h>
#include <velmora/posters/MoonShape.h>
#include <velmora/posters/NightChart.h>
#include <velmora/posters/NightLayout.h>
#include <velmora/posters/NightLegend.h>
#include <velmora/posters/NightSky.h>
#include <velmora/posters/PosterTexts.h>
#include <velmora/posters/Sheet.h>

namespace velmora {
namespace {

std::string darknessText(const NightSky& night, const PosterTexts& texts) {
  std::string list;
  for (const almanac::Interval& stretch : darkHours(night.events))
    list += (list.empty() ? "" : ", ") + rangeText(stretch, night, texts);
  return list.empty() ? words("Never fully dark without the Moon")
                      : words("Fully dark without the Moon: %1", {list});
}

void drawTitle(Sheet& sheet, const NightLayout& layout, const NightSky& night, const std::string& place,
               const PosterTexts& texts) {
  const double unit = sheet.unit();
  const Palette& palette = sheet.palette();
  sheet.label(words("Night"), layout.caption,
              {.size = 12 * unit, .color = palette.accent, .weight = FontWeight::semibold});
  sheet.label(texts.date(night.start, "yMMMMEEEEd"), layout.title,
              {.size = 27 * unit, .color = palette.ink, .weight = FontWeight::semibold});
  sheet.label(place, layout.place, {.size = 13 * unit, .color = palette.ink});
  sheet.label(darknessText(night, texts), layout.darkness, {.size = 13 * unit, .color = palette.quiet});
}

void drawMoonOf(Sheet& sheet, const NightLayout& layout, const NightSky& night, const PosterTexts& texts) {
  const double unit = sheet.unit();
  const Palette& palette = sheet.palette();
  sheet.label(moonName(night.moon, {night.start, night.end}), layout.phase,
              {15 * unit, palette.ink, Side::trailing, FontWeight::semibold});
  sheet.label(words("%1 lit", {texts.percent(night.moon.fraction)}), layout.light,
              {13 * unit, palette.quiet, Side::trailing});
  drawMoon(sheet, layout.discCenter, layout.discRadius, tilted(night.moon));
}

double highestOf(const NightSky& night) {
  double highest = 0;
  for (const SkySample& sample : night.samples)
    highest = std::max({highest, sample.sunHeight, sample.moonHeight});
  return highest;
}

}  // namespace

bool NightPoster::isCovered() const {
  const almanac::Interval night = nightOf(place().zone, _date);
  return ephemeris::covers(night.start) && ephemeris::covers(night.end);
}

void NightPoster::compose(Sheet& sheet) const {
  const auto night = NightSky::of(place(), _date);
  if (!night) return;
  const PosterTexts texts(place().zone);
  const NightLegend legend(*night, texts, sheet.palette());
  const NightLayout layout =
      NightLayout::of(sheet.size(), sheet.unit(), highestOf(*night), legend.wantedWidths(sheet.unit()));
  drawTitle(sheet, layout, *night, place().name, texts);
  drawMoonOf(sheet, layout, *night, texts);
  NightChart(sheet, layout, *night, texts).draw(place().zone, _date);
  legend.draw(sheet, layout);
}

}  // namespace velmora
