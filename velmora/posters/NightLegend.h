#pragma once

#include <array>
#include <string>
#include <vector>

#include <velmora/posters/NightLayout.h>
#include <velmora/posters/NightSky.h>
#include <velmora/posters/PosterTexts.h>
#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What the colours of a night mean, and from when to when they last.
class NightLegend {
 public:
  NightLegend(const NightSky& night, const PosterTexts& texts, const Palette& palette);

  /// How wide the texts of each key are on a sheet of the unit.
  std::array<double, NightLayout::keys> wantedWidths(double unit) const;

  void draw(Sheet& sheet, const NightLayout& layout) const;

 private:
  struct Key {
    Color color;
    std::string name;
    std::vector<std::string> lines;
  };

  Key moonKey(const NightSky& night, const PosterTexts& texts) const;
  LabelStyle nameStyle(double unit) const;
  LabelStyle lineStyle(double unit) const;

  const Palette& _palette;
  std::array<Key, NightLayout::keys> _keys;
};

/// From when to when, of the ends that lie within the night.
std::string rangeText(const almanac::Interval& interval, const NightSky& night, const PosterTexts& texts);

}  // namespace velmora
