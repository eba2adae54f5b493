#pragma once

#include <string>
#include <vector>

namespace velmora::app {

/// The width of a drawn disc in columns of a terminal; it has half as many lines, and so looks round.
constexpr int discColumns = 20;

/// The Moon's disc as lines of braille letters: the lit part full of dots, of the dark part the limb alone.
/// The terminator is half an ellipse. `litFraction`: of the area, 0 to 1, on the right or the left side.
/// `inColor`: the lit part bright, the limb grey, by the terminal's own colours.
std::vector<std::string> moonDisc(double litFraction, bool isLitOnTheRight, bool inColor);

}  // namespace velmora::app
