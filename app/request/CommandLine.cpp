#include <app/request/CommandLine.h>

#include <algorithm>
#include <map>

#include <CLI/CLI.hpp>

#include <app/request/Command.h>
#include <app/request/Options.h>
#include <app/text/Errors.h>
#include <app/text/Spelling.h>

namespace velmora::app {
namespace {

/// Whether some command takes the option without its name.
bool isPositionalSomewhere(const Option& option) {
  const auto& commands = allCommands();
  return std::any_of(commands.begin(), commands.end(),
                     [&](const Command& command) { return command.positional == option.name; });
}

void declare(CLI::App& parser, const Option& option, bool isPositional) {
  std::string spelling = (isPositional ? "" : "--") + std::string(option.name);
  if (option.letter) spelling += std::string(",-") + option.letter;
  if (option.isSwitch()) {
    parser.add_flag(spelling);
  } else {
    parser.add_option(spelling)->type_size(1)->expected(1)->multi_option_policy(
        CLI::MultiOptionPolicy::TakeAll);
  }
}

/// A command takes its own options; in front of the command any may stand whose name all commands need.
void declareAll(CLI::App& parser) {
  parser.set_help_flag();
  parser.allow_extras();
  parser.require_subcommand(0, 1);
  for (const Option& option : allOptions()) {
    if (!isPositionalSomewhere(option)) declare(parser, option, false);
  }
  for (const Command& command : allCommands()) {
    CLI::App& subcommand = *parser.add_subcommand(std::string(command.name));
    for (const std::string_view name : command.options)
      declare(subcommand, *findOption(name), name == command.positional);
  }
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool looksLikeAnOption(const std::string& argument) {
  return argument.size() > 1 && argument.front() == '-' && !isDigit(argument[1]);
}

[[noreturn]] void refuse(const std::string& extra, const Command& command, bool commandWasNamed) {
  if (looksLikeAnOption(extra)) {
    std::vector<std::string> options;
    for (const auto name : command.options) {
      if (name != command.positional) options.push_back("--" + std::string(name));
    }
    throw BadInput(quote(extra) + " is not an option of " + std::string(command.name) + "; nearest: " +
                   nearest(extra, options) + "; all: velmora " + std::string(command.name) + " --help");
  }
  if (commandWasNamed)
    throw BadInput(std::string(command.name) + " does not take " + quote(extra) +
                   "; what it takes: velmora " + std::string(command.name) + " --help");
  std::string names;
  for (const Command& known : allCommands()) names += (names.empty() ? "" : ", ") + std::string(known.name);
  throw BadInput(quote(extra) + " is not a command; accepted: " + names + "; more: velmora --help");
}

/// What was given to each option, by its name, before and after the command.
using Values = std::map<std::string, std::vector<std::string>>;

void collect(const CLI::App& parser, Values& values) {
  for (const CLI::Option* option : parser.get_options()) {
    auto& list = values[option->get_single_name()];
    list.insert(list.end(), option->results().begin(), option->results().end());
  }
}

void readOption(const std::string& name, const std::vector<std::string>& values, Request& request) {
  const Command& command = *request.command;
  if (!command.takes(name)) throw BadInput("--" + name + " is not an option of " + std::string(command.name));
  const Option& option = *findOption(name);
  if (option.isSwitch() && values.front() != "true") throw BadInput("--" + name + " takes no value");
  if (!option.isSwitch() && values.size() > 1) throw BadInput("--" + name + " is given more than once");
  readOptionText(option, name == command.positional ? name : "--" + name, values.front(), request);
}

/// "--name=", an option that is given an empty value.
bool givesAnEmptyValue(const std::string& argument) {
  return argument.starts_with("--") && argument.find('=') == argument.size() - 1;
}

/// "-.5"
bool isNegativeFraction(const std::string& argument) {
  return argument.size() > 2 && argument.starts_with("-.") && isDigit(argument[2]);
}

/// In the order in which the parser takes them, the last first. It would take the word behind "--name=" for
/// the value, and a number that begins with its decimal point for an option.
std::vector<std::string> parserArguments(const std::vector<std::string>& arguments) {
  std::vector<std::string> list;
  for (const std::string& argument : arguments) {
    if (givesAnEmptyValue(argument)) {
      list.insert(list.end(), {argument.substr(0, argument.size() - 1), ""});
    } else {
      list.push_back(isNegativeFraction(argument) ? "-0" + argument.substr(1) : argument);
    }
  }
  std::reverse(list.begin(), list.end());
  return list;
}

/// What the parser could not place, but for the mark behind which nothing is an option.
std::vector<std::string> leftovers(const CLI::App& parser) {
  std::vector<std::string> list = parser.remaining(true);
  list.erase(std::remove(list.begin(), list.end(), "--"), list.end());
  return list;
}

}  // namespace

Request requestFromArguments(const std::vector<std::string>& arguments) {
  CLI::App parser;
  declareAll(parser);
  try {
    parser.parse(parserArguments(arguments));
    const auto named = parser.get_subcommands();
    Request request;
    request.command = named.empty() ? &allCommands().front() : findCommand(named.front()->get_name());
    const auto extras = leftovers(parser);
    // An unknown option goes first: the word behind it may have been taken for something else.
    const auto unknown = std::find_if(extras.begin(), extras.end(), looksLikeAnOption);
    if (unknown != extras.end()) refuse(*unknown, *request.command, !named.empty());
    Values values;
    collect(parser, values);
    if (!named.empty()) collect(*named.front(), values);
    for (const auto& [name, given] : values) {
      if (!given.empty()) readOption(name, given, request);
    }
    if (!extras.empty()) refuse(extras.front(), *request.command, !named.empty());
    return request;
  } catch (const CLI::ArgumentMismatch&) {
    throw BadInput(quote(arguments.back()) + " needs a value");
  } catch (const CLI::ParseError& error) {
    throw BadInput(quote(error.what()));
  }
}

}  // namespace velmora::app
