#include <app/request/Command.h>
#include <app/request/Options.h>
#include <velmora/Version.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using HelpTest = AppTest;

TEST_F(HelpTest, NamesEveryCommand) {
  const std::string help = answer({"--help"});
  for (const Command& command : allCommands())
    EXPECT_NE(help.find("\n  " + std::string(command.name) + " "), std::string::npos) << command.name;
}

TEST_F(HelpTest, OfACommandNamesEachOfItsOptionsAndNoOther) {
  for (const Command& command : allCommands()) {
    const std::string help = answer({std::string(command.name), "--help"});
    for (const Option& option : allOptions()) {
      const bool isListed = help.find("\n  --" + std::string(option.name) + " ") != std::string::npos;
      EXPECT_EQ(isListed, command.takes(option.name) && option.name != command.positional)
          << command.name << " " << option.name;
    }
  }
}

TEST_F(HelpTest, OfACommandBeginsWithWhatMustBeGiven) {
  const auto usage = [&](const std::string& command) { return linesOf(answer({command, "--help"})).at(0); };
  EXPECT_EQ(usage("phases"), "Usage: velmora phases --from YYYY-MM-DD --to YYYY-MM-DD [options]");
  EXPECT_EQ(usage("ics"), "Usage: velmora ics --from YYYY-MM-DD --to YYYY-MM-DD [options]");
  EXPECT_EQ(usage("draw"), "Usage: velmora draw VIEW --output FILE [options]");
  EXPECT_EQ(usage("elevation"), "Usage: velmora elevation DEGREES [options]");
  EXPECT_EQ(usage("year"), "Usage: velmora year [YYYY] [options]");
}

TEST_F(HelpTest, OfACommandAsksForNoMoreThanTheCommandDoes) {
  for (const Command& command : allCommands()) {
    const bool isComplete = command.required.empty() && command.positional != "degrees";
    if (command.name == "batch") continue;  // reads its standard input
    EXPECT_EQ(runProgram({std::string(command.name)}).status == 0, isComplete) << command.name;
  }
}

TEST_F(HelpTest, FitsThePage) {
  for (const Command& command : allCommands()) {
    for (const std::string& line : linesOf(answer({std::string(command.name), "--help"})))
      EXPECT_LE(charactersOf(line), 80U) << line;
  }
}

TEST_F(HelpTest, EveryOptionOfACommandExists) {
  for (const Command& command : allCommands()) {
    for (const auto name : command.options) EXPECT_NE(findOption(name), nullptr) << name;
  }
}

TEST_F(HelpTest, HasAShortSpelling) {
  EXPECT_EQ(answer({"-h"}), answer({"--help"}));
  EXPECT_EQ(answer({"month", "-h"}), answer({"month", "--help"}));
}

TEST_F(HelpTest, TheVersionIsTheLibrarys) {
  EXPECT_EQ(answer({"--version"}), std::string("velmora ") + VelmoraVersionString + "\n");
}

}  // namespace
}  // namespace velmora::app
