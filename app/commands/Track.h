#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The path of the Sun or the Moon through a day, hour by hour.
const Command& trackCommand();

}  // namespace velmora::app
