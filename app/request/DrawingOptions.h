#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <app/request/DrawableView.h>
#include <app/request/Options.h>

namespace velmora::app {

/// The options of pictures, part of `allOptions`.
std::vector<Option> drawingOptions();

/// The names of those that every picture takes.
const std::vector<std::string_view>& pictureOptions();

/// The names of those that only some views take.
const std::vector<std::string_view>& viewOptions();

/// Whether only views take the option that this one is not among.
bool isOfOtherViews(std::string_view option, const DrawableView& view);

/// What is accepted as a colour.
constexpr std::string_view acceptedColors = "RRGGBB, RRGGBBAA, black, white or none";

/// The calendars, for the help.
std::string calendarNotes();

/// The views and which of them take which of those, for the help.
std::string viewNotes();

}  // namespace velmora::app
