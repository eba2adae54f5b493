#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>

/// Cairo's context, by its own name.
typedef struct _cairo cairo_t;

namespace velmora {

enum class PictureFormat { png, svg, pdf };

/// What went wrong with a picture, in words for people.
struct PictureError {
  /// What it was about.
  enum class Kind {
    size,     ///< a side outside 1 to 16384 pixels, or a vector picture of too many pixels
    drawing,  ///< the drawing library failed, out of memory included
    output,   ///< the file or stream could not be written
  };
  Kind kind;
  std::string message;
};

/// A picture of a size in points, or pages of that size in a PDF. A PNG has `scale` pixels a point; SVG and
/// PDF have one unit a point and stay vectors, in which images and what overlay paints are pixels. Neither
/// can clear: what is still blank needs no clearing, and a hole is painted with the colour that it shows,
/// where that is one opaque colour, of the background or of a rectangle below the group (overlay in the hole
/// then meets that colour), or is left out where the same path then fills it with one. Any other hole, as on
/// a translucent background or along a line or a text, makes pixels of the whole page.
///
/// The shapes of a PNG are kept as pixels between the pictures drawn in the same thread, so that a view drawn
/// again takes a fraction of its first time; whether a shape was kept makes no difference to the pixels.
///
/// Nothing here throws or ends the process: after an error drawing has no effect, and error() and the write
/// operations report it.
class CairoCanvas final : public Canvas {
 public:
  static constexpr std::int64_t maximumSide = 16384;  ///< pixels, for SVG and PDF points
  /// Of an SVG or PDF, where it cannot stay vector: those of its page and those that overlay paints.
  static constexpr std::int64_t maximumPixelsOfVector = 64'000'000;

  /// The background lies under everything and cannot be cleared.
  CairoCanvas(PictureFormat format, Size size, double scale = 1, Color background = Color::clear());

  /// Draws on a context of the host's, like one that a window system hands out: in its frame, from its origin
  /// on and within the size in points. Until the canvas is destroyed all of it lies on a layer of its own, so
  /// that what is cleared shows what the context held before; then the context's alone clip applies to it. It
  /// stays vector where the context's surface does. The context is to be left alone meanwhile, and is given
  /// back in the state it had, but for its path.
  CairoCanvas(cairo_t* context, Size size);

  ~CairoCanvas() override;

  /// A moved canvas takes the drawing along; what it leaves behind can only be destroyed or assigned to.
  CairoCanvas(CairoCanvas&&) noexcept;
  CairoCanvas& operator=(CairoCanvas&&) noexcept;

  /// Width and height: whole pixels of a PNG, points of SVG and PDF.
  Size size() const;

  /// The first error so far; none while all is well.
  std::optional<PictureError> error() const;

  /// Ends the picture, saves and groups left open included, and writes it. Draw nothing afterwards;
  /// write as often as needed. On a host's context there is no picture to write, which is an error.
  std::optional<PictureError> write(std::ostream& output);

  /// The same into a file, which is replaced in one step when the whole picture is written; on an error a
  /// file that was there stays as it was.
  std::optional<PictureError> writeFile(const std::filesystem::path& path);

  /// The pixels of a PNG drawn so far, without the background and the open groups: rows from the top, in each
  /// red, green, blue, alpha of 8 bits, premultiplied. Empty for other formats, on a host's context and after
  /// an error.
  std::vector<std::uint8_t> pixels() const;

  /// Whether an SVG or PDF that was written had to make pixels of a whole page, for a hole in it.
  bool becamePixels() const;

  /// The characters drawn so far, on any page, for which no installed face has a glyph.
  std::set<std::string> uncoveredCharacters() const;

  /// Ends the page of a PDF, saves and groups left open included, and begins the next one, as blank as the
  /// first was. Other formats have one page, so that on them it is an error, as on a host's context.
  void nextPage();

  void save() override;
  void restore() override;
  void setStrokeColor(const Color& color) override;
  void setFillColor(const Color& color) override;
  void setLineWidth(double width) override;
  void setLineDash(const std::vector<double>& lengths, double phase = 0) override;
  void setAlpha(double alpha) override;
  void setBlendMode(BlendMode mode) override;
  void translate(double dx, double dy) override;
  void rotate(double angle) override;
  void scale(double sx, double sy) override;
  void concat(const AffineTransform& transform) override;
  void clip(const Path& path) override;
  void fill(const Path& path) override;
  void stroke(const Path& path) override;
  void clearRect(Rect rect) override;
  void drawImage(const Image& image, Rect rect) override;
  void drawText(const AttributedText& text, Point topLeft) override;
  void drawGlyph(const AttributedText& text, std::size_t glyph, Point topLeft) override;
  void beginGroup(double alpha) override;
  void endGroup() override;

 private:
  class Drawing;

  static std::optional<PictureError> errorOf(const Drawing& drawing);
  void drawGlyphRange(const AttributedText& text, std::size_t first, std::size_t end, Point topLeft);

  std::unique_ptr<Drawing> _drawing;  ///< of the page that is drawn on
  std::vector<std::unique_ptr<Drawing>> _ended;
  std::optional<PictureError> _pageError;
};

}  // namespace velmora
