#include <velmora/service/PictureName.h>

namespace [[gnu::visibility("hidden")]] velmora {

std::string pictureName(std::int64_t number) {
  constexpr std::int64_t unknownPicture = -1;
  return number == unknownPicture ? "moon_0" : "IMG_" + std::to_string(number);
}

}  // namespace velmora
