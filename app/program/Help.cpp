#include <app/program/Help.h>

#include <app/request/Options.h>
#include <app/text/TextTable.h>

namespace velmora::app {
namespace {

std::string optionsText(const Command& command) {
  TextTable table({"Options", ""});
  for (const Option& option : allOptions()) {
    if (!command.takes(option.name) || option.name == command.positional) continue;
    std::string spelling = "  --" + std::string(option.name);
    if (!option.valueName.empty()) spelling += " " + std::string(option.valueName);
    table.add({spelling, std::string(option.help)});
  }
  return table.text(false);
}

std::string positionalText(const Command& command) {
  if (command.positional.empty()) return "";
  const Option& option = *findOption(command.positional);
  const std::string accepted = command.notes ? "" : ", " + std::string(option.accepts);
  return std::string(option.valueName) + ": " + std::string(option.help) + accepted + "\n\n";
}

std::string commandsText() {
  TextTable table({"Commands", ""});
  for (const Command& command : allCommands())
    table.add({"  " + std::string(command.name), std::string(command.summary)});
  return table.text(false);
}

std::string programText() {
  return "Usage: velmora [COMMAND] [options]\n\nSun and Moon for any place on Earth.\n\n" + commandsText() +
         "\nvelmora COMMAND --help says what a command takes. Without a command it is " +
         std::string(allCommands().front().name) + ".\n\n";
}

std::string usageText(const Command& command) {
  std::string line = "Usage: velmora " + std::string(command.name);
  if (!command.positional.empty()) line += " " + std::string(findOption(command.positional)->valueName);
  return line + " [options]\n\nAnswers " + std::string(command.summary) + ".\n\n" + positionalText(command);
}

}  // namespace

std::string helpText(const Command& command) {
  const bool answersUnnamed = &command == &allCommands().front();
  const std::string notes = command.notes ? command.notes() + "\n" : "";
  return (answersUnnamed ? programText() : usageText(command)) + notes + optionsText(command);
}

}  // namespace velmora::app
