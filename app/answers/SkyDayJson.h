#pragma once

#include <app/answers/SkyDays.h>
#include <app/text/JsonText.h>

namespace velmora::app {

/// Writes the day as one object: the library's record of it, whose minutes and texts are its own, and the
/// events, all of which the day must have.
void writeSkyDay(JsonText& json, const SkyDay& day, const Query& query);

/// The days' events as rows of a table, and a row for each body that is up or down all day.
std::string skyDaysCsv(const std::vector<SkyDay>& days);

}  // namespace velmora::app
