#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The eclipse that is visible on a day.
const Command& eclipseCommand();

}  // namespace velmora::app
