#include <app/drawing/Picture.h>

#include <algorithm>
#include <sstream>

#include <app/answers/Days.h>
#include <app/answers/PhaseYear.h>
#include <app/answers/ShippedData.h>
#include <app/drawing/Colours.h>
#include <app/drawing/Hosting.h>
#include <app/drawing/OutputFile.h>
#include <app/drawing/Title.h>
#include <app/drawing/ViewMaking.h>
#include <app/request/DrawingOptions.h>
#include <app/text/Errors.h>
#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/system/Log.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/AlmanacRecords.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>

namespace velmora::app {
namespace {

constexpr double leastTitledWidth = 80, leastTitledHeight = 2 * Title::height;

class ScopedTablet {
 public:
  explicit ScopedTablet(bool isTablet) : _former(SettingsModel::isIPad()) {
    SettingsModel::setIsIPad(isTablet);
  }
  ~ScopedTablet() { SettingsModel::setIsIPad(_former); }
  ScopedTablet(const ScopedTablet&) = delete;
  ScopedTablet& operator=(const ScopedTablet&) = delete;

 private:
  bool _former;
};

std::optional<LayoutDirection> forcedDirection(const DrawingRequest& drawing) {
  return drawing.isRightToLeft ? std::optional(LayoutDirection::rightToLeft) : std::nullopt;
}

const DrawableView& viewOf(const Request& request) {
  const DrawableView* view = request.drawing.view;
  if (!view) throw BadInput("the view is missing; accepted: " + std::string(viewNames()));
  const auto contains = [](const auto& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  for (const std::string_view name : request.given) {
    if (!contains(viewOptions(), name) || contains(view->options, name)) continue;
    std::string accepted;
    for (const auto& names : {view->options, pictureOptions()})
      for (const auto known : names) accepted += (accepted.empty() ? "" : ", ") + std::string(known);
    throw BadInput("draw " + std::string(view->name) + " does not take " + std::string(name) +
                   "; accepted of a picture's options: " + accepted);
  }
  return *view;
}

/// The "#" may be left out, as a shell takes what begins with it for a comment.
Color backgroundOf(const DrawingRequest& drawing) {
  if (!drawing.background) return VelmoraTheme::calendarTheme()->backgroundColor;
  const std::string& text = *drawing.background;
  if (text == "none") return Color::clear();
  if (text == "black") return Color::black();
  if (text == "white") return Color::white();
  const auto color = Color::fromText(text.starts_with('#') ? text : "#" + text);
  if (!color)
    throw BadInput("background " + quote(text) +
                   " is not a colour; accepted: " + std::string(acceptedColors));
  return *color;
}

/// Checks the tables of the year and of its neighbours, whose last and first phases reach into it.
void checkTables(std::chrono::year year) {
  wholeTable(year);
  for (const auto month : {std::chrono::January, std::chrono::December}) checkNeighbour(year / month);
}

void select(const Query& query, const DrawableView& view) {
  if (view.needsTables) checkCovered("date", dayOf(query));
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  service.setRiseSetSource(AlmanacRecords::riseSetSource(query.place.height));
  service.setEclipseSource(AlmanacRecords::eclipseSource(query.place.height));
  service.SetSelectedLocation(std::make_shared<GeoLocationData>(query.place.location), presentOf(query));
  if (view.needsTables) checkTables(dayOf(query).year());
  if (const auto check = makingOf(view).checkResources) check(query);
}

/// Where title and view lie in the picture, in points.
struct Layout {
  Size size;
  std::optional<Rect> title;
  Rect view;
};

/// Measures texts as on a phone. What views make once per process is made again for the drawing's own device.
Size usualSize(const Query& query, const DrawableView& view) {
  Size size;
  {
    const ScopedDevice phone({.screenWidth = phoneWidth});
    size = makingOf(view).usualSize(query);
  }
  ProcessValues::resetAll();
  return size;
}

/// A picture that is too small for a title has none.
Layout layoutOf(const Query& query, const DrawableView& view) {
  const DrawingRequest& drawing = query.request.drawing;
  const bool isAboveView = view.freeTop == 0;
  const double titleHeight = isAboveView ? Title::height : view.freeTop;
  const bool wantsTitle = drawing.hasTitle && !view.titleFields.empty();

  Size size = drawing.size ? *drawing.size : usualSize(query, view);
  if (!drawing.size && wantsTitle && isAboveView) size.height += titleHeight;
  if (!wantsTitle || size.width < leastTitledWidth || size.height < leastTitledHeight)
    return {size, std::nullopt, {0, 0, size.width, size.height}};
  const double top = isAboveView ? titleHeight : 0;
  return {size, Rect{0, 0, size.width, titleHeight}, {0, top, size.width, size.height - top}};
}

/// Keeps a request from taking all the memory there is.
void checkPixels(PictureFormat format, Size size, double scale) {
  constexpr double mostPixels = 64e6;
  if (format == PictureFormat::png && size.width * scale * size.height * scale > mostPixels)
    throw BadInput("the picture would have more than 64 million pixels; give a smaller size or scale");
}

void check(const std::optional<PictureError>& error, const std::string& beginning = "") {
  if (!error) return;
  if (error->kind == PictureError::Kind::size) throw BadInput(error->message);
  throw Failure(beginning + error->message);
}

Title titleOf(const DrawableView& view, const Query& query) {
  const auto note = makingOf(view).note;
  return {presentOf(query), view.titleFields, query.place, note ? note(query) : ""};
}

void draw(CairoCanvas& canvas, const Layout& layout, const DrawableView& view, const Query& query,
          const Color& background) {
  if (layout.title) titleOf(view, query).draw(canvas, *layout.title, titleColoursOn(background));
  canvas.save();
  canvas.clip(Path::rect(layout.view));
  canvas.translate(layout.view.x, layout.view.y);
  makingOf(view).make(query, layout.view.size())->render(canvas);
  canvas.restore();
}

void drawPages(CairoCanvas& canvas, const std::vector<std::shared_ptr<View>>& pages) {
  for (const auto& page : pages) {
    if (page != pages.front()) canvas.nextPage();
    page->render(canvas);
  }
}

void warnOfUncovered(const CairoCanvas& canvas) {
  std::string characters;
  for (const std::string& character : canvas.uncoveredCharacters()) characters += character;
  if (!characters.empty()) Log::write("velmora: no installed font has " + quote(characters));
}

/// The bytes of a picture that goes to standard output.
std::string bytesOf(CairoCanvas& canvas) {
  std::ostringstream bytes;
  check(canvas.write(bytes));
  return bytes.str();
}

void write(CairoCanvas& canvas, const OutputFile& file) {
  check(canvas.writeFile(file.path), "output " + quote(file.name) + ": ");
}

void warnOfPixels(const CairoCanvas& canvas) {
  if (canvas.becamePixels())
    Log::write(
        "velmora: the page is made of pixels: on a translucent background its holes have no other form");
}

}  // namespace

Picture drawPicture(const Query& query) {
  ProcessValues::resetAll();  // those of the request before
  const DrawingRequest& drawing = query.request.drawing;
  const DrawableView& view = viewOf(query.request);
  const OutputFile file = outputFileOf(drawing);
  const Color background = backgroundOf(drawing);
  select(query, view);

  const ScopedTablet tablet(drawing.isTablet);
  const ScopedColours colours(background);
  const Layout layout = layoutOf(query, view);
  const ScopedDevice device({layout.size.width, drawing.scale, forcedDirection(drawing)});
  checkPixels(file.format, layout.size, drawing.scale);
  CairoCanvas canvas(file.format, layout.size, drawing.scale, background);
  check(canvas.error());
  const auto makePages = makingOf(view).makePages;
  if (makePages != nullptr && file.format == PictureFormat::pdf) {
    drawPages(canvas, makePages(query, layout.size));
  } else {
    draw(canvas, layout, view, query, background);
  }
  warnOfUncovered(canvas);
  std::string bytes;
  if (file.isStandardOutput()) {
    bytes = bytesOf(canvas);
  } else {
    write(canvas, file);
  }
  warnOfPixels(canvas);
  return {view, file.name, canvas.size(), file.format == PictureFormat::png ? "pixels" : "points", bytes};
}

}  // namespace velmora::app
