#include <app/program/Answer.h>

#include <app/answers/RequestScope.h>
#include <app/commands/Commands.h>
#include <app/drawing/DrawAnswer.h>
#include <app/request/Command.h>

namespace velmora::app {
namespace {

const Answer& answerTo(const Command& command) {
  const Answer* answer = findAnswer(command.name);
  return answer ? *answer : drawAnswer;
}

/// Asks while the process is as the request and its place want it.
template <typename Ask>
auto asked(const Request& request, bool boldHeadings, Ask ask) {
  const RequestScope scope(request);
  const Place place = placeOf(request.place);
  const ScopedDefaultTimeZone zone(place.zone);
  return ask(Query{request, place, scope.use24HourClock(), boldHeadings});
}

}  // namespace

Json jsonAnswer(const Request& request) { return asked(request, false, answerTo(*request.command).json); }

std::string printedAnswer(const Request& request, bool boldHeadings) {
  if (request.json) return jsonLine(jsonAnswer(request)) + "\n";
  return asked(request, boldHeadings, answerTo(*request.command).text);
}

}  // namespace velmora::app
