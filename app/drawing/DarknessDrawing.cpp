#include <app/drawing/DarknessDrawing.h>

#include <app/answers/Days.h>
#include <app/drawing/PosterHosting.h>
#include <velmora/posters/DarknessPoster.h>

namespace velmora::app {

Size darknessSize(const Query& query) { return paperSize(query.request.drawing.paper); }

std::shared_ptr<View> makeDarkness(const Query& query, Size size) {
  const auto poster =
      std::make_shared<DarknessPoster>(posterPlaceOf(query), dayOf(query).year(), paperThemeOf(query));
  return filling(poster, size);
}

}  // namespace velmora::app
