#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The next new moon, first quarter, full moon and last quarter.
const Command& nextCommand();

}  // namespace velmora::app
