#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velmora {

/// The places in which one bundle's resources may lie.
struct ResourcePlaces {
  std::string environmentVariable;   ///< names the folder where it is set and not empty
  std::filesystem::path installed;   ///< the folder within an installation prefix: "share/velmora/resources"
  std::filesystem::path sourceTree;  ///< the folder in the tree that the library was built from
};

/// The folder that the environment names, whatever it holds; else the installed folder, found from where the
/// running code lies, so that an installation may be moved; else the source tree's.
std::filesystem::path resourceDirectory(const ResourcePlaces& places);

/// The folders in which the running code lies: the library's, then the program's. Implemented in posix/.
std::vector<std::filesystem::path> codeDirectories();

}  // namespace velmora
