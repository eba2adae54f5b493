#pragma once

#include <filesystem>
#include <optional>

#include <app/place/Place.h>

namespace velmora::app {

/// The file that holds the user's own place: velmora/place.json in $XDG_CONFIG_HOME, without it in .config of
/// the home folder; none without either.
std::optional<std::filesystem::path> ownPlaceFile();

/// The user's own place, else the city of the process's time zone, else the library's default place. A file
/// that is damaged is named in the log and passed over.
UsualPlace usualPlace();

/// Keeps the place as the user's own. Throws Failure if it cannot be written.
void keepOwnPlace(const Place& place);

/// Drops it; whether there was one. Throws Failure if its file cannot be removed.
bool forgetOwnPlace();

}  // namespace velmora::app
