#include <velmora/platform/graphics/cairo/PaintedLayers.h>

#include <algorithm>
#include <utility>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

bool holds(const Rect& outer, const Rect& inner) { return outer.intersection(inner) == inner; }

}  // namespace

void PaintedLayers::note(const Rect& box) {
  Layer& layer = _layers.back();
  if (!_knowsColors) {
    const auto isHeld = [&](const Paint& paint) { return holds(paint.box, box); };
    if (box.isEmpty() || std::any_of(layer.begin(), layer.end(), isHeld)) return;
    std::erase_if(layer, [&](const Paint& paint) { return holds(box, paint.box); });
  }
  layer.push_back({box, {}, {}});
}

void PaintedLayers::end() {
  const Layer painted = std::move(_layers.back());
  _layers.pop_back();
  for (const Paint& paint : painted) note(paint.box);
}

void PaintedLayers::noteFilled(const Rect& rect, const Color& color) {
  _layers.back().back().filled = rect;
  _layers.back().back().color = color;
}

bool PaintedLayers::isPainted(const Rect& rect) const {
  return std::any_of(_layers.back().begin(), _layers.back().end(),
                     [&](const Paint& paint) { return !rect.intersection(paint.box).isEmpty(); });
}

std::optional<Color> PaintedLayers::colorBelow(const Rect& rect) const {
  const auto isThere = [&](const Paint& paint) { return !rect.intersection(paint.box).isEmpty(); };
  for (auto layer = _layers.rbegin() + 1; layer != _layers.rend(); ++layer) {
    const auto topmost = std::find_if(layer->rbegin(), layer->rend(), isThere);
    if (topmost == layer->rend()) continue;
    return holds(topmost->filled, rect) ? std::optional(topmost->color) : std::nullopt;
  }
  return _background.alpha >= 1 ? std::optional(_background) : std::nullopt;
}

}  // namespace velmora
