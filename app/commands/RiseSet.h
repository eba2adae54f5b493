#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// Rise, set and twilight of each day of a range, or of one day.
const Command& riseSetCommand();

}  // namespace velmora::app
