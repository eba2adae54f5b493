#pragma once

#include <string>
#include <vector>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/ui/View.h>

namespace velmora {

/// A ruler of the day's 24 hours along the lower edge, every fourth hour labelled, below a title. It mirrors
/// in layouts from right to left. Colours are those of the default theme.
///
/// Labels, attributes and the title's place are made once for the process, see ProcessValues.
class TimelineDayView : public View {
 public:
  /// The ruler leaves its background to be seen through.
  bool isOpaque() const override { return false; }

  /// The texts of the hours 0, 4, 8, 12, 16, 20 and 24, the last being the next day's midnight: plain hours
  /// where the locale counts to 24, else with the half of the day.
  /// Kept: locale and the zone of the service's place are those of the first call.
  static const std::vector<std::string>& timelineLabels();

  /// Of the hours' labels; they are smaller on narrow screens and larger on tablets.
  static const TextAttributes& hourTextTextAttributes();
  /// Of the title.
  static const TextAttributes& headerCenterTitleTextAttributes();

  void drawRect(Canvas& canvas, Rect rect) override;

 private:
  struct Ruler;

  void drawTitle(Canvas& canvas) const;
  void drawRuler(Canvas& canvas, const Ruler& ruler) const;
  void drawLabel(Canvas& canvas, int mark, double x, double top) const;
  void drawTick(Canvas& canvas, double x, double top, double bottom) const;
};

}  // namespace velmora
