#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <app/Json.h>
#include <app/place/Place.h>
#include <app/request/Request.h>

namespace velmora::app {

/// A request with everything that an answer is made from.
struct Query {
  const Request& request;
  const Place& place;
  bool use24HourClock;  ///< in texts for people
  bool boldHeadings;    ///< the same; drawings are in color then
};

/// A command: how it is asked for, and its answer for programs and for people. While it answers, the
/// process's default zone is the place's, and locale, clock form and present are the request's.
struct Command {
  std::string_view name;
  std::string_view summary;
  std::vector<std::string_view> options;  ///< the names of those it takes
  std::string_view positional;            ///< the option whose value stands without a name; empty for none
  Json (*json)(const Query&);
  std::string (*text)(const Query&);
  std::string (*notes)() = nullptr;  ///< for the help: the positional option's values; none for most

  bool takes(std::string_view option) const;
};

/// Every command, in the order of the help. The first answers when none is named.
const std::vector<const Command*>& allCommands();

/// The command of that name; none if there is no such command.
const Command* findCommand(std::string_view name);

/// The options of the groups and those named, as one list.
std::vector<std::string_view> optionList(const std::vector<std::vector<std::string_view>>& groups);

/// The options that all commands share.
const std::vector<std::string_view>& generalOptions();
/// The options that choose between JSON and text.
const std::vector<std::string_view>& outputOptions();
/// The options that say where.
const std::vector<std::string_view>& placeOptions();

}  // namespace velmora::app
