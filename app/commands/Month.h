#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The phases of a month, day by day, and its principal events.
const Command& monthCommand();

}  // namespace velmora::app
