#include "tests/app/AppTest.h"

#include <sstream>

void nlohmann::PrintTo(const ordered_json& value, std::ostream* out) {
  *out << velmora::app::jsonLine(value);
}

namespace velmora::app {

Outcome runProgram(const std::vector<std::string>& arguments, const std::string& input) {
  std::istringstream in(input);
  std::ostringstream out, err;
  const int status = run(arguments, in, out, err);
  return {status, out.str(), err.str()};
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::size_t charactersOf(const std::string& text) {
  std::size_t count = 0;
  for (const char byte : text) count += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U ? 1 : 0;
  return count;
}

std::string AppTest::answer(const std::vector<std::string>& arguments) {
  const Outcome outcome = runProgram(arguments);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  return outcome.out;
}

Json AppTest::json(std::vector<std::string> arguments) {
  arguments.emplace_back("--json");
  return jsonFromText(answer(arguments));
}

}  // namespace velmora::app
