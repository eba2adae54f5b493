#pragma once

#include <string>

namespace velmora {

/// The files that a page has in place of a file system: the tables and texts compiled in, and what it hands over
/// besides, such as pictures. For the thread of the page alone.
class HandedFiles {
 public:
  /// Puts a file at that path ("/share/velmora/resources/images/IMG_3.png"), in place of any before it. What a
  /// bundle has already read there stays as it was.
  static void handOver(const std::string& path, std::string bytes);
};

}  // namespace velmora
