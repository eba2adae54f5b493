#include <app/commands/Position.h>

#include <app/Days.h>
#include <app/Positions.h>

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

const Command& positionCommand() {
  static const Command command{
      "position",
      "where the Moon or the Sun stands, now or at a date and time",
      optionList({placeOptions(), {"date", "time", "body"}, outputOptions(), generalOptions()}),
      "",
      json,
      text};
  return command;
}

}  // namespace velmora::app
