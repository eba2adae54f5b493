#include <velmora/views/PhaseDisc.h>

#include <velmora/phases/Phase.h>
#include <velmora/phases/PhaseItem.h>
#include <velmora/platform/graphics/Canvas.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double thinLine = 1;
constexpr double clippedLine = 2;  // clipped to the disc, only its inner half shows

enum class Side { left, right };

Side opposite(Side side) { return side == Side::left ? Side::right : Side::left; }

/// Seen from the north a waxing Moon is lit on the right, a waning one on the left.
Side litSide(std::int64_t phase, bool isSouthernHemisphere) {
  const bool isWaxing = phase == kFirstQuarter || phase == kWaxingCrescent || phase == kWaxingGibbous;
  const Side inTheNorth = isWaxing ? Side::right : Side::left;
  return isSouthernHemisphere ? opposite(inTheNorth) : inTheNorth;
}

Rect half(const PhaseDisc& disc, Side side) {
  const double radius = disc.diameter * 0.5;
  return {side == Side::right ? disc.x + radius : disc.x, disc.y, radius, disc.diameter};
}

/// What a crescent leaves dark.
/// Kept: in the north the ellipse narrows along the dark edge; in the south it keeps its width and moves
/// across the disc, so the two are no mirror images.
Rect darkEllipse(const PhaseDisc& disc, std::int64_t phase, double fullFactor, bool isSouthernHemisphere) {
  const double lit = disc.diameter * fullFactor;
  Rect ellipse = disc.square();
  if (isSouthernHemisphere) {
    ellipse.x = phase == kWaxingCrescent ? disc.x + lit : disc.x - lit;
  } else {
    ellipse.x = phase == kWaxingCrescent ? disc.x : disc.x + lit;
    ellipse.width = disc.diameter - lit;
  }
  return ellipse;
}

void drawFullMoon(Canvas& canvas, const PhaseDisc& disc) {
  canvas.setLineWidth(thinLine);
  canvas.fillEllipse(disc.square());
}

void drawNewMoon(Canvas& canvas, const PhaseDisc& disc) {
  canvas.setLineWidth(thinLine);
  canvas.strokeEllipse(disc.square());
}

void drawQuarter(Canvas& canvas, const PhaseDisc& disc, Side lit) {
  canvas.save();
  canvas.setLineWidth(thinLine);
  canvas.clip(Path::rect(half(disc, lit)));
  canvas.fill(Path::ellipse(disc.square()));
  canvas.restore();
  canvas.strokeEllipse(disc.square());
}

// Kept: below half lit the ellipse's width is negative; the Moon is then lit as much as above half.
void drawGibbous(Canvas& canvas, const PhaseDisc& disc, double fullFactor, Side lit) {
  const double beyondHalf = disc.diameter * (fullFactor - 0.5);
  const double middle = disc.x + disc.diameter * 0.5;
  Path litPart = Path::ellipse({middle - beyondHalf, disc.y, 2 * beyondHalf, disc.diameter});
  litPart.addRect(half(disc, lit));
  canvas.save();
  canvas.setLineWidth(clippedLine);
  canvas.clip(Path::ellipse(disc.square()));
  canvas.fill(litPart);
  canvas.strokeEllipse(disc.square());
  canvas.restore();
}

// The dark part is cut out before it is painted, so that a translucent dark colour lets the background
// through and not the lit disc.
void drawCrescent(Canvas& canvas, const PhaseDisc& disc, Rect darkPart, const Color& darkColor) {
  canvas.save();
  canvas.setLineWidth(clippedLine);
  canvas.clip(Path::ellipse(disc.square()));
  canvas.fillEllipse(disc.square());
  canvas.setBlendMode(BlendMode::clear);
  canvas.setFillColor(Color::clear());
  canvas.fillEllipse(darkPart);
  canvas.setBlendMode(BlendMode::normal);
  canvas.setFillColor(darkColor);
  canvas.fillEllipse(darkPart);
  canvas.strokeEllipse(disc.square());
  canvas.restore();
}

}  // namespace

PhaseDisc PhaseDisc::inIcon(Rect rect) {
  const double diameter = rect.height - 2;
  return {rect.x + (rect.width - diameter) * 0.5 + 1, rect.y + 1, diameter};
}

PhaseDisc PhaseDisc::inCalendarCell(Rect rect, double padding) {
  const double diameter = rect.width - padding;
  return {rect.x + (rect.width - diameter) * 0.5, rect.y, diameter};
}

PhaseDisc PhaseDisc::inRiseSetDay(Rect rect) {
  const double diameter = rect.height - 8;
  return {rect.x + (rect.width - diameter) * 0.5, rect.y, diameter};
}

void PhaseDisc::draw(Canvas& canvas, const PhaseItem& day, bool isSouthernHemisphere,
                     const Color& darkColor) const {
  const double fullFactor = day.fullFactor;
  const Side lit = litSide(day.phase, isSouthernHemisphere);
  switch (day.phase) {
    case kFullMoon:
      return drawFullMoon(canvas, *this);
    case kNewMoon:
      return drawNewMoon(canvas, *this);
    case kFirstQuarter:
    case kLastQuarter:
      return drawQuarter(canvas, *this, lit);
    case kWaxingGibbous:
    case kWaningGibbous:
      return drawGibbous(canvas, *this, fullFactor, lit);
    case kWaxingCrescent:
    case kWaningCrescent:
      return drawCrescent(canvas, *this, darkEllipse(*this, day.phase, fullFactor, isSouthernHemisphere),
                          darkColor);
    default:
      return;
  }
}

}  // namespace velmora
