#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The day at a glance: rise, set and twilight, and where Sun and Moon stand.
const Command& todayCommand();

}  // namespace velmora::app
