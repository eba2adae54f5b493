#pragma once

#include <memory>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>

namespace velmora::app {

/// The disc of the selected day, as large as fits.
std::shared_ptr<View> makeDisc(const Query& query, Size size);

std::shared_ptr<View> makeMonth(const Query& query, Size size);

/// The full moons of the selected day's year, or the new moons.
std::shared_ptr<View> makeYear(const Query& query, Size size);

/// Throws a Failure where a picture of the selected month's Moon cannot be read.
void checkMoonPictures(const Query&);

/// Throws a Failure where the picture of the full Moon cannot be read.
void checkFullMoonPicture(const Query&);

/// The same, for a request that wants it.
void checkPictureOfDisc(const Query& query);

/// Throws a Failure where an icon of rise or set cannot be read.
void checkIcons(const Query&);

/// The list; where it is higher than the size, the part with the selected day.
std::shared_ptr<View> makeRiseSet(const Query& query, Size size);

}  // namespace velmora::app
