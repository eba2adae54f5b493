#include <velmora/platform/graphics/cairo/PngWriter.h>

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <span>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoColor.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>
#include <velmora/platform/graphics/cairo/CairoImage.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

// Without filters flat areas, most of what a view draws, take no more room at level 2 than with them at
// zlib's usual level 6, and a quarter of the time.
constexpr int compressionLevel = 2;
// zlib moves its tables on with every 32 KB: small ones take a fifth less of its work, and no more room in
// the file.
constexpr int memoryLevel = 6;
constexpr int filters = PNG_FILTER_NONE;
constexpr int bitsPerChannel = 8;
constexpr unsigned opaque = 255;

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

constexpr unsigned alphaOf(std::uint32_t pixel) { return pixel >> 24; }

/// Red, green and blue of opaque pixels.
void writeColors(std::span<const std::uint32_t> pixels, std::uint8_t* rgb) {
  for (const std::uint32_t pixel : pixels) {
    *rgb++ = static_cast<std::uint8_t>(pixel >> 16);
    *rgb++ = static_cast<std::uint8_t>(pixel >> 8);
    *rgb++ = static_cast<std::uint8_t>(pixel);
  }
}

/// Red, green, blue and alpha. A PNG keeps colours as they are before alpha scales them.
void writeColorsAndAlpha(std::span<const std::uint32_t> pixels, std::uint8_t* rgba) {
  for (const std::uint32_t pixel : pixels) {
    const unsigned alpha = alphaOf(pixel);
    const bool isScaled = alpha != 0 && alpha != opaque;
    for (const unsigned shift : {16U, 8U, 0U}) {
      const unsigned color = pixel >> shift & 0xFF;
      *rgba++ = static_cast<std::uint8_t>(isScaled ? (color * opaque + alpha / 2) / alpha : color);
    }
    *rgba++ = static_cast<std::uint8_t>(alpha);
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
        _bytes(static_cast<std::size_t>(width) * 4) {}

  const int width, height;

  cairo_status_t status() const { return cairo_status(_context.get()); }

  std::span<const std::uint32_t> read(int y) {
    if (y % bandHeight == 0) composeFrom(y);
    return rowOf(_band.get(), y % bandHeight);
  }

  /// The row as a PNG keeps it.
  const std::uint8_t* read(int y, int colorType) {
    const auto write = colorType == PNG_COLOR_TYPE_RGB ? writeColors : writeColorsAndAlpha;
    write(read(y), _bytes.data());
    return _bytes.data();
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
  std::vector<std::uint8_t> _bytes;
};

bool isOpaque(std::span<const std::uint32_t> row) {
  return std::all_of(row.begin(), row.end(), [](std::uint32_t pixel) { return alphaOf(pixel) == opaque; });
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
  png_set_compression_mem_level(png, memoryLevel);
  png_set_filter(png, PNG_FILTER_TYPE_BASE, filters);
  png_set_IHDR(png, info, static_cast<png_uint_32>(rows.width), static_cast<png_uint_32>(rows.height),
               bitsPerChannel, colorType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
               PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  for (int y = 0; y < rows.height; ++y) png_write_row(png, rows.read(y, colorType));
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
