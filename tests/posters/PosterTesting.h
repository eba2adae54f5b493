#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <velmora/posters/Poster.h>
#include <velmora/posters/Sheet.h>

namespace velmora::testing {

/// One locale of each language of the string tables.
extern const std::vector<std::string> posterLocales;

PosterPlace helsinki();
PosterPlace tromso();
PosterPlace sydney();
PosterPlace quito();
PosterPlace lordHowe();

/// The labels of the poster on paper of the size, in the current locale.
std::vector<Label> labelsOf(const Poster& poster, Size size);

/// Checks that each label lies within its room as drawn and on the paper, none over another, and that none
/// had to be set smaller than the share of its size.
void expectReadable(const std::vector<Label>& labels, Size size, double leastShare, const std::string& where);

/// Whether they have more in common than a line.
bool overlap(const Rect& a, const Rect& b);

/// Whether the one holds the other.
bool contains(const Rect& outer, const Rect& inner);

}  // namespace velmora::testing
