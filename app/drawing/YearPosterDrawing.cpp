#include <app/drawing/YearPosterDrawing.h>

#include <app/answers/Days.h>
#include <app/drawing/PosterHosting.h>
#include <velmora/posters/YearPoster.h>

namespace velmora::app {

Size yearPosterSize(const Query& query) {
  return paperSize(query.request.drawing.paper, query.request.drawing.isLandscape);
}

std::shared_ptr<View> makeYearPoster(const Query& query, Size size) {
  const DrawingRequest& drawing = query.request.drawing;
  const YearPosterStyle style = {.theme = paperThemeOf(query),
                                 .alignsWeekdays = drawing.alignsWeekdays,
                                 .isTilted = drawing.isTilted,
                                 .firstWeekday = static_cast<unsigned>(Locale::current().firstWeekday() - 1)};
  return filling(std::make_shared<YearPoster>(posterPlaceOf(query), dayOf(query).year(), style), size);
}

}  // namespace velmora::app
