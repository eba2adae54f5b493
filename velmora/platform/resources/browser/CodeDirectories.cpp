#include <velmora/platform/resources/ResourceLocation.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The handed files are laid out as an installation under the root is.
std::vector<std::filesystem::path> codeDirectories() { return {"/lib"}; }

}  // namespace velmora
