#include <app/drawing/NightDrawing.h>

#include <app/answers/Days.h>
#include <app/drawing/PosterHosting.h>
#include <velmora/posters/NightPoster.h>

namespace velmora::app {

Size nightSize(const Query& query) { return paperSize(query.request.drawing.paper, true); }

std::shared_ptr<View> makeNight(const Query& query, Size size) {
  return filling(std::make_shared<NightPoster>(posterPlaceOf(query), dayOf(query), paperThemeOf(query)),
                 size);
}

}  // namespace velmora::app
