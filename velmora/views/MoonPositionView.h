#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include <velmora/platform/ui/View.h>
#include <velmora/views/ArcTextView.h>

namespace velmora {

/// A chart of the Moon's path over the sky on five days: a ring and five arcs in it, each beginning 20
/// degrees after the one outside it and labelled with its day. Kept: days and arcs are a fixed sample.
class MoonPositionView : public View {
 public:
  /// One label a day.
  static constexpr std::size_t dayCount = 5;
  using TextViews = std::array<std::shared_ptr<ArcTextView>, dayCount>;

  MoonPositionView();

  /// The labels, the outermost arc's first.
  const TextViews& textViews() const { return _textViews; }

  /// Draws ring and arcs and sets the labels on their circles.
  /// Kept: from the second drawing on the labels' texts run the other way, since an ArcTextView that is
  /// flipped already reverses its text once more.
  void drawRect(Canvas& canvas, Rect rect) override;

 private:
  void drawDay(Canvas& canvas, std::size_t index, double radius);

  TextViews _textViews;
};

}  // namespace velmora
