#include <app/program/Answer.h>

#include <app/answers/RequestScope.h>
#include <app/commands/Commands.h>
#include <app/drawing/DrawAnswer.h>
#include <app/place/OwnPlace.h>
#include <app/request/Command.h>
#include <app/text/Errors.h>

namespace velmora::app {
namespace {

const Answer& answerTo(const Command& command) {
  const Answer* answer = findAnswer(command.name);
  return answer ? *answer : drawAnswer;
}

/// Asks while the process is as the request and its place want it.
template <typename Ask>
std::string asked(const Request& request, const UsualPlace& usual, bool boldHeadings, Ask ask) {
  const RequestScope scope(request);
  const Place place = placeOf(request.place, usual);
  const ScopedDefaultTimeZone zone(place.zone);
  return ask(Query{request, place, scope.use24HourClock(), boldHeadings});
}

UsualPlace usualPlaceFor(const Request& request) {
  return request.place.isSomewhere() ? UsualPlace() : usualPlace();
}

}  // namespace

std::string jsonAnswer(const Request& request) {
  return asked(request, {}, false, answerTo(*request.command).json);
}

std::string printedAnswer(const Request& request, bool boldHeadings) {
  if (request.json && request.csv) throw BadInput("csv and json exclude each other: give one of the two");
  const Answer& answer = answerTo(*request.command);
  const UsualPlace usual = usualPlaceFor(request);
  if (request.json) return asked(request, usual, false, answer.json) + "\n";
  return asked(request, usual, boldHeadings, request.csv ? answer.csv : answer.text);
}

}  // namespace velmora::app
