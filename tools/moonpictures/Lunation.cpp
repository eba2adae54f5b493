#include "Lunation.h"

#include <array>

namespace moonpictures {

double elongationOf(int picture) {
  constexpr std::array principalPictures{0, 15, 27, 40, pictureCount};
  std::size_t quarter = 0;
  while (picture >= principalPictures[quarter + 1]) ++quarter;
  const double start = principalPictures[quarter];
  const double length = principalPictures[quarter + 1] - principalPictures[quarter];
  return 90 * (static_cast<double>(quarter) + (picture - start) / length);
}

}  // namespace moonpictures
