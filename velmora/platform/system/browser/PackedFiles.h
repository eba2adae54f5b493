#pragma once

#include <span>
#include <string_view>

namespace [[gnu::visibility("hidden")]] velmora {

/// A file that is compiled into the program.
struct PackedFile {
  std::string_view path;
  std::string_view bytes;
};

/// The files compiled in: the shipped tables and texts. Made by resources/browser/pack-files.py.
std::span<const PackedFile> packedFiles();

}  // namespace velmora
