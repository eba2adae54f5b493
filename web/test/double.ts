// A module for tests that need none of the sky: views are simple, positions invented. Never shipped.
import type * as V from "../src/velmora";
import { addDays, daysIn, sameDay, weekdayOf } from "../src/days";
import { clockAt, instantOf } from "../src/format";
const synodic = 29.530588 * 864e5, epoch = Date.UTC(2000, 0, 6, 18, 14);
const el = (at: number) => ((((at - epoch) / synodic) % 1 + 1) % 1) * 360;
export const loadVelmora: V.LoadVelmora = async (o) => {
  let settings = o.settings, place = o.place, day = o.day;
  const dl = new Set<(d: V.CivilDate) => void>(), al = new Set<(t: string) => void>();
  const dirty = new Set<() => void>();
  const altaz = (b: V.Body, at: number) => { const lag = b === "moon" ? el(at) : 0; const local = clockAt(at, place.zone).minutes / 4 - 180 - lag;
    const r = Math.PI / 180, dec = b === "moon" ? 10 * r : -20 * r, la = place.latitude * r, ha = local * r;
    const alt = Math.asin(Math.sin(la) * Math.sin(dec) + Math.cos(la) * Math.cos(dec) * Math.cos(ha)) / r;
    let az = Math.atan2(-Math.sin(ha) * Math.cos(dec), Math.sin(dec) * Math.cos(la) - Math.cos(dec) * Math.sin(la) * Math.cos(ha)) / r;
    return { altitude: alt, azimuth: (az + 360) % 360 }; };
  const phaseOf = (e: number): V.PhaseName => e < 4 || e > 356 ? "new" : e < 86 ? "waxingCrescent" : e < 94 ? "firstQuarter" : e < 176 ? "waxingGibbous" : e < 184 ? "full" : e < 266 ? "waningGibbous" : e < 274 ? "lastQuarter" : "waningCrescent";
  const moon: V.Velmora = {
    version: "fake",
    configure(s) { settings = s; dirty.forEach((f) => f()); },
    select(p, d) { place = p; day = d; dl.forEach((f) => f(day)); dirty.forEach((f) => f()); },
    selectDay(d) { day = d; dl.forEach((f) => f(day)); dirty.forEach((f) => f()); },
    get settings() { return settings; }, get place() { return place; }, get day() { return day; },
    today: () => clockAt(Date.now(), place.zone).day,
    onDayChange(f) { dl.add(f); return () => dl.delete(f); },
    onAnnouncement(f) { al.add(f); return () => al.delete(f); },
    createView(kind, holder, options = {}) {
      const canvas = holder instanceof HTMLCanvasElement ? holder : holder.appendChild(document.createElement("canvas"));
      let w = 100, hgt = 100, sc = 1, needs = true; const ls = new Set<() => void>();
      const mark = () => { needs = true; ls.forEach((f) => f()); }; dirty.add(mark);
      const cells = (d: V.CivilDate) => { const first = weekdayOf({ ...d, day: 1 }); const lead = (first - settings.weekStart + 7) % 7;
        return Array.from({ length: daysIn(d.year, d.month) }, (_, i) => { const n = lead + i, cw = w / 7, ch = (hgt - 40) / 6;
          return { day: { ...d, day: i + 1 }, frame: { x: (n % 7) * cw, y: 40 + Math.floor(n / 7) * ch, width: cw, height: ch } }; }); };
      const disc = (c: CanvasRenderingContext2D, x: number, y: number, r: number, e: number) => {
        c.fillStyle = "#17151f"; c.beginPath(); c.arc(x, y, r, 0, 7); c.fill(); c.fillStyle = "#ccc"; c.beginPath();
        const s = e < 180 ? 1 : -1, k = Math.cos(e * Math.PI / 180) * s; c.arc(x, y, r, -Math.PI / 2, Math.PI / 2, e >= 180);
        c.ellipse(x, y, Math.abs(k) * r, r, 0, Math.PI / 2, -Math.PI / 2, e < 180 ? k > 0 : k < 0 ? false : true); c.fill(); };
      const paint = (cv: HTMLCanvasElement, d: V.CivilDate) => { const c = cv.getContext("2d")!; cv.width = w * sc; cv.height = hgt * sc; c.scale(sc, sc); c.font = "15px Inter";
        c.textAlign = "center"; c.fillStyle = "#0e0c16"; c.fillRect(0, 0, w, hgt);
        if (kind === "month" || kind === "pictures") for (const { day: x, frame: f } of cells(d)) { disc(c, f.x + f.width / 2, f.y + f.height / 2 - 8, Math.min(f.width, f.height) * .36, el(instantOf(x, 720, place.zone))); c.fillStyle = sameDay(x, day) ? "#e3c796" : "#ccc"; c.fillText(String(x.day), f.x + f.width / 2, f.y + f.height - 2); }
        else if (kind === "disc") disc(c, w / 2, hgt / 2, Math.min(w, hgt) / 2 - 2, el(options.at ?? 0));
        else { c.strokeStyle = "#2e4073"; c.lineWidth = 5; c.beginPath(); c.arc(w / 2, hgt / 2, Math.min(w, hgt) / 2 - 10, 0, 7); c.stroke(); c.fillStyle = "#ccc"; c.fillText(kind, w / 2, hgt / 2); } };
      const elements = (): V.ViewElement[] => kind === "month" || kind === "pictures" ? cells(day).map(({ day: d, frame }) => ({ frame, label: `${d.day}`, value: "fake", hint: "", isButton: true, actions: ["Select"], day: d, isSelected: sameDay(d, day) })) : [{ frame: { x: 0, y: 0, width: w, height: hgt }, label: kind, value: "", hint: "", isButton: false, actions: [], isSelected: false }];
      const v: V.HostedView = { kind, canvas: holder, resize(a, b, s) { w = a; hgt = kind === "riseset" ? 31 * 90 : b; sc = s; canvas.width = w * s; canvas.height = hgt * s; mark(); }, get size() { return { width: w, height: hgt }; },
        setOptions(o) { options = o; mark(); }, draw() { if (needs) paint(canvas, day); needs = false; }, drawDay(d, cv) { paint(cv, d); }, get needsDisplay() { return needs; },
        onNeedsDisplay(f) { ls.add(f); return () => ls.delete(f); }, ready: async () => {}, touchBegan() {}, touchMoved() {}, touchCancelled() {},
        touchEnded(x, y) { const c = elements().find((e) => e.day && x >= e.frame.x && x < e.frame.x + e.frame.width && y >= e.frame.y && y < e.frame.y + e.frame.height); if (c?.day) moon.selectDay(c.day); },
        scrollOffset: (day.day - 1) * 90, elements, perform(i) { const d = elements()[i]?.day; if (d) moon.selectDay(d); }, svg: () => `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 9 9"><circle cx="4" cy="4" r="4"/></svg>`, png: async () => new Blob(), close() { dirty.delete(mark); } };
      return v;
    },
    skyOfDay(d) { const start = instantOf(d, 0, place.zone), end = instantOf(addDays(d, 1), 0, place.zone); const events: V.SkyEvent[] = [];
      const levels: [V.Body, number, V.SkyEventKind, V.SkyEventKind][] = [["sun", -.8, "rise", "set"], ["moon", -.8, "rise", "set"], ["sun", -6, "civilDawn", "civilDusk"], ["sun", -12, "nauticalDawn", "nauticalDusk"], ["sun", -18, "astronomicalDawn", "astronomicalDusk"]];
      for (let at = start; at < end; at += 6e4) { for (const [b, a, up, down] of levels) { const p = altaz(b, at), q = altaz(b, at + 6e4); if (p.altitude < a && q.altitude >= a) events.push({ at, body: b, kind: up, ...p }); if (p.altitude >= a && q.altitude < a) events.push({ at, body: b, kind: down, ...p }); }
        for (const b of ["sun", "moon"] as const) { const [p, q, r] = [-6e4, 0, 6e4].map((x) => altaz(b, at + x)) as [V.HorizontalPosition, V.HorizontalPosition, V.HorizontalPosition]; if (q.altitude > p.altitude && q.altitude >= r.altitude) events.push({ at, body: b, kind: "transit", ...q }); } }
      return { start, end, sun: "rises or sets", moon: "rises or sets", daylight: 30000, darkness: 30000, events }; },
    moment(at) { const b = (x: V.Body) => ({ ...altaz(x, at), distance: 384000, semidiameter: .26 }); const e = el(at);
      return { at, sun: b("sun"), moon: b("moon"), fraction: (1 - Math.cos(e * Math.PI / 180)) / 2, isWaxing: e < 180, elongation: e, tilt: 300, north: 20, phase: phaseOf(e) }; },
    track: (b, xs) => xs.map((x) => altaz(b, x)),
    nextPhases(after) { return moon.phases(after, after + synodic); },
    phases(from, to) { const out: V.PhaseEvent[] = []; for (let k = Math.ceil((from - epoch) / synodic * 4); ; ++k) { const at = epoch + k * synodic / 4; if (at >= to) return out; out.push({ at, phase: (["new", "firstQuarter", "full", "lastQuarter"] as const)[((k % 4) + 4) % 4]! }); } },
    nextEclipses(after, n) { return Array.from({ length: n }, (_, i): V.SeenEclipse => { const at = after + (i + 1) * 150 * 864e5; const lunar = i % 2 === 1; return { body: lunar ? "moon" : "sun", kind: i === 0 ? "partial" : "total", begin: at - 36e5, best: at, end: at + 36e5, maximum: at, altitude: 30, azimuth: 120, magnitude: .8, obscuration: lunar ? 0 : .7, contacts: [{ name: lunar ? "U1" : "C1", at: at - 36e5, isUp: true }], discs: lunar ? { x: .6, y: .3, radius: 2.6, penumbra: 4.7 } : { x: .4, y: -.2, radius: 1.03 } }; }); },
    calendarDay(d) { const e = el(instantOf(d, 720, place.zone)); return { phase: phaseOf(e), age: Math.round(e / 360 * 29.5) + 1 }; },
    words: (e, ...p) => e.replace(/%(\d)/g, (_, n) => p[n - 1] ?? ""), wordsForCount: (e, n) => e.replace("%1", String(n)),
    cities: async (p, n) => [{ name: "Helsinki", region: "Uusimaa", country: "FI", latitude: 60.17, longitude: 24.94, zone: "Europe/Helsinki" }, { name: "Portland", region: "Oregon", country: "US", latitude: 45.5, longitude: -122.7, zone: "America/Los_Angeles" }].filter((c) => c.name.toLowerCase().startsWith(p.toLowerCase())).slice(0, n),
    cityNear: async () => undefined, icalendar: () => "BEGIN:VCALENDAR",
  };
  return moon;
};
