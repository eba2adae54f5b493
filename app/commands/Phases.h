#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The principal events of a range of days.
const Command& phasesCommand();

}  // namespace velmora::app
