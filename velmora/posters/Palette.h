#pragma once

#include <velmora/platform/graphics/Color.h>
#include <velmora/posters/Paper.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What the Sun makes of the sky, from the brightest on.
enum class Daypart { daylight, civil, nautical, astronomical, night };

/// The inks of a poster. Each daypart is darker than the one before it, so that a grey print tells them
/// apart too.
struct Palette {
  Color paper, ink;
  Color quiet;   ///< of what stands back: captions, axes
  Color line;    ///< of rules and grids
  Color accent;  ///< of what is to be found at once
  Color sun;
  Color moonLit, moonDark, moonRim;  ///< the two parts of a disc and the line around it
  Color daylight, civil, nautical, astronomical, night, moonlight;

  static const Palette& of(PaperTheme theme);

  const Color& sky(Daypart part) const;
};

/// The colour on the way from one to the other: 0 is the first, 1 the second.
Color mixed(const Color& from, const Color& to, double share);

/// The daypart at a true altitude of the Sun's centre, degrees.
Daypart daypartAt(double sunAltitude);

/// The true altitudes of the Sun's centre, degrees, at which each daypart but the first begins: sunrise and
/// sunset by 34′ of refraction and 16′ of semidiameter, then the twilights.
inline constexpr double daypartLimits[] = {-50.0 / 60, -6, -12, -18};

}  // namespace velmora
