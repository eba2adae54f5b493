#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// The day at a glance: the Moon's phase and shape, the next new and full moon, an eclipse, rise, set and
/// twilight, and where Sun and Moon stand.
const Command& todayCommand();

}  // namespace velmora::app
