#include <app/Answer.h>

#include <app/RequestScope.h>
#include <app/commands/Command.h>

namespace velmora::app {

Json jsonAnswer(const Request& request) {
  const RequestScope scope(request);
  return request.command->json({request, scope.place(), scope.use24HourClock(), false});
}

std::string printedAnswer(const Request& request, bool boldHeadings) {
  if (request.json) return jsonLine(jsonAnswer(request)) + "\n";
  const RequestScope scope(request);
  return request.command->text({request, scope.place(), scope.use24HourClock(), boldHeadings});
}

}  // namespace velmora::app
