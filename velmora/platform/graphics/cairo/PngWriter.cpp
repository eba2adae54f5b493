#include <velmora/platform/graphics/cairo/PngWriter.h>

#include <png.h>

#include <csetjmp>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoColor.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>
#include <velmora/platform/graphics/cairo/CairoImage.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

// Without filters flat areas, most of what a view draws, take no more room at level 2 than with them at
// zlib's usual level 6, and a quarter of the time.
constexpr int compressionLevel = 2;
constexpr int filters = PNG_FILTER_NONE;
constexpr int bitsPerChannel = 8;
constexpr unsigned opaque = 255;

using Row = std::vector<std::uint8_t>;  ///< red, green, blue, alpha of each pixel

void stop(png_structp png, png_const_charp) { png_longjmp(png, 1); }

void ignoreWarning(png_structp, png_const_charp) {}

void writeBytes(png_structp png, png_bytep bytes, std::size_t count) {
  auto& output = *static_cast<std::ostream*>(png_get_io_ptr(png));
  output.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count));
  if (!output) png_error(png, "");
}

void flush(png_structp) {}

struct PngDeleter {
  void operator()(png_struct* png) const { png_destroy_write_struct(&png, nullptr); }
};
using Png = std::unique_ptr<png_struct, PngDeleter>;

/// A PNG keeps colours as they are before alpha scales them.
void undoPremultiplication(Row& row) {
  for (std::size_t pixel = 0; pixel < row.size(); pixel += 4) {
    const unsigned alpha = row[pixel + 3];
    if (alpha == 0 || alpha == opaque) continue;
    for (std::size_t channel = pixel; channel < pixel + 3; ++channel) {
      row[channel] = static_cast<std::uint8_t>((row[channel] * opaque + alpha / 2) / alpha);
    }
  }
}

/// The pixels over the background, to be read row by row from the top.
class Rows {
 public:
  Rows(cairo_surface_t* pixels, const Color& background)
      : width(cairo_image_surface_get_width(pixels)),
        height(cairo_image_surface_get_height(pixels)),
        _pixels(pixels),
        _background(background),
        _band(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, bandHeight)),
        _context(cairo_create(_band.get())),
        _row(static_cast<std::size_t>(width) * 4) {}

  const int width, height;

  cairo_status_t status() const { return cairo_status(_context.get()); }

  Row& read(int y) {
    if (y % bandHeight == 0) composeFrom(y);
    copyRow(_band.get(), y % bandHeight, _row.data());
    return _row;
  }

 private:
  static constexpr int bandHeight = 32;  // single rows take longer

  void composeFrom(int y) {
    cairo_set_operator(_context.get(), CAIRO_OPERATOR_SOURCE);
    setSource(_context.get(), _background);
    cairo_paint(_context.get());
    cairo_set_operator(_context.get(), CAIRO_OPERATOR_OVER);
    cairo_set_source_surface(_context.get(), _pixels, 0, -y);
    cairo_paint(_context.get());
    cairo_surface_flush(_band.get());
  }

  cairo_surface_t* _pixels;
  Color _background;
  CairoSurface _band;
  CairoContext _context;
  Row _row;
};

bool isOpaque(const Row& row) {
  for (std::size_t alpha = 3; alpha < row.size(); alpha += 4) {
    if (row[alpha] != opaque) return false;
  }
  return true;
}

bool areOpaque(Rows& rows) {
  for (int y = 0; y < rows.height; ++y) {
    if (!isOpaque(rows.read(y))) return false;
  }
  return true;
}

/// Whether all went well. libpng leaves by a jump on an error, so nothing in here may need a destructor.
bool writeRows(png_struct* png, png_info* info, Rows& rows, int colorType) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  png_set_compression_level(png, compressionLevel);
  png_set_filter(png, PNG_FILTER_TYPE_BASE, filters);
  png_set_IHDR(png, info, static_cast<png_uint_32>(rows.width), static_cast<png_uint_32>(rows.height),
               bitsPerChannel, colorType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
               PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  if (colorType == PNG_COLOR_TYPE_RGB) png_set_filler(png, 0, PNG_FILLER_AFTER);  // leaves alpha out
  for (int y = 0; y < rows.height; ++y) {
    Row& row = rows.read(y);
    undoPremultiplication(row);
    png_write_row(png, row.data());
  }
  png_write_end(png, info);
  return true;
}

}  // namespace

cairo_status_t writePng(cairo_surface_t* pixels, const Color& background, std::ostream& output) {
  Rows rows(pixels, background);
  if (rows.status() != CAIRO_STATUS_SUCCESS) return rows.status();
  const Png png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, stop, ignoreWarning));
  png_info* info = png ? png_create_info_struct(png.get()) : nullptr;
  if (info == nullptr) return CAIRO_STATUS_NO_MEMORY;
  png_set_write_fn(png.get(), &output, writeBytes, flush);
  const bool hasAlpha = background.alpha < 1 && !areOpaque(rows);
  const bool isWritten =
      writeRows(png.get(), info, rows, hasAlpha ? PNG_COLOR_TYPE_RGBA : PNG_COLOR_TYPE_RGB);
  png_destroy_info_struct(png.get(), &info);
  if (rows.status() != CAIRO_STATUS_SUCCESS) return rows.status();
  if (isWritten) return CAIRO_STATUS_SUCCESS;
  return output ? CAIRO_STATUS_PNG_ERROR : CAIRO_STATUS_WRITE_ERROR;
}

}  // namespace velmora
