#include <app/text/ICalendar.h>

#include <algorithm>

#include <app/text/Utf8.h>
#include <app/text/ValueTexts.h>
#include <velmora/Version.h>

namespace velmora::app {
namespace {

constexpr std::size_t longestLine = 75;  // bytes, without the line's end

/// How many bytes of the text fit into that many without cutting a character of UTF-8.
std::size_t fitting(const std::string& text, std::size_t begin, std::size_t bytes) {
  if (text.size() - begin <= bytes) return text.size() - begin;
  std::size_t count = bytes;
  while (count > 1 && continuesCharacter(text[begin + count])) --count;
  return count;
}

/// A content line, folded: what does not fit goes on in lines that begin with a blank.
std::string contentLine(const std::string& text) {
  std::size_t end = fitting(text, 0, longestLine);
  std::string line = text.substr(0, end) + "\r\n";
  while (end < text.size()) {
    const std::size_t count = fitting(text, end, longestLine - 1);
    line += " " + text.substr(end, count) + "\r\n";
    end += count;
  }
  return line;
}

bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

/// The text with what separates values escaped; of control characters the end of a line alone can be written.
std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    if (c == '\n') {
      result += "\\n";
    } else if (!isControl(c)) {
      if (c == '\\' || c == ';' || c == ',') result += '\\';
      result += c;
    }
  }
  return result;
}

std::string withoutMarks(std::string text) {
  text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == '-' || c == ':'; }),
             text.end());
  return text;
}

/// "20240408T181700Z".
std::string basicInstantText(Instant instant) { return withoutMarks(instantText(instant)); }

std::string startLine(const CalendarEvent& event) {
  return event.day ? "DTSTART;VALUE=DATE:" + withoutMarks(dateText(*event.day))
                   : "DTSTART:" + basicInstantText(event.instant);
}

std::string uidOf(const CalendarEvent& event) {
  return event.kind + "-" + basicInstantText(event.instant) + (event.place.empty() ? "" : "-" + event.place) +
         "@velmora";
}

std::string eventText(const CalendarEvent& event, const std::string& stamp) {
  return contentLine("BEGIN:VEVENT") + contentLine("UID:" + escaped(uidOf(event))) +
         contentLine("DTSTAMP:" + stamp) + contentLine(startLine(event)) +
         contentLine("SUMMARY:" + escaped(event.summary)) +
         (event.location ? contentLine("LOCATION:" + escaped(*event.location)) : "") +
         (event.description ? contentLine("DESCRIPTION:" + escaped(*event.description)) : "") +
         contentLine("TRANSP:TRANSPARENT") + contentLine("END:VEVENT");
}

}  // namespace

std::string iCalendar(const std::string& name, const std::vector<CalendarEvent>& events, Instant stamp) {
  std::string text = contentLine("BEGIN:VCALENDAR") + contentLine("VERSION:2.0") +
                     contentLine("PRODID:-//Velmora//velmora " + std::string(VelmoraVersionString) + "//EN") +
                     contentLine("NAME:" + escaped(name)) + contentLine("X-WR-CALNAME:" + escaped(name));
  for (const CalendarEvent& event : events) text += eventText(event, basicInstantText(stamp));
  return text + contentLine("END:VCALENDAR");
}

}  // namespace velmora::app
