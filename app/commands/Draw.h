#pragma once

#include <app/commands/Command.h>

namespace velmora::app {

/// A view as a picture in a file.
const Command& drawCommand();

}  // namespace velmora::app
