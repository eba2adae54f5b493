#include <velmora/Version.h>

namespace velmora {

const double VelmoraVersionNumber = VELMORA_VERSION_NUMBER;
const char VelmoraVersionString[] = VELMORA_VERSION_STRING;

}  // namespace velmora
