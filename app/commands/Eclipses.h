#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The eclipses of a year, and which of them are visible.
const Command& eclipsesCommand();

}  // namespace velmora::app
