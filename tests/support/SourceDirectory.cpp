#include <tests/support/SourceDirectory.h>

namespace velmora {

std::string sourceDirectory() { return VELMORA_SOURCE_DIR; }

}  // namespace velmora
