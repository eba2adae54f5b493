#include <app/commands/Commands.h>

#include <app/answers/Days.h>
#include <app/answers/Positions.h>

namespace velmora::app {
namespace {

TimedPosition answer(const Query& query) {
  return positionAt(presentOf(query), query.request.body, query.place);
}

Json json(const Query& query) {
  Json position{{"body", bodyName(query.request.body)}};
  position.update(positionJson(answer(query)));
  return position;
}

std::string text(const Query& query) {
  return query.place.heading() + "Position of the " + bodyTitle(query.request.body) + "\n\n" +
         positionTable({answer(query)}, query);
}

}  // namespace

const Answer positionAnswer{json, text};

}  // namespace velmora::app
