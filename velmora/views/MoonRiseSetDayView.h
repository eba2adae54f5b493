#pragma once

#include <memory>
#include <vector>

#include <velmora/platform/ui/View.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora {

struct PhaseItem;
struct RiseSetPhaseItem;

/// The corner radius of drawn bars, in points: 8.
extern const double kCornerRadius;

/// One day as a row: the phase disc with a label under it and, beside it, a strip of 24 hours with a bar for
/// the hours that the Moon is up and one for daylight, with rise and set as icons and times. It mirrors
/// itself where the layout runs from right to left.
///
/// The icons are the host's pictures "moonrise", "moonset", "sunrise" and "sunset"; a missing one is left
/// out.
class MoonRiseSetDayView : public View {
 public:
  /// Around what a row draws.
  static constexpr EdgeInsets edgeInsets{.top = 1, .left = 10, .bottom = 0, .right = 0};
  /// The height is the space above the disc.
  static constexpr Size phasePadding{8, 10};

  /// The day to draw; without one the strip stays empty and there is no disc.
  const std::shared_ptr<const RiseSetPhaseItem>& phaseItem() const { return _phaseItem; }
  void setPhaseItem(std::shared_ptr<const RiseSetPhaseItem> item);

  /// What stands under the disc.
  const AttributedText& labelText() const { return _labelText; }
  void setLabelText(AttributedText text);

  /// Whether the disc stands out; no unless set.
  bool isSelected() const { return _isSelected; }
  void setIsSelected(bool isSelected);

  /// None until the first drawing, unless set; none again brings back the shared calendar theme.
  const std::shared_ptr<VelmoraTheme>& colorTheme() const { return _colorTheme; }
  void setColorTheme(std::shared_ptr<VelmoraTheme> theme);
  /// The row's theme; fills it with the shared calendar theme when there is none.
  const std::shared_ptr<VelmoraTheme>& calendarTheme();

  /// As wide as the row, 80 points high.
  Size cellSize() const;
  Size intrinsicContentSize() const override { return cellSize(); }

  /// Never: what lies behind the row shows.
  bool isOpaque() const override { return false; }

  /// Whether the service's selected place lies south of the equator.
  bool isSouthernHemisphere() const;

  /// Asks to be drawn again, nothing else.
  void handleTouchEvent(const Touch& event);

  /// Of the rise and set times: on the left, cut at their rectangle, made once per process.
  static const TextAttributes& labelTextTextAttributes();

  /// One element, the row: its day with the rises and sets as one sentence; none without a day. Whether a
  /// body that neither rises nor sets is up is computed for the service's selected place.
  std::vector<AccessibilityElement> accessibilityElements() override;

  void drawRect(Canvas& canvas, Rect rect) override;

  /// Draws the day's disc into the rectangle, its outline and lit part in the canvas's own colours.
  void drawMoonPhaseInRect(Rect rect, const PhaseItem& withPhaseItem, Canvas& context);

  /// Draws the strip of 24 hours into the rectangle: the bars, icons and times of the day, if there is one,
  /// and the line between Moon and Sun. The Moon's bar begins and ends as `MoonHours` says.
  void drawRiseSetData(Rect rect, const RiseSetPhaseItem* with, Canvas& context);

 private:
  void drawDisc(Canvas& canvas, Rect discRect);
  void drawSeparators(Canvas& canvas);

  std::shared_ptr<const RiseSetPhaseItem> _phaseItem;
  AttributedText _labelText;
  bool _isSelected = false;
  std::shared_ptr<VelmoraTheme> _colorTheme;
};

}  // namespace velmora
