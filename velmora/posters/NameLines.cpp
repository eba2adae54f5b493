#include <velmora/posters/NameLines.h>

#include <algorithm>

#include <velmora/platform/graphics/TextEngine.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

std::string withoutBlanksAround(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

/// As much a line as fits, up to the first break at least.
std::vector<std::string> parted(const std::string& name, const LabelStyle& style, double width) {
  std::vector<std::string> lines;
  std::size_t start = 0, end = 0;
  for (const std::size_t next : TextEngine::current().lineBreaks(name)) {
    std::string longer = withoutBlanksAround(name.substr(start, next - start));
    if (lines.empty() || Sheet::widthOf(longer, style) > width) {
      start = end;
      longer = withoutBlanksAround(name.substr(start, next - start));
      lines.emplace_back();
    }
    lines.back() = longer;
    end = next;
  }
  return lines;
}

bool isWithin(const std::vector<std::string>& lines, const LabelStyle& style, double width) {
  return std::all_of(lines.begin(), lines.end(),
                     [&](const std::string& line) { return Sheet::widthOf(line, style) <= width; });
}

void dropLastCharacter(std::string& utf8) {
  const auto isWithinCharacter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
  while (!utf8.empty() && isWithinCharacter(utf8.back())) utf8.pop_back();
  if (!utf8.empty()) utf8.pop_back();
}

std::string ended(std::string line, const LabelStyle& style, double width) {
  while (!line.empty() && Sheet::widthOf(line + "…", style) > width) dropLastCharacter(line);
  return line + "…";
}

}  // namespace

NameLines NameLines::of(const std::string& name, const LabelStyle& style, double width,
                        std::size_t mostLines) {
  constexpr double step = 0.1;
  NameLines set{{}, style};
  for (double share = 1; share > Sheet::leastShare - step / 2; share -= step) {
    set.style.size = style.size * share;
    set.lines = parted(name, set.style, width);
    if (set.lines.size() <= mostLines && isWithin(set.lines, set.style, width)) return set;
  }
  const bool isCut = set.lines.size() > mostLines;
  set.lines.resize(std::min(set.lines.size(), mostLines));
  for (std::string& line : set.lines) {
    const bool isEnd = isCut && &line == &set.lines.back();
    if (isEnd || Sheet::widthOf(line, set.style) > width) line = ended(line, set.style, width);
  }
  return set;
}

}  // namespace velmora
