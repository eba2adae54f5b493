#pragma once

#include <string>

#include <app/request/Command.h>

namespace velmora::app {

/// What the command answers and the options it takes; of the command that answers when none is named also
/// what the program is and its other commands.
std::string helpText(const Command& command);

}  // namespace velmora::app
