#include <velmora/platform/ui/VisualFormat.h>

#include <charconv>
#include <utility>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

// Reads a format from its beginning; each part is taken off as it is read.
class FormatReader {
 public:
  explicit FormatReader(std::string_view format) : _rest(format) {}

  bool atEnd() const { return _rest.empty(); }

  bool take(std::string_view token) {
    if (_rest.substr(0, token.size()) != token) return false;
    _rest.remove_prefix(token.size());
    return true;
  }

  // "-N-"
  std::optional<double> takeGap() {
    if (!take("-")) return std::nullopt;
    unsigned points = 0;
    const char* end = _rest.data() + _rest.size();
    const auto [next, error] = std::from_chars(_rest.data(), end, points);
    if (error != std::errc()) return std::nullopt;
    _rest = std::string_view(next, static_cast<std::size_t>(end - next));
    if (!take("-")) return std::nullopt;
    return points;
  }

  // "[name]": anything but nothing between the brackets
  std::optional<std::string> takeView() {
    if (!take("[")) return std::nullopt;
    const auto length = _rest.find(']');
    if (length == 0 || length == std::string_view::npos) return std::nullopt;
    std::string name(_rest.substr(0, length));
    _rest.remove_prefix(length + 1);
    return name;
  }

 private:
  std::string_view _rest;
};

// Reads what follows the views read so far: the end, a pin to the trailing edge, or a gap and a further view.
bool readRest(FormatReader& reader, VisualFormat& format) {
  while (!reader.atEnd()) {
    const auto gap = reader.takeGap();
    if (!gap) return false;
    if (reader.take("|")) {
      format.trailingPin = gap;
      return reader.atEnd();
    }
    auto view = reader.takeView();
    if (!view) return false;
    format.gaps.push_back(*gap);
    format.views.push_back(std::move(*view));
  }
  return true;
}

}  // namespace

std::optional<VisualFormat> VisualFormat::parse(std::string_view format) {
  FormatReader reader(format);
  VisualFormat result;
  result.isVertical = reader.take("V:");
  if (!result.isVertical) reader.take("H:");
  if (reader.take("|")) {
    result.leadingPin = reader.takeGap();
    if (!result.leadingPin) return std::nullopt;
  }
  auto view = reader.takeView();
  if (!view) return std::nullopt;
  result.views.push_back(std::move(*view));
  if (!readRest(reader, result)) return std::nullopt;
  return result;
}

}  // namespace velmora
