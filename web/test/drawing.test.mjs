// What is drawn again after a change, and what stays.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { at, drawn, isReal, press, Site } from "./pages.mjs";

/** Has the page remember each canvas that is cleared to be drawn on. */
function watchCanvases() {
  globalThis.painted = [];
  const { clearRect } = CanvasRenderingContext2D.prototype;
  CanvasRenderingContext2D.prototype.clearRect = function (...values) {
    globalThis.painted.push(this.canvas);
    clearRect.apply(this, values);
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
    assert.equal(await page.evaluate(() => new Set(globalThis.painted).size), 31);
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
