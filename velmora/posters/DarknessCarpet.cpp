#include <velmora/posters/DarknessCarpet.h>

#include <array>

#include <velmora/posters/Ribbons.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// Moonlight from which on the sky is painted once more.
constexpr std::array moonlightLevels = {0.04, 0.12, 0.22, 0.34, 0.48, 0.63, 0.78};
constexpr double paintOfLevel = 0.12;

/// A body passes the horizon at most that share of a day later or earlier than the day before.
constexpr double farthestPassage = 0.09;

template <class Part, class Read>
Rows<Part> rowsOf(const DarknessYear& year, const Read& read) {
  Rows<Part> rows;
  for (const NightRow& night : year.nights) {
    rows.rows.push_back(read(night));
    rows.isStep.push_back(night.isStep);
  }
  return rows;
}

void drawDayparts(Sheet& sheet, const DarknessLayout& layout, const DarknessYear& year) {
  sheet.fillRect(layout.carpet, sheet.palette().daylight);
  int part = 0;
  for (const double limit : daypartLimits) {
    const auto rows =
        rowsOf<Stretch>(year, [&](const NightRow& night) { return stretchesBelow(night.sun, limit); });
    sheet.fill(ribbonsOf(rows, layout.carpet), sheet.palette().sky(static_cast<Daypart>(++part)));
  }
}

void drawMoonlight(Sheet& sheet, const DarknessLayout& layout, const DarknessYear& year) {
  Color light = sheet.palette().moonlight;
  light.alpha = paintOfLevel;
  for (const double level : moonlightLevels) {
    const auto rows =
        rowsOf<Stretch>(year, [&](const NightRow& night) { return stretchesAbove(night.moonlight, level); });
    sheet.fill(ribbonsOf(rows, layout.carpet), light);
  }
}

void drawPassages(Sheet& sheet, const DarknessLayout& layout, const DarknessYear& year, bool upward,
                  const Color& color, const std::vector<double>& dash = {}) {
  const auto rows = rowsOf<double>(year, [&](const NightRow& night) { return passages(night.moon, upward); });
  sheet.stroke(linesOf(rows, layout.carpet, farthestPassage), color, 0.7 * sheet.unit(), dash);
}

}  // namespace

void drawCarpet(Sheet& sheet, const DarknessLayout& layout, const DarknessYear& year) {
  drawDayparts(sheet, layout, year);
  drawMoonlight(sheet, layout, year);
  drawPassages(sheet, layout, year, true, moonriseColor(sheet.palette()));
  drawPassages(sheet, layout, year, false, moonsetColor(sheet.palette()), moonsetDash(sheet.unit()));
}

Color moonriseColor(const Palette& palette) { return mixed(palette.daylight, palette.sun, 0.75); }
Color moonsetColor(const Palette& palette) { return mixed(palette.moonlight, palette.nautical, 0.25); }

std::vector<double> moonsetDash(double unit) { return {2.4 * unit, 1.4 * unit}; }

Color brightestMoonlight(const Palette& palette) {
  Color color = palette.night;
  for (std::size_t i = 0; i < moonlightLevels.size(); ++i)
    color = mixed(color, palette.moonlight, paintOfLevel);
  return color;
}

}  // namespace velmora
