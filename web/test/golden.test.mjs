// The views in Chromium beside the pictures that the library draws natively, and a section beside what it looked like.
// VELMORA_MODULE is the module's folder. VELMORA_UPDATE_GOLDEN=1 writes the section's picture over the old one.
import assert from "node:assert/strict";
import { mkdir, readFile, writeFile } from "node:fs/promises";
import { join } from "node:path";
import { after, before, describe, test } from "node:test";
import { fileURLToPath } from "node:url";
import { serve } from "../static.mjs";
import { launch } from "./browser.mjs";
import { at, drawn, isReal, Site } from "./pages.mjs";

const project = fileURLToPath(new URL("../..", import.meta.url));
const differing = join(project, "build/golden-web");

/**
 * Both draw the same shapes and texts, but each smooths edges and letters in its own way. A pixel differs where the
 * 3 by 3 pixels around it differ on the average by more than the tolerance, of 255, in one colour.
 */
const tolerance = 48;
const mostDiffering = 0.001;

const greenwich = { latitude: 51.48, longitude: 0, name: "Somewhere", zone: "Etc/UTC" };
const cairo = { latitude: 30.044, longitude: 31.236, name: "Cairo", zone: "Africa/Cairo" };
const tokyo = { latitude: 35.69, longitude: 139.692, name: "Tokyo", zone: "Asia/Tokyo" };
const helsinki = { latitude: 60.1699, longitude: 24.9384, name: "Helsinki", zone: "Europe/Helsinki" };
const capeTown = { latitude: -33.925, longitude: 18.424, name: "Cape Town", zone: "Africa/Johannesburg" };
const sanFrancisco = { latitude: 37.785, longitude: -122.392, name: "San Francisco", zone: "America/Los_Angeles" };
const honolulu = { latitude: 21.31, longitude: -157.86, name: "Honolulu", zone: "Pacific/Honolulu" };
const english = { locale: "en-US", clock: 12, weekStart: 0, secondCalendar: "none", theme: "dark", isTablet: false };
const date = (year, month, day) => ({ year, month, day });

/**
 * The golden picture and what is drawn. `without` are rectangles that are left out: rings around eclipses by the
 * calendar's fixed rule, of which the almanac says that they are not seen from there.
 */
const scenes = [
  { name: "month-phone", kind: "month", size: [390, 600], day: date(2024, 6, 20), now: "2024-06-14T12:00Z" },
  { name: "month-south", kind: "month", size: [390, 600], day: date(2024, 6, 14), now: "2026-02-24T12:00Z",
    place: { ...greenwich, latitude: -33.9 }, settings: { ...english, weekStart: 1 } },
  { name: "month-eclipses", kind: "month", size: [390, 600], day: date(2000, 7, 16), now: "2000-07-16T23:00Z",
    place: honolulu, without: [[320, 58, 60, 56], [0, 512, 60, 56]] },
  { name: "month-arabic", kind: "month", size: [768, 650], day: date(2026, 2, 14), now: "2026-02-24T12:00Z",
    settings: { ...english, locale: "ar-EG", secondCalendar: "islamic" }, without: [[440, 355, 120, 120]] },
  { name: "month-hebrew", kind: "month", size: [768, 650], day: date(2026, 2, 14), now: "2026-02-24T12:00Z",
    settings: { ...english, locale: "he-IL", secondCalendar: "hebrew" }, without: [[440, 355, 120, 120]] },
  { name: "year-phone", kind: "year", size: [390, 510], day: date(2026, 5, 31), now: "2026-02-24T12:00Z" },
  { name: "year-arabic", kind: "year", size: [460, 560], day: date(2026, 5, 31), now: "2026-02-24T12:00Z", place: cairo,
    settings: { ...english, locale: "ar-EG" } },
  { name: "year-japanese", kind: "year", size: [390, 510], day: date(2026, 5, 1), now: "2026-02-24T12:00Z", place: tokyo,
    settings: { ...english, locale: "ja-JP" }, options: { phase: "new" } },
  { name: "picture-month", kind: "pictures", size: [264, 445], day: date(2024, 6, 14), now: "2024-06-14T12:00Z", },
  { name: "position-chart", kind: "chart", size: [480, 480], day: date(2024, 6, 14), now: "2024-06-14T12:00Z" },
  // As tests/web/PageViewsTest.cpp draws them.
  { name: "page-riseset", kind: "riseset", size: [390, 560], day: date(2024, 6, 24), place: sanFrancisco },
  { name: "page-riseset-arabic", kind: "riseset", size: [390, 560], day: date(2024, 6, 14), place: cairo,
    settings: { ...english, locale: "ar-EG", secondCalendar: "islamic" } },
  { name: "page-riseset-japanese", kind: "riseset", size: [390, 560], day: date(2024, 6, 20), place: tokyo,
    settings: { ...english, locale: "ja-JP" } },
  { name: "page-month-light", kind: "month", size: [390, 470], day: date(2025, 9, 7), place: helsinki,
    settings: { ...english, theme: "light" } },
  { name: "page-timeline", kind: "timeline", size: [390, 76], day: date(2025, 9, 7), place: helsinki },
  { name: "page-timeline-arabic", kind: "timeline", size: [390, 76], day: date(2025, 9, 7), place: cairo,
    settings: { ...english, locale: "ar-EG" } },
  { name: "page-compass", kind: "compass", size: [320, 320], day: date(2025, 9, 7), place: helsinki,
    options: { at: Date.UTC(2025, 8, 7, 21) } },
  { name: "page-compass-south", kind: "compass", size: [320, 320], day: date(2025, 9, 3), place: capeTown,
    options: { at: Date.UTC(2025, 8, 3, 10), heading: 135 } },
  { name: "page-arc", kind: "arc", size: [390, 218], day: date(2025, 9, 7), place: helsinki,
    options: { at: Date.UTC(2025, 8, 7, 21) } },
  { name: "page-arc-south", kind: "arc", size: [390, 218], day: date(2025, 9, 3), place: capeTown,
    options: { at: Date.UTC(2025, 8, 3, 16) } },
  { name: "page-disc-tilted", kind: "disc", size: [240, 240], day: date(2025, 9, 3), place: helsinki,
    options: { at: Date.UTC(2025, 8, 3, 18), isTilted: true } },
  { name: "page-disc-south", kind: "disc", size: [240, 240], day: date(2025, 9, 18), place: capeTown,
    options: { at: Date.UTC(2025, 8, 18, 3) } },
  { name: "page-night", kind: "night", size: [640, 453], day: date(2025, 9, 12), place: helsinki },
  { name: "page-darkness-light", kind: "darkness", size: [452, 640], day: date(2025, 9, 12), place: capeTown,
    settings: { ...english, theme: "light" } },
];

/** Draws the scene in the page: the picture, and how far down in it what the golden one shows begins. */
async function drawScene({ base, scene }) {
  const { year, month, day } = scene.day;
  Date.now = () => scene.now ? Date.parse(scene.now) : Date.UTC(year, month - 1, day, 12);
  const { loadVelmora } = await import(`${base}load.js`);
  const velmora = await loadVelmora({
    base, settings: scene.settings, place: scene.place, day: scene.day,
  });
  const view = velmora.createView(scene.kind, document.createElement("canvas"), scene.options);
  view.resize(...scene.size, 1);
  const blob = await view.png(1);
  const picture = await new Promise((done) => {
    const reader = new FileReader();
    reader.onload = () => done(reader.result.split(",")[1]);
    reader.readAsDataURL(blob);
  });
  return { picture, top: scene.kind === "riseset" ? view.scrollOffset : 0 };
}

/** Which share of the golden picture's pixels differ. A list is longer than the picture of it. */
async function compare({ picture, top, golden, without, tolerance: most }) {
  const bitmapOf = (base64) => createImageBitmap(
    new Blob([Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0))], { type: "image/png" }));
  const [drawing, wanted] = await Promise.all([picture, golden].map(bitmapOf));
  const { width, height } = wanted;
  if (drawing.width !== width || drawing.height < top + height || (top === 0 && drawing.height !== height)) return 1;
  const pixelsOf = (bitmap, offset) => {
    const context = new OffscreenCanvas(width, height).getContext("2d");
    context.drawImage(bitmap, 0, -offset);
    return context.getImageData(0, 0, width, height);
  };
  const actual = pixelsOf(drawing, top), expected = pixelsOf(wanted, 0);
  const isDiffering = (x, y) => {
    for (let colour = 0; colour < 3; ++colour) {
      let sum = 0;
      for (let down = y - 1; down <= y + 1; ++down) {
        for (let right = x - 1; right <= x + 1; ++right) {
          const at = (down * width + right) * 4 + colour;
          sum += actual.data[at] - expected.data[at];
        }
      }
      if (Math.abs(sum) > 9 * most) return true;
    }
    return false;
  };
  const isLeftOut = (x, y) => without.some(([left, top, across, down]) =>
    x >= left && x < left + across && y >= top && y < top + down);
  let count = 0;
  for (let y = 1; y < height - 1; ++y) {
    for (let x = 1; x < width - 1; ++x) if (!isLeftOut(x, y) && isDiffering(x, y)) ++count;
  }
  return count / (width * height);
}

/** A page of that server on which scripts of the test may run. */
async function blankPage(browser, { address }) {
  const page = await browser.newPage();
  await page.goto(`${address}icons/sunrise.png`);
  return page;
}

/** The picture beside its golden one; it is left in build/golden-web. */
async function assertGolden(page, golden, name, { picture, top = 0, without = [] }) {
  await mkdir(differing, { recursive: true });
  await writeFile(join(differing, `${name}.png`), Buffer.from(picture, "base64"));
  const share = await page.evaluate(compare, { picture, top, golden: await readFile(golden, "base64"), without, tolerance });
  console.log(`${name}: ${(share * 100).toFixed(3)} %`);
  assert.ok(share <= mostDiffering, `${(share * 100).toFixed(2)} % of the pixels differ; see build/golden-web`);
}

describe("Views in Chromium", { skip: !isReal && "VELMORA_MODULE names no module" }, () => {
  let module, browser;
  before(async () => {
    module = await serve(process.env.VELMORA_MODULE);
    browser = await launch(["--disable-web-security"]);
  });
  after(async () => {
    await browser.close();
    module.close();
  });

  for (const scene of scenes) {
    test(`${scene.name} LooksAsDrawnNatively`, async () => {
      const page = await blankPage(browser, module);
      const { picture, top } = await page.evaluate(drawScene, {
        base: module.address, scene: { settings: english, place: greenwich, ...scene },
      });
      await assertGolden(page, join(project, "tests/golden", `${scene.name}.png`), scene.name,
        { picture, top, without: scene.without });
      await page.close();
    });
  }
});

describe("Sections in Chromium", { skip: !isReal && "VELMORA_MODULE names no module" }, () => {
  let site;
  before(async () => { site = await Site.open(); });
  after(() => site.close());

  test("TodayInTheLightLooksAsItShould", async () => {
    const size = { width: 390, height: 1740, deviceScaleFactor: 1 };
    const visitor = await site.visitor({ size, scheme: "light" });
    await site.show(visitor, at("today", "day=2025-09-12&time=21:30"));
    await visitor.waitForSelector(".moon .drawn[hidden]");  // then its pictures are drawn
    await drawn(visitor);
    const picture = await visitor.screenshot({ encoding: "base64" });
    const golden = join(project, "web/test/golden/today-light.png");
    if (process.env.VELMORA_UPDATE_GOLDEN) {
      await writeFile(golden, Buffer.from(picture, "base64"));
      assert.fail("the golden picture is written: look at it");
    }
    const page = await blankPage(site.browser, { address: `${site.address}velmora/` });
    await assertGolden(page, golden, "today-light", { picture });
    await visitor.context.close();
    await page.close();
  });
});
