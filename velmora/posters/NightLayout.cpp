#include <velmora/posters/NightLayout.h>

#include <algorithm>
#include <cmath>

#include <velmora/posters/KeyRow.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double leastHeight = 40, heightStep = 10, roomForText = 13;  // degrees

/// The rectangle below, of that height and as wide.
Rect below(Rect above, double gap, double height) {
  return {above.x, above.maxY() + gap, above.width, height};
}

}  // namespace

NightLayout NightLayout::of(Size size, double unit, double highest, const std::array<double, keys>& wanted) {
  const double margin = 44 * unit, gap = 16 * unit;
  const double width = size.width - 2 * margin;
  NightLayout layout;
  layout.highestAltitude =
      std::max(leastHeight, std::ceil((highest + roomForText) / heightStep) * heightStep);

  layout.discRadius = 42 * unit;
  layout.discCenter = {size.width - margin - layout.discRadius, margin + layout.discRadius};
  const double besideDisc = width - 2 * layout.discRadius - gap;
  layout.caption = {margin, margin - 2 * unit, besideDisc * 0.64, 16 * unit};
  layout.title = below(layout.caption, 1 * unit, 34 * unit);
  layout.place = below(layout.title, 1 * unit, 18 * unit);
  layout.darkness = below(layout.place, 1 * unit, 18 * unit);
  const double phaseX = layout.caption.maxX() + gap;
  layout.phase = {phaseX, margin + 14 * unit, margin + besideDisc - phaseX, 20 * unit};
  layout.light = below(layout.phase, 1 * unit, 17 * unit);

  const double axis = 26 * unit, keysHeight = 48 * unit;
  const double top = margin + 2 * layout.discRadius + 24 * unit;
  const double keysTop = size.height - margin - keysHeight;
  layout.chart = {margin + axis, top, width - axis, keysTop - 42 * unit - top};
  layout.heights = {margin, layout.chart.y, axis - 7 * unit, layout.chart.height};
  layout.hours = below(layout.chart, 5 * unit, 14 * unit);

  const std::vector<double> widths(wanted.begin(), wanted.end());
  const KeyRow row = KeyRow::of({margin, keysTop, width, 15 * unit}, unit, widths, true);
  layout.keyShare = row.share;
  for (std::size_t i = 0; i < keys; ++i) {
    Key& key = layout.legend[i];
    key.swatch = row.swatches[i];
    key.name = row.names[i];
    key.lines[0] = below(key.name, 3 * unit, 14 * unit);
    key.lines[1] = below(key.lines[0], 1 * unit, 14 * unit);
  }
  return layout;
}

double NightLayout::y(double altitude) const {
  const double share = (highestAltitude - altitude) / (highestAltitude - lowestAltitude);
  return chart.y + share * chart.height;
}

std::vector<int> NightLayout::gridAltitudes() const {
  const int step = highestAltitude > 60 ? 30 : 20;
  std::vector<int> altitudes;
  for (int altitude = 0; altitude < highestAltitude; altitude += step) altitudes.push_back(altitude);
  return altitudes;
}

}  // namespace velmora
