#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::app {

/// How a command is asked for.
struct Command {
  std::string_view name;
  std::string_view summary;
  std::vector<std::string_view> options;  ///< the names of those it takes
  std::string_view positional = "";       ///< the option whose value stands without a name; empty for none
  std::string (*notes)() = nullptr;       ///< for the help: the positional option's values; none for most
  bool isForBatch = true;                 ///< whether a line of a batch may ask for it
  std::vector<std::string_view> required = {};  ///< those of the options that must be given

  bool takes(std::string_view option) const;
};

/// Every command, in the order of the help. The first is the one when none is named.
const std::vector<Command>& allCommands();

/// The command of that name; none if there is no such command.
const Command* findCommand(std::string_view name);

}  // namespace velmora::app
