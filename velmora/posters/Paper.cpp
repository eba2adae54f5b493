#include <velmora/posters/Paper.h>

#include <cmath>

namespace velmora {
namespace {

constexpr double pointsAnInch = 72, millimetresAnInch = 25.4;

Size millimetres(double width, double height) {
  constexpr double factor = pointsAnInch / millimetresAnInch;
  return {std::round(width * factor), std::round(height * factor)};
}

Size portrait(Paper paper) {
  switch (paper) {
    case Paper::a4:
      return millimetres(210, 297);
    case Paper::a3:
      return millimetres(297, 420);
    case Paper::letter:
      return {8.5 * pointsAnInch, 11 * pointsAnInch};
    case Paper::inches24x36:
      return {24 * pointsAnInch, 36 * pointsAnInch};
  }
  return {};
}

}  // namespace

Size paperSize(Paper paper, bool isLandscape) {
  const Size size = portrait(paper);
  return isLandscape ? Size{size.height, size.width} : size;
}

}  // namespace velmora
