#include <app/commands/Batch.h>

#include <istream>
#include <limits>
#include <ostream>

#include <app/Answer.h>
#include <app/Errors.h>
#include <app/RequestScope.h>
#include <app/request/JsonRequest.h>

namespace velmora::app {
namespace {

constexpr std::size_t longestLine = 64 * 1024;

std::string errorLine(const Json& id, const std::string& message) {
  Json answer;
  answer["id"] = id;
  answer["error"] = message;
  return jsonLine(answer);
}

const std::string tooLong =
    "the line is too long; accepted: at most " + std::to_string(longestLine - 1) + " bytes";

bool isBlank(std::string_view line) { return line.find_first_not_of(" \t\r") == std::string_view::npos; }

/// The next line, without its end; of one that is too long the part that fits, the rest skipped.
struct Line {
  std::string_view text;
  bool isTooLong;
};

std::optional<Line> nextLine(std::istream& in, std::string& buffer) {
  in.getline(buffer.data(), static_cast<std::streamsize>(buffer.size()));
  auto count = static_cast<std::size_t>(in.gcount());
  if (in.bad() || (in.eof() && count == 0)) return std::nullopt;
  const bool isTooLong = in.fail();
  if (isTooLong) {
    in.clear();
    in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
  } else if (!in.eof()) {
    --count;  // the line's end
  }
  return Line{std::string_view(buffer).substr(0, count), isTooLong};
}

void answer(const Line& line, std::ostream& out) {
  if (line.isTooLong) {
    out << errorLine(nullptr, tooLong) << '\n';
  } else if (!isBlank(line.text)) {
    out << batchAnswer(line.text) << '\n';
  }
}

}  // namespace

std::string batchAnswer(std::string_view line) {
  Json id;
  try {
    const Json object = jsonFromLine(line);
    if (!object.is_object()) throw BadInput("the line is no JSON object; accepted: {\"op\": …, …}");
    if (const auto given = object.find("id"); given != object.end()) id = *given;
    Json answer;
    answer["id"] = id;
    answer["result"] = jsonAnswer(requestFromJson(object));
    return jsonLine(answer);
  } catch (const std::exception& error) {
    return errorLine(id, error.what());
  }
}

void serveBatch(const Request& request, std::istream& in, std::ostream& out) {
  const RequestScope scope(request);
  std::string buffer(longestLine, '\0');
  while (out) {
    if (in.rdbuf()->in_avail() <= 0) out.flush();  // whoever waits for an answer before asking on gets it
    const auto line = nextLine(in, buffer);
    if (!line && in.bad()) throw Failure("standard input cannot be read");
    if (!line) return;
    answer(*line, out);
  }
}

const Command& batchCommand() {
  static const Command command{"batch",          "JSON requests, one a line, with one line of JSON each",
                               generalOptions(), "",
                               nullptr,          nullptr};
  return command;
}

}  // namespace velmora::app
