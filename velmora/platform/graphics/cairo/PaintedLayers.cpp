#include <velmora/platform/graphics/cairo/PaintedLayers.h>

#include <algorithm>
#include <utility>

namespace [[gnu::visibility("hidden")]] velmora {

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
    const bool coversAll = topmost->filled.intersection(rect) == rect;
    return coversAll ? std::optional(topmost->color) : std::nullopt;
  }
  return _background.alpha >= 1 ? std::optional(_background) : std::nullopt;
}

}  // namespace velmora
