#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The principal events of a year, month by month.
const Command& yearCommand();

}  // namespace velmora::app
