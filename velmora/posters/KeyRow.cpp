#include <velmora/posters/KeyRow.h>

#include <algorithm>
#include <numeric>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double usualGap = 18;  // units, between keys that are not spread

}  // namespace

KeyRow KeyRow::of(Rect room, double unit, const std::vector<double>& wanted, bool isSpread) {
  const double between = static_cast<double>(wanted.size() - 1);
  const double indents = static_cast<double>(wanted.size()) * indent * unit;
  const double texts = std::accumulate(wanted.begin(), wanted.end(), 0.0);
  KeyRow row;
  row.share = std::min(1.0, (room.width - indents - leastGap * unit * between) / texts);
  const double widestGap = (room.width - indents - texts * row.share) / between;
  const double gap = isSpread ? widestGap : std::min(usualGap * unit, widestGap);
  double x = room.x;
  for (const double width : wanted) {
    row.swatches.push_back({x, room.midY() - swatch * unit / 2, swatch * unit, swatch * unit});
    row.names.push_back({x + indent * unit, room.y, width * row.share, room.height});
    x += indent * unit + width * row.share + gap;
  }
  return row;
}

}  // namespace velmora
