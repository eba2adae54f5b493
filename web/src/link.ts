import { type Day, dayOfText, dayText, isKnown } from "./days";
import type { Place } from "./velmora";

export const viewNames = [
  "today", "month", "year", "riseset", "sky", "eclipses", "pictures", "posters", "place", "settings",
] as const;
export type ViewName = (typeof viewNames)[number];

/** What a link carries; whatever it leaves out stays as it is kept in the browser. */
export interface Link {
  view?: ViewName;
  day?: Day;
  /** Minutes after midnight. */
  time?: number;
  place?: Place;
}

/** Why a link cannot be followed: the part that is wrong, as it was written. */
export interface Fault {
  readonly part: "view" | "day" | "time" | "place" | "link";
  readonly text: string;
}

const longestLink = 500;
const longestName = 80;
/** Control characters, and those that turn the direction of whatever follows. */
const unwritable = /[\u0000-\u001f\u007f-\u009f\u2028-\u202e\u2066-\u2069\ufffd]/;

function number(text: string | null, limit: number): number | undefined {
  if (text === null || !/^-?\d{1,3}(\.\d{1,6})?$/.test(text)) return undefined;
  const value = Number(text);
  return Math.abs(value) <= limit ? value : undefined;
}

function timeOf(text: string): number | undefined {
  const parts = /^([01]\d|2[0-3]):([0-5]\d)$/.exec(text);
  return parts ? Number(parts[1]) * 60 + Number(parts[2]) : undefined;
}

function placeOf(fields: URLSearchParams, isZone: (name: string) => boolean): Place | undefined {
  const latitude = number(fields.get("lat"), 90);
  const longitude = number(fields.get("lon"), 180);
  const zone = fields.get("zone");
  const name = (fields.get("name") ?? "").trim();
  if (latitude === undefined || longitude === undefined || zone === null || !isZone(zone)) return undefined;
  if ([...name].length > longestName || unwritable.test(name)) return undefined;
  return { latitude, longitude, zone, name };
}

function fault(part: Fault["part"], text: string): Fault {
  const characters = [...text];
  return { part, text: characters.length > longestName ? characters.slice(0, longestName).join("") + "…" : text };
}

/** What follows the # of an address. Nothing of a link that is wrong anywhere is followed. */
export function readLink(hash: string, isZone: (name: string) => boolean): Link | Fault {
  const text = hash.startsWith("#") ? hash.slice(1) : hash;
  if (text === "") return {};
  if (text.length > longestLink) return fault("link", text);
  const parts = /^\/([^?]*)(?:\?(.*))?$/s.exec(text);
  if (!parts) return fault("link", text);
  const view = viewNames.find((name) => name === parts[1]);
  if (!view) return fault("view", parts[1]!);

  const link: Link = { view };
  const fields = new URLSearchParams(parts[2] ?? "");
  const known = ["day", "time", "lat", "lon", "zone", "name"];
  for (const key of fields.keys()) {
    if (!known.includes(key) || fields.getAll(key).length > 1) return fault("link", key);
  }
  const day = fields.get("day");
  if (day !== null) {
    link.day = dayOfText(day);
    if (!link.day || !isKnown(link.day)) return fault("day", day);
  }
  const time = fields.get("time");
  if (time !== null) {
    link.time = timeOf(time);
    if (link.time === undefined) return fault("time", time);
  }
  if (["lat", "lon", "zone", "name"].some((key) => fields.has(key))) {
    link.place = placeOf(fields, isZone);
    if (!link.place) {
      return fault("place", ["lat", "lon", "zone", "name"].map((key) => fields.get(key) ?? "–").join(", "));
    }
  }
  return link;
}

export function isFault(link: Link | Fault): link is Fault {
  return "part" in link;
}

/** The address that `readLink` reads the same from. */
export function writeLink({ view, day, time, place }: Link): string {
  const fields = new URLSearchParams();
  if (day) fields.set("day", dayText(day));
  if (time !== undefined) fields.set("time", timeText(time));
  if (place) {
    fields.set("lat", decimal(place.latitude));
    fields.set("lon", decimal(place.longitude));
    fields.set("zone", place.zone);
    if (place.name) fields.set("name", place.name);
  }
  const written = fields.toString().replaceAll("%2F", "/").replaceAll("%3A", ":").replaceAll("%2C", ",");
  return `#/${view ?? "today"}${written ? `?${written}` : ""}`;
}

/** "21:05" */
export function timeText(minutes: number): string {
  return `${String(Math.floor(minutes / 60)).padStart(2, "0")}:${String(minutes % 60).padStart(2, "0")}`;
}

/** Six decimals are a tenth of a metre. */
function decimal(value: number): string {
  return String(Number(value.toFixed(6)) + 0).replace(/^-0$/, "0");
}
