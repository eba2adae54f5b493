#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// When the Sun or the Moon reaches an elevation within 24 hours.
const Command& elevationCommand();

}  // namespace velmora::app
