// Measures the built page in Chromium: node measure.mjs [FOLDER [ROWS…]]; a row by a word in its name.
// Figures are processor time of the page's thread from an input until what follows from it is painted, the least of
// many; under emulation of a slower processor, too. Starting is also told by the clock.
import { readFile, rm, mkdtemp } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { serve } from "./static.mjs";
import { launch } from "./test/browser.mjs";
import { at, drawn, phone, settled } from "./test/pages.mjs";

const rounds = 40;
const starts = 15;
const months = 1000;
const size = { ...phone, deviceScaleFactor: 3 };

const middleOf = (page, selector) => page.$eval(selector, (element) => {
  const { x, y, width, height } = element.getBoundingClientRect();
  return { x: x + width / 2, y: y + height / 2, left: x, width };
});

/** Taps days in turn. */
async function taps(page, days) {
  const points = [];
  for (const day of days) points.push(await middleOf(page, `[data-day='${day}']`));
  return (round) => {
    const { x, y } = points[round % points.length];
    return page.touchscreen.tap(x, y);
  };
}

/** What is done over and over: `prepare` answers what one step does. */
const rows = [
  { name: "nothing: what measuring itself takes", view: "today", prepare: () => () => undefined },
  ...["today", "sky"].map((view) => ({
    name: `the day's ruler pulled, ${view}`, view,
    async prepare(page) {
      const { left, width, y } = await middleOf(page, ".strip");
      await page.mouse.move(left + 20, y);
      await page.mouse.down();
      return (round) => page.mouse.move(left + 20 + ((round * 7) % (width - 40)), y);
    },
  })),
  { name: "a day tapped in the month", view: "month",
    prepare: (page) => taps(page, ["2025-09-10", "2025-09-11", "2025-09-12", "2025-09-13"]) },
  { name: "a day tapped in rise and set", view: "riseset", prepare: (page) => taps(page, ["2025-09-08", "2025-09-09"]) },
  { name: "rise and set scrolled", view: "riseset", prepare: (page) => (round) =>
    page.evaluate((down) => scrollBy({ top: down, behavior: "instant" }), round % 20 < 10 ? 60 : -60) },
  { name: "the month pulled", view: "month", async prepare(page) {
    const { left, width, y } = await middleOf(page, ".stage");
    await page.mouse.move(left + width - 20, y);
    await page.mouse.down();
    return (round) => page.mouse.move(left + width - 60 - (round % 20) * 5, y);
  } },
];

function tasksOf(traceEvents, { pid, tid }) {
  return traceEvents.filter((event) => event.pid === pid && event.tid === tid && event.tdur !== undefined &&
    event.name === "ThreadControllerImpl::RunTask");
}

/** Processor time of each round, in ms, from the tasks of the thread that bears the marks. */
function timesOf({ traceEvents }) {
  const marks = traceEvents.filter(({ name, cat }) => cat?.includes("user_timing") && /^(begin|end)-\d+$/.test(name));
  const tasks = tasksOf(traceEvents, marks[0]);
  const times = new Map(marks.map(({ name, ts }) => [name, ts]));
  return Array.from({ length: rounds }, (_, round) => {
    const begin = times.get(`begin-${round}`), end = times.get(`end-${round}`);
    return tasks.filter(({ ts }) => ts > begin && ts < end).reduce((sum, { tdur }) => sum + tdur, 0) / 1000;
  });
}

async function measured(site, { view, prepare }, slowness) {
  const page = await site.visitor();
  await page.goto(site.address + at(view));
  await settled(page);
  await page.evaluate(() => document.fonts.ready);
  const step = await prepare(page);
  const file = join(site.temporary, "trace.json");
  await page.emulateCPUThrottling(slowness);
  await page.tracing.start({ path: file, categories: ["toplevel", "blink.user_timing"] });
  for (let round = 0; round < rounds; ++round) {
    await page.evaluate((name) => void performance.mark(name), `begin-${round}`);
    await step(round);
    await drawn(page);
    await page.evaluate((name) => void performance.mark(name), `end-${round}`);
  }
  await page.tracing.stop();
  const times = timesOf(JSON.parse(await readFile(file, "utf8"))).sort((one, other) => one - other);
  await page.browserContext().close();
  return times;
}

/** Milliseconds from the navigation to the first view's drawing: by the clock, and of the page's thread. */
async function start(page, address, file) {
  await page.goto("about:blank");
  await page.tracing.start({ path: file, categories: ["toplevel", "blink.user_timing"] });
  await page.goto(address);
  await settled(page);
  await page.waitForFunction(() => performance.getEntriesByName("first view").length > 0);
  await page.tracing.stop();
  const { traceEvents } = JSON.parse(await readFile(file, "utf8"));
  const end = traceEvents.find(({ name, cat }) => name === "first view" && cat.includes("user_timing"));
  const busy = tasksOf(traceEvents, end).filter(({ ts }) => ts < end.ts).reduce((sum, { tdur }) => sum + tdur, 0) / 1000;
  return { clock: await page.evaluate(() => performance.getEntriesByName("first view")[0].startTime), busy };
}

class Site {
  static async open(folder) {
    const site = new Site();
    site.temporary = await mkdtemp(join(tmpdir(), "velmora-measure-"));
    site.server = await serve(folder);
    site.browser = await launch();
    site.address = site.server.address;
    return site;
  }

  async visitor() {
    const context = await this.browser.createBrowserContext();
    const page = await context.newPage();
    await page.setViewport(size);
    await page.evaluateOnNewDocument(() => {
      const { instantiate } = WebAssembly;
      WebAssembly.instantiate = async (...values) => {
        const made = await instantiate.apply(WebAssembly, values);
        globalThis.wasmMemory = Object.values((made.instance ?? made).exports).find((one) => one instanceof WebAssembly.Memory);
        return made;
      };
      new MutationObserver((_, observer) => {
        if (!document.documentElement.dataset.ready) return;
        observer.disconnect();
        requestAnimationFrame(() => setTimeout(() => performance.mark("first view")));
      }).observe(document, { attributes: true, subtree: true, attributeFilter: ["data-ready"] });
    });
    return page;
  }

  async close() {
    await this.browser.close();
    this.server.close();
    await rm(this.temporary, { recursive: true });
  }
}

async function starting(site) {
  const file = join(site.temporary, "trace.json");
  const times = { "first load": [], "kept by the service worker": [] };
  for (let round = 0; round < starts; ++round) {
    const page = await site.visitor();
    times["first load"].push(await start(page, site.address, file));
    await page.evaluate(() => navigator.serviceWorker.ready);
    await page.waitForFunction(() => navigator.serviceWorker.controller !== null);
    times["kept by the service worker"].push(await start(page, site.address, file));
    await page.browserContext().close();
  }
  for (const [name, taken] of Object.entries(times)) {
    const text = (key) => {
      const times = taken.map((one) => one[key]).sort((one, other) => one - other);
      return `${times[0].toFixed(0)} ms, median ${times[starts >> 1].toFixed(0)}`;
    };
    console.log(`starting, ${name}: ${text("busy")}; by the clock ${text("clock")}`);
  }
}

/** Swipes month after month, forwards and, where the years end, backwards: in one step, and with no more waiting than
 *  for the drawing. */
async function memory(site) {
  const page = await site.visitor();
  await page.emulateMediaFeatures([{ name: "prefers-reduced-motion", value: "reduce" }]);
  await page.goto(site.address + at("month", "day=2001-01-15&time=12:00"));
  await settled(page);
  const { left: edge, width, y } = await middleOf(page, ".stage");
  const left = edge + 0.2 * width, right = edge + 0.8 * width;
  let shown = 0;
  const length = () => page.evaluate(() => globalThis.wasmMemory.buffer.byteLength / 1024);
  for (let month = 0; month <= months; ++month) {
    if ([0, 100, 250, 500, 750, months].includes(month)) console.log(`memory after ${month} months: ${await length()} KB`);
    if (month === months) break;
    const isForward = Math.floor(month / 450) % 2 === 0;
    const [from, to] = isForward ? [right, left] : [left, right];
    const finger = await page.touchscreen.touchStart(from, y);
    await finger.move(to, y);
    await finger.end();
    await drawn(page);
    shown += isForward ? 1 : -1;
  }
  const [year, month] = (await page.$eval("[data-day]", ({ dataset }) => dataset.day)).split("-").map(Number);
  if ((year - 2001) * 12 + month - 1 !== shown) throw new Error(`${year}-${month} is shown after ${shown} months`);
  await page.browserContext().close();
}

const [folder = "build/page", ...words] = process.argv.slice(2);
const isAsked = (name) => words.length === 0 || words.some((word) => name.includes(word));
const site = await Site.open(folder);
for (const row of rows.filter(({ name }) => isAsked(name))) {
  for (const slowness of [1, 4]) {
    const times = await measured(site, row, slowness);
    const text = (time) => time.toFixed(1);
    console.log(`${row.name}${slowness > 1 ? `, ${slowness} times slower` : ""}: ${text(times[0])} ms, median ${text(times[rounds / 2])}`);
  }
}
if (isAsked("starting")) await starting(site);
if (isAsked("memory")) await memory(site);
await site.close();
