#include <app/program/Batch.h>

#include <filesystem>
#include <istream>
#include <limits>
#include <ostream>
#include <system_error>

#include <app/answers/RequestScope.h>
#include <app/program/Answer.h>
#include <app/request/Command.h>
#include <app/request/JsonRequest.h>
#include <app/text/Errors.h>
#include <velmora/platform/system/HeldSignals.h>

namespace velmora::app {
namespace {

constexpr std::size_t longestLine = 64 * 1024, writtenAtOnce = 64 * 1024;  // bytes

/// `id` is written as it is, so it must be JSON.
std::string errorLine(std::string_view id, const std::string& message) {
  return "{\"id\":" + std::string(id) + ",\"error\":" + jsonLine(message) + "}";
}

const std::string tooLong =
    "the line is too long; accepted: at most " + std::to_string(longestLine - 1) + " bytes";

bool isBlank(std::string_view line) { return line.find_first_not_of(" \t\r") == std::string_view::npos; }

/// A line without its line feed. If it is too long, the text is its beginning and the rest has been skipped.
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

/// The answer with its line feed; nothing for a blank line.
std::string answerTo(const Line& line, const PictureFolder& folder) {
  if (line.isTooLong) return errorLine("null", tooLong) + '\n';
  return isBlank(line.text) ? "" : batchAnswer(line.text, folder) + '\n';
}

bool isPicture(const Request& request) { return request.command->name == "draw"; }

/// Lines may come from people who must not touch the files of whoever runs the program.
void keepWithin(const PictureFolder& folder, Request& request) {
  if (!folder) throw BadInput("pictures are not drawn here; accepted by batch --pictures FOLDER");
  request.drawing.folder = folder;
}

void checkIsFolder(const PictureFolder& folder) {
  std::error_code error;
  if (folder && !std::filesystem::is_directory(*folder, error))
    throw BadInput("--pictures " + quote(*folder) + " is no folder; accepted: one that exists");
}

/// Signals are held until all lines are written, so that none is cut when one ends the program.
void writeLines(std::string& lines, std::ostream& out) {
  const HeldSignals untilWritten;
  out << lines << std::flush;
  lines.clear();
}

}  // namespace

std::string batchAnswer(std::string_view line, const PictureFolder& folder) {
  std::string_view id = "null";
  try {
    const Json object = jsonFromLine(line);
    if (!object.is_object()) throw BadInput("the line is no JSON object; accepted: {\"op\": …, …}");
    if (object.contains("id")) id = memberText(line, "id");
    Request request = requestFromJson(object);
    if (isPicture(request)) keepWithin(folder, request);
    return "{\"id\":" + std::string(id) + ",\"result\":" + jsonAnswer(request) + "}";
  } catch (const std::exception& error) {
    return errorLine(id, messageOf(error));
  }
}

void serveBatch(const Request& request, std::istream& in, std::ostream& out) {
  const RequestScope scope(request);
  checkIsFolder(request.drawing.folder);
  std::string buffer(longestLine, '\0'), answers;
  while (out) {
    const bool isAwaited = in.rdbuf()->in_avail() <= 0;  // whoever asks on only when answered gets the answer
    if (isAwaited || answers.size() >= writtenAtOnce) writeLines(answers, out);
    const auto line = nextLine(in, buffer);
    if (!line) break;
    answers += answerTo(*line, request.drawing.folder);
  }
  writeLines(answers, out);
  if (in.bad()) throw Failure("standard input cannot be read");
}

}  // namespace velmora::app
