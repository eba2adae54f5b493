#pragma once

#include <cstddef>
#include <vector>

#include <velmora/platform/graphics/Path.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// A part of a row, as shares of its width.
struct Stretch {
  double from, to;
  friend bool operator==(const Stretch&, const Stretch&) = default;
};

/// Where the values, which lie evenly from one end of the row to the other, are below the level; between two
/// of them along a straight line.
std::vector<Stretch> stretchesBelow(const std::vector<double>& values, double level);
/// Where they are above it.
std::vector<Stretch> stretchesAbove(const std::vector<double>& values, double level);

/// Where the values pass zero, upwards or downwards.
std::vector<double> passages(const std::vector<double>& values, bool upward);

/// What rows that follow one another in time show, stretches or passages, joined from row to row.
template <class Part>
struct Rows {
  std::vector<std::vector<Part>> rows;
  std::vector<bool> isStep;  ///< whether nothing joins the row and the one before it
};

/// The areas of the stretches, rows below each other in the room. Stretches over each other become one
/// outline; one that the next row lacks tapers off, and at a step it ends as wide as it is.
Path ribbonsOf(const Rows<Stretch>& rows, Rect room);

/// Lines through passages of rows that follow one another, as far as a passage moves by no more than that
/// share of the width.
Path linesOf(const Rows<double>& rows, Rect room, double farthest);

}  // namespace velmora
