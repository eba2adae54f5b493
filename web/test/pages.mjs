// The built page in Chromium, at a fixed place and moment.
import { mkdtemp } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { fileURLToPath } from "node:url";
import { build } from "esbuild";
import { buildFolder } from "../build.mjs";
import { serve } from "../static.mjs";
import { launch } from "./browser.mjs";

const web = fileURLToPath(new URL("..", import.meta.url));

/** The module's folder: VELMORA_MODULE, else one whose sky is invented and whose views are simple. */
export async function moduleFolder() {
  if (process.env.VELMORA_MODULE) return process.env.VELMORA_MODULE;
  const folder = await mkdtemp(join(tmpdir(), "velmora-double-"));
  const outfile = join(folder, "load.js");
  await build({ absWorkingDir: web, entryPoints: ["test/double.ts"], bundle: true, format: "esm", outfile, logLevel: "error" });
  return folder;
}

export const isReal = process.env.VELMORA_MODULE !== undefined;
export const helsinki = "lat=60.1699&lon=24.9384&zone=Europe/Helsinki&name=Helsinki";
export const views = [
  "today", "month", "year", "riseset", "sky", "eclipses", "pictures", "posters", "place", "settings",
];
export const phone = { width: 390, height: 844, deviceScaleFactor: 2, isMobile: true, hasTouch: true };
export const desktop = { width: 1440, height: 900, deviceScaleFactor: 1 };

export class Site {
  static async open() {
    const site = new Site();
    site.folder = await mkdtemp(join(tmpdir(), "velmora-page-"));
    await buildFolder(await moduleFolder(), site.folder);
    site.server = await serve(site.folder);
    site.browser = await launch();
    return site;
  }

  get address() {
    return this.server.address;
  }

  /** A new person's browser: nothing kept, and what is wrong with the page remembered. */
  async visitor({ size = phone, language = "en-US", scheme = "dark", motion = "reduce", before } = {}) {
    const context = await this.browser.createBrowserContext();
    const page = await context.newPage();
    page.faults = [];
    page.requests = [];
    page.on("pageerror", (error) => page.faults.push(String(error)));
    page.on("console", (message) => {
      if (["error", "warn"].includes(message.type())) page.faults.push(message.text());
    });
    page.on("request", (request) => page.requests.push(request.url()));
    await page.setViewport(size);
    await page.emulateMediaFeatures([
      { name: "prefers-color-scheme", value: scheme }, { name: "prefers-reduced-motion", value: motion },
    ]);
    await page.evaluateOnNewDocument((one) => {
      Object.defineProperty(Navigator.prototype, "languages", { get: () => [one] });
    }, language);
    if (before) await page.evaluateOnNewDocument(before);
    page.context = context;
    return page;
  }

  async show(page, link = `#/today?day=2025-09-07&time=21:30&${helsinki}`) {
    await page.goto("about:blank");
    await page.goto(this.address + link);
    await settled(page);
  }

  async close() {
    await this.browser.close();
    this.server.close();
  }
}

/** Until the page stands and has drawn. */
export async function settled(page) {
  await page.waitForSelector("html[data-ready]");
  await drawn(page);
}

/** Until what was asked for is drawn: two animation frames. */
export async function drawn(page) {
  await page.evaluate(() => new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(() => done()))));
}

export function at(view, rest = "day=2025-09-07&time=21:30") {
  return `#/${view}?${rest}&${helsinki}`;
}

/** Until the address is such: the page writes it a little after what it shows. */
export async function addressed(page, { source }) {
  await page.waitForFunction((wanted) => new RegExp(wanted).test(decodeURIComponent(location.hash)), {}, source);
}

export async function focusedDay(page) {
  return page.evaluate(() => document.activeElement?.dataset.day ?? "");
}

export async function press(page, key, modifier) {
  if (modifier) await page.keyboard.down(modifier);
  await page.keyboard.press(key);
  if (modifier) await page.keyboard.up(modifier);
  await drawn(page);
}

export async function text(page, selector) {
  return page.$eval(selector, (element) => element.textContent);
}

/** A finger from one point to another, in steps. */
export async function swipe(page, selector, fromShare, toShare) {
  const box = await (await page.$(selector)).boundingBox();
  const y = box.y + box.height / 2;
  const finger = await page.touchscreen.touchStart(box.x + box.width * fromShare, y);
  for (let step = 1; step <= 10; ++step) {
    await finger.move(box.x + box.width * (fromShare + ((toShare - fromShare) * step) / 10), y);
  }
  await finger.end();
  await page.waitForFunction(() => !document.querySelector(".neighbour"));
  await drawn(page);
}
