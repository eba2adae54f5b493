#include <app/drawing/DrawAnswer.h>

#include <app/drawing/Drawing.h>
#include <app/text/Errors.h>
#include <app/text/Utf8.h>

namespace velmora::app {
namespace {

/// A whole number where it is one.
Json number(double side) {
  const auto whole = static_cast<std::int64_t>(side);
  return static_cast<double>(whole) == side ? Json(whole) : Json(side);
}

Json json(const Query& query) {
  if (query.request.drawing.output == "-")
    throw BadInput("json and the output - exclude each other: both would be standard output");
  const Picture picture = drawing().picture(query);
  return {{"view", std::string(picture.view.name)},
          {"output", picture.file},
          {"width", number(picture.size.width)},
          {"height", number(picture.size.height)}};
}

std::string text(const Query& query) {
  const Picture picture = drawing().picture(query);
  if (!picture.bytes.empty()) return picture.bytes;
  return "Wrote " + printable(picture.file) + ", " + number(picture.size.width).dump() + " x " +
         number(picture.size.height).dump() + " " + picture.unit + "\n";
}

}  // namespace

const Answer drawAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
