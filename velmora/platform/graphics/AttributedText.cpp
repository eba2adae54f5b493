#include <velmora/platform/graphics/AttributedText.h>

#include <algorithm>
#include <utility>

namespace velmora {

AttributedText::AttributedText(std::string text, TextAttributes attributes) : _text(std::move(text)) {
  if (!_text.empty()) _runs.push_back({0, _text.size(), std::move(attributes)});
}

void AttributedText::setColor(const Color& color, std::size_t begin, std::size_t end) {
  splitRunAt(begin);
  splitRunAt(end);
  for (Run& run : _runs) {
    if (run.begin >= begin && run.end <= end) run.attributes.color = color;
  }
}

void AttributedText::append(const AttributedText& other) {
  const std::size_t shift = _text.size();
  const std::vector<Run> added = other._runs;
  _text += other._text;
  for (const Run& run : added) {
    if (!_runs.empty() && _runs.back().attributes == run.attributes) {
      _runs.back().end = run.end + shift;
    } else {
      _runs.push_back({run.begin + shift, run.end + shift, run.attributes});
    }
  }
}

AttributedText AttributedText::substring(std::size_t begin, std::size_t end) const {
  AttributedText part;
  end = std::min(end, _text.size());
  if (begin >= end) return part;
  part._text = _text.substr(begin, end - begin);
  for (const Run& run : _runs) {
    const std::size_t from = std::max(run.begin, begin), to = std::min(run.end, end);
    if (from < to) part._runs.push_back({from - begin, to - begin, run.attributes});
  }
  return part;
}

void AttributedText::splitRunAt(std::size_t position) {
  const auto found = std::find_if(_runs.begin(), _runs.end(), [position](const Run& run) {
    return run.begin < position && position < run.end;
  });
  if (found == _runs.end()) return;
  const Run second = {position, found->end, found->attributes};
  found->end = position;
  _runs.insert(found + 1, second);
}

}  // namespace velmora
