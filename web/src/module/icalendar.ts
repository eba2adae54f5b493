import type { PhaseEvent, SeenEclipse, Velmora } from "../velmora";

const names: Readonly<Record<PhaseEvent["phase"], string>> =
  { new: "New Moon", firstQuarter: "First Quarter", full: "Full Moon", lastQuarter: "Last Quarter" };

function instantText(at: number): string {
  return new Date(Math.round(at / 1000) * 1000).toISOString().replace(/[-:]|\.000/g, "");
}

function escaped(text: string): string {
  return text.replace(/[\\;,]/g, "\\$&").replace(/\n/g, "\\n");
}

/** A content line, folded after 75 bytes of UTF-8: what does not fit goes on in lines that begin with a blank. */
function contentLine(text: string): string {
  const encoder = new TextEncoder();
  let line = "", bytes = 0;
  for (const character of text) {
    const size = encoder.encode(character).length;
    if (bytes + size > 75) {
      line += "\r\n ";
      bytes = 1;
    }
    line += character;
    bytes += size;
  }
  return `${line}\r\n`;
}

function titleOf({ body, kind }: SeenEclipse): string {
  const kindText = kind[0]!.toUpperCase() + kind.slice(1);
  return `${kindText} ${body === "sun" ? "Solar" : "Lunar"} Eclipse`;
}

/** Phases and eclipses of the year in universal time as an iCalendar object (RFC 5545). */
export function icalendarOf(velmora: Velmora, year: number): string {
  const from = Date.UTC(year, 0, 1), to = Date.UTC(year + 1, 0, 1);
  const stamp = instantText(Date.now());
  const event = (key: string, at: number, summary: string, location?: string): string =>
    [
      "BEGIN:VEVENT", `UID:${key}-${instantText(at)}@velmora`, `DTSTAMP:${stamp}`, `DTSTART:${instantText(at)}`,
      `SUMMARY:${escaped(summary)}`, ...(location === undefined ? [] : [`LOCATION:${escaped(location)}`]),
      "TRANSP:TRANSPARENT", "END:VEVENT",
    ].map(contentLine).join("");
  const phases = velmora.phases(from, to)
    .map(({ at, phase }) => ({ at, text: event(phase, at, velmora.words(names[phase])) }));
  const eclipses = velmora.nextEclipses(from, 7).filter(({ best }) => best < to)
    .map((eclipse) => ({
      at: eclipse.best,
      text: event(`${eclipse.kind}-${eclipse.body}`, eclipse.best, velmora.words(titleOf(eclipse)), velmora.place.name),
    }));
  const events = [...phases, ...eclipses].sort((one, other) => one.at - other.at);
  return [
    contentLine("BEGIN:VCALENDAR"), contentLine("VERSION:2.0"),
    contentLine(`PRODID:-//Velmora//velmora ${velmora.version}//EN`),
    ...events.map(({ text }) => text), contentLine("END:VCALENDAR"),
  ].join("");
}
