#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// Where the Sun or the Moon stands at one moment.
const Command& positionCommand();

}  // namespace velmora::app
