#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The phases and visible eclipses of a range of days as a calendar for other programs.
const Command& icsCommand();

}  // namespace velmora::app
