#include <velmora/posters/DarknessLayout.h>

namespace [[gnu::visibility("hidden")]] velmora {

DarknessLayout DarknessLayout::of(Size size, double unit) {
  const double margin = 44 * unit, width = size.width - 2 * margin;
  const auto line = [&](double y, double height) { return Rect{margin, y, width, height * unit}; };
  DarknessLayout layout;
  layout.caption = line(margin - 4 * unit, 16);
  layout.title = line(layout.caption.maxY() + 1 * unit, 40);
  layout.place = line(layout.title.maxY() + 1 * unit, 18);

  layout.monthsX = margin;
  layout.monthsWidth = 64 * unit;
  layout.darkestWidth = 108 * unit;
  layout.darkestX = margin + width - layout.darkestWidth;
  const double left = layout.monthsX + layout.monthsWidth + 8 * unit;
  const double right = layout.darkestX - 14 * unit;
  const double legendTop = size.height - margin - 52 * unit;
  const double top = layout.place.maxY() + 36 * unit;
  layout.carpet = {left, top, right - left, legendTop - 18 * unit - top};
  layout.hours = {left, top - 19 * unit, right - left, 14 * unit};
  layout.darkestHeading = {layout.darkestX, top - 33 * unit, layout.darkestWidth, 14 * unit};

  layout.dayparts = line(legendTop, 15);
  layout.moonKeys = line(layout.dayparts.maxY() + 3 * unit, 15);
  layout.note = line(layout.moonKeys.maxY() + 5 * unit, 13);
  return layout;
}

}  // namespace velmora
