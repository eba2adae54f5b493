// What is drawn again after a change, and what stays.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { serve } from "../static.mjs";
import { launch } from "./browser.mjs";
import { at, drawn, isReal, press, Site } from "./pages.mjs";

/** Has the page remember each canvas that is cleared to be drawn on, or is given another bitmap. */
function watchCanvases() {
  globalThis.painted = [];
  const { clearRect } = CanvasRenderingContext2D.prototype;
  CanvasRenderingContext2D.prototype.clearRect = function (...values) {
    globalThis.painted.push(this.canvas);
    clearRect.apply(this, values);
  };
  const { transferFromImageBitmap } = ImageBitmapRenderingContext.prototype;
  ImageBitmapRenderingContext.prototype.transferFromImageBitmap = function (bitmap) {
    globalThis.painted.push(this.canvas);
    transferFromImageBitmap.call(this, bitmap);
  };
}

/** The middles of what is drawn again by a tap on the day, in points from the top of the view. */
async function drawnByTap(page, day) {
  const box = await page.$eval(`[data-day='${day}']`, (cell) => cell.getBoundingClientRect().toJSON());
  await page.evaluate(() => { globalThis.painted = []; });
  await page.touchscreen.tap(box.x + box.width / 2, box.y + box.height / 2);
  await page.waitForSelector(`[data-day='${day}'][aria-selected='true']`);
  await drawn(page);
  return page.evaluate(() => {
    const top = document.querySelector(".stage").getBoundingClientRect().top;
    return globalThis.painted.filter((canvas) => canvas.closest(".stage")).map((canvas) => {
      const { y, height } = canvas.getBoundingClientRect();
      return y + height / 2 - top;
    });
  });
}

describe("Drawing", () => {
  let site;
  before(async () => { site = await Site.open(); });
  after(() => site.close());

  test("ATapInRiseAndSetDrawsTheTwoRowsConcernedAlone", { skip: !isReal }, async () => {
    const page = await site.visitor({ before: watchCanvases });
    await site.show(page, at("riseset"));
    const rowHeight = 80;
    assert.deepEqual(await drawnByTap(page, "2025-09-09"), [6.5 * rowHeight, 8.5 * rowHeight]);
    await page.context.close();
  });

  test("RiseAndSetIsDrawnWhollyInAnotherMonth", { skip: !isReal }, async () => {
    const page = await site.visitor({ before: watchCanvases });
    await site.show(page, at("riseset"));
    await page.evaluate(() => { globalThis.painted = []; });
    await page.click("[aria-label='Next month']");
    await drawn(page);
    assert.equal(await page.$$eval(".stage .drawn canvas", (canvases) => canvases.length), 31);
    assert.equal(await page.evaluate(() =>
      new Set(globalThis.painted.filter((canvas) => canvas.closest(".stage"))).size), 31);
    await page.context.close();
  });

  test("TheElementsOfAMonthStayWhereTheDaysAreTheSame", async () => {
    const page = await site.visitor();
    await site.show(page, at("month"));
    await page.$$eval("[role=gridcell]", (cells) => cells.forEach((cell) => { cell.wasThere = true; }));
    await drawnByTap(page, "2025-09-18");
    assert.equal(await page.$$eval("[role=gridcell]", (cells) => cells.every((cell) => cell.wasThere)), true);
    assert.equal(await page.$$eval("[role=grid] [tabindex='0']", ([stop, ...more]) => more.length === 0 && stop.dataset.day),
                 "2025-09-18");
    await page.context.close();
  });

  test("AYearInWhichTheSelectedDayHasNoMoonHasATabStop", { skip: !isReal }, async () => {
    const page = await site.visitor();
    await site.show(page, at("year", "day=2025-09-12&time=12:00"));
    assert.equal(await page.$$eval("[role=listbox] [tabindex='0']", (all) => all.length), 1);
    await page.context.close();
  });

  test("TheFaceTurnsWithTheSkyAndIsDrawnAnewWhereItsLightMoves", { skip: !isReal }, async () => {
    const page = await site.visitor({ before: watchCanvases });
    await site.show(page, at("today", "day=2025-09-14&time=06:00"));
    await page.waitForFunction(() => document.querySelector(".stage-disc .drawn").hidden);
    const face = () => page.$eval(".face", ({ style }) => style.transform);
    const before = await face();
    await page.evaluate(() => { globalThis.painted = []; });
    await page.focus(".strip");
    await press(page, "ArrowRight");
    await drawn(page);
    assert.notEqual(await face(), before);
    assert.deepEqual(await page.evaluate(() => globalThis.painted.map(({ className }) => className)), []);
    await press(page, "End");
    await drawn(page);
    assert.equal(await page.evaluate(() => globalThis.painted.some(({ className }) => className === "face")), true);
    await page.context.close();
  });
});

/** Draws a view after each of some changes; answers the share of pixels that a new drawing of all has otherwise. */
async function differences({ base, kind, days, places }) {
  const { loadVelmora } = await import(`${base}load.js`);
  const settings = { locale: "en-US", clock: 12, weekStart: 0, secondCalendar: "none", theme: "dark", isTablet: false };
  const velmora = await loadVelmora({ base, settings, place: places[0], day: days[0] });
  const make = () => {
    const view = velmora.createView(kind, document.createElement("canvas"));
    view.resize(390, 430, 2);
    return view;
  };
  const pixelsOf = ({ canvas }) => new Uint32Array(
    canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data.buffer);
  const view = make();
  view.draw();
  const found = [];
  for (const change of [...days.map((day) => () => velmora.selectDay(day)),
    ...places.map((place) => () => velmora.select(place, days[1])),
    () => velmora.configure({ ...settings, theme: "light" })]) {
    change();
    view.draw();
    const whole = make();
    whole.draw();
    const expected = pixelsOf(whole), actual = pixelsOf(view);
    found.push(expected.filter((pixel, at) => pixel !== actual[at]).length / expected.length);
    whole.close();
  }
  return found;
}

describe("Changes", { skip: !isReal && "VELMORA_MODULE names no module" }, () => {
  const day = (year, month, number) => ({ year, month, day: number });
  const days = [day(2025, 9, 7), day(2025, 9, 8), day(2025, 9, 30), day(2025, 9, 1), day(2025, 10, 7), day(2026, 2, 28)];
  const places = [
    { latitude: 60.17, longitude: 24.94, zone: "Europe/Helsinki", name: "Helsinki" },
    { latitude: -33.92, longitude: 18.42, zone: "Africa/Johannesburg", name: "Cape Town" },
  ];

  /** Browsers smooth edges a little otherwise where what is drawn ends beside them; a day of a month has 0.02. */
  const most = 0.002;

  test("WhatIsDrawnAgainLeavesWhatADrawingOfAllShows", async () => {
    const module = await serve(process.env.VELMORA_MODULE);
    const browser = await launch();
    const page = await browser.newPage();
    await page.goto(`${module.address}icons/sunrise.png`);
    for (const kind of ["month", "year", "compass", "arc", "disc", "timeline", "night"]) {
      const found = await page.evaluate(differences, { base: module.address, kind, days, places });
      assert.equal(found.length, days.length + places.length + 1);
      assert.ok(Math.max(...found) <= most, `${kind}: ${found}`);
    }
    await browser.close();
    module.close();
  });
});
