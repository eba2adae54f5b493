#pragma once

#include <string>
#include <vector>

#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// A name of any length in few lines, and how they are set.
struct NameLines {
  std::vector<std::string> lines;
  LabelStyle style;

  /// Broken where its language allows, smaller where that is not enough, but no smaller than a label may be; where even
  /// that is not, it ends in "…".
  static NameLines of(const std::string& name, const LabelStyle& style, double width, std::size_t mostLines);
};

}  // namespace velmora
