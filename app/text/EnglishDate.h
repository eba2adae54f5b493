#pragma once

#include <string>

#include <app/text/CivilTime.h>

namespace velmora::app {

/// The date in English by a Unicode pattern: "EEE", "MMMM yyyy".
std::string englishDate(CivilDate date, const std::string& pattern);

}  // namespace velmora::app
