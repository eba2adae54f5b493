#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace [[gnu::visibility("hidden")]] velmora {

/// The places in which one bundle's resources may lie.
struct ResourcePlaces {
  std::string environmentVariable;  ///< names the folder where it is set and not empty
  std::filesystem::path installed;  ///< the folder within an installation prefix: "share/velmora/resources"
  std::filesystem::path lastPrefix{};  ///< a prefix to look under when all else fails; empty for none
};

/// The folder that the environment names, whatever it holds; else the installed folder, found from where the
/// running code lies, so that an installation may be moved; else the one under the last prefix; where there is
/// none, the one that would lie beside the library's folder.
std::filesystem::path resourceDirectory(const ResourcePlaces& places);

/// The folders in which the running code lies: the library's, then the program's. Implemented in posix/.
std::vector<std::filesystem::path> codeDirectories();

}  // namespace velmora
