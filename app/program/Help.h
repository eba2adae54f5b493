#pragma once

#include <string>

#include <app/request/Command.h>
#include <app/request/DrawableView.h>

namespace velmora::app {

/// What the command answers and the options it takes; of the command that answers when none is named also
/// what the program is and its other commands. Of a view that is drawn, the options that this view takes.
std::string helpText(const Command& command, const DrawableView* view = nullptr);

}  // namespace velmora::app
