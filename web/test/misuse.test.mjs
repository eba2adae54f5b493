// What people do in the middle of something else, and links and clocks that nobody meant.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { addressed, at, desktop, drawn, helsinki, isReal, phone, press, Site, settled, text } from "./pages.mjs";

const warning = ".notice p";
const focused = (page) => page.evaluate(() => document.activeElement.id);

describe("Misuse", () => {
  let site;
  before(async () => { site = await Site.open(); });
  after(() => site.close());

  /** Names of zones that a browser knows, and that are none of the zone database. */
  const strangeZones = ["europe/helsinki", "JST", "SystemV/PST8"];

  for (const zone of strangeZones) {
    test(`ALinkWithTheZone ${zone} IsTold`, { skip: !isReal }, async () => {
      const page = await site.visitor();
      await page.goto(`${site.address}#/month?day=2024-04-08&lat=60&lon=25&zone=${zone}&name=Here`);
      await settled(page);
      assert.match(await text(page, warning), new RegExp(`place that cannot be: “60, 25, ${zone}, Here”`));
      assert.equal(await text(page, "h1"), "Today");
      await site.show(page, at("month"));
      await page.evaluate((hash) => { location.hash = hash; }, `#/month?lat=60&lon=25&zone=${zone}`);
      await page.waitForSelector(warning);
      assert.equal(await text(page, ".place-button .label"), "Helsinki");
      assert.deepEqual(page.faults, []);
      await page.context.close();
    });
  }

  test("AKeptPlaceThatCannotBeShownIsLeftOut", { skip: !isReal }, async () => {
    const page = await site.visitor();
    await page.goto(site.address);
    await page.evaluate((good) => localStorage.setItem("velmora", JSON.stringify({
      places: ["#/today?lat=60&lon=25&zone=europe/helsinki", `#/today?${good}`],
    })), helsinki);
    await page.goto("about:blank");
    await page.goto(site.address);
    await settled(page);
    assert.equal(await text(page, ".place-button .label"), "Helsinki");
    await page.context.close();
  });

  test("AZoneInSmallLettersIsRefusedByHand", { skip: !isReal }, async () => {
    const page = await site.visitor();
    await site.show(page, at("place"));
    await page.type("#latitude", "60");
    await page.type("#longitude", "25");
    await page.$eval("#zone", (input) => { input.value = "europe/helsinki"; });
    await page.focus("#name");
    await press(page, "Enter");
    assert.match(await text(page, "#problem"), /time zone has a name/);
    assert.equal(await focused(page), "zone");
    assert.deepEqual(page.faults, []);
    await page.context.close();
  });

  test("BackClosesWhatIsOpenOverASection", async () => {
    const page = await site.visitor();
    await site.show(page, at("month"));
    await page.click("[data-view=sky]");
    await drawn(page);
    await page.click(".share");
    await page.goBack();
    await page.waitForSelector("html[data-view=month]");
    assert.equal(await page.$("dialog"), null);
    await page.context.close();
  });

  test("TheKeyboardStaysWhereAChoiceWasMade", async () => {
    const page = await site.visitor({ size: desktop });
    await site.show(page, at("settings"));
    await page.focus("#choice-clock");
    await page.select("#choice-clock", "24");
    await drawn(page);
    assert.equal(await focused(page), "choice-clock");
    await page.context.close();
  });

  test("TheKeyboardStaysInTheSectionWhenAPlaceIsRemoved", async () => {
    const page = await site.visitor({ size: desktop });
    await site.show(page, at("place"));
    await page.evaluate(() => { location.hash = "#/place?lat=1&lon=2&zone=UTC&name=Other"; });
    await page.waitForSelector("#remove-1");
    await page.focus("#remove-1");
    await press(page, "Enter");
    assert.equal(await page.$("#remove-1"), null);
    assert.equal(await focused(page), "content");
    await page.context.close();
  });

  test("WhatIsWrittenStaysWhenTheDeviceTurnsLight", async () => {
    const page = await site.visitor();
    await site.show(page, at("place"));
    await page.type("#latitude", "12.5");
    await page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: "light" }]);
    await page.waitForSelector("html[data-theme=light]");
    assert.equal(await page.$eval("#latitude", ({ value }) => value), "12.5");
    assert.equal(await focused(page), "latitude");
    await page.context.close();
  });

  test("APositionThatComesLateTakesNobodyAway", async () => {
    const page = await site.visitor({ before: () => {
      navigator.geolocation.getCurrentPosition = (found) => {
        globalThis.find = () => found({ coords: { latitude: 35.68, longitude: 139.69 } });
      };
    } });
    await site.show(page, at("place"));
    await page.click(".place .wide-button");
    await page.click("[data-view=month]");
    await drawn(page);
    await page.evaluate(async () => globalThis.find());
    await page.waitForNetworkIdle();
    await drawn(page);
    assert.equal(await text(page, "h1"), "Month");
    assert.equal(await text(page, ".place-button .label"), "Helsinki");
    await page.context.close();
  });

  test("TwoWindowsKeepWhatEachOfThemWasTold", async () => {
    const page = await site.visitor();
    await site.show(page, at("settings"));
    const other = await page.context.newPage();
    await other.setViewport(phone);
    await other.goto(`${site.address}#/place?lat=1&lon=2&zone=UTC&name=Other`);
    await settled(other);
    await other.click(".rows [aria-current]");
    await other.waitForFunction(() => localStorage.velmora.includes("Other"));
    await page.bringToFront();
    await page.select("#choice-theme", "light");
    await other.bringToFront();
    await other.waitForSelector("html[data-theme=light]");
    assert.equal(await text(other, ".place-button .label"), "Other");
    assert.match(await page.evaluate(() => localStorage.velmora), /"theme":"light".*Other/);
    await page.context.close();
  });

  test("ASectionThatIsLeftWhileItsPageTurnsIsDrawnNoMore", async () => {
    const page = await site.visitor({ motion: "no-preference" });
    await site.show(page, at("month"));
    // Another section is opened once the page begins to turn.
    await page.evaluate(() => {
      const { animate } = Element.prototype;
      Element.prototype.animate = function (...values) {
        const animation = animate.apply(this, values);
        document.querySelector("[data-view=sky]").click();
        animation.finished.then(() => { globalThis.hasSettled = true; });
        return animation;
      };
    });
    const { x, y, width } = await (await page.$(".stage")).boundingBox();
    const finger = await page.touchscreen.touchStart(x + width * 0.9, y + 100);
    for (let step = 1; step < 8; ++step) await finger.move(x + width * (0.9 - 0.1 * step), y + 100);
    await finger.end();
    await page.waitForFunction(() => globalThis.hasSettled);
    await drawn(page);
    assert.equal(await page.$eval("html", (html) => html.dataset.view), "sky");
    assert.deepEqual(page.faults, []);
    await page.context.close();
  });

  test("PullsThatFollowOneAnotherFastAllTurn", async () => {
    const page = await site.visitor({ motion: "no-preference" });
    await site.show(page, at("month"));
    const { x, y, width } = await (await page.$(".stage")).boundingBox();
    for (let pull = 0; pull < 3; ++pull) {
      const finger = await page.touchscreen.touchStart(x + width * 0.9, y + 100);
      for (let step = 1; step < 8; ++step) await finger.move(x + width * (0.9 - 0.1 * step), y + 100);
      await finger.end();
    }
    await page.waitForFunction(() => !document.querySelector(".neighbour"));
    assert.equal(await text(page, ".page-name"), "December 2025");
    await page.context.close();
  });

  test("AnEclipseOfTodaysSectionIsShownFromItsTop", async () => {
    const page = await site.visitor();
    await site.show(page, at("today"));
    const button = await page.waitForSelector(".eclipse-card .plain");
    await button.click();
    await addressed(page, /time=/);
    assert.equal(await page.evaluate(() => scrollY), 0);
    assert.equal(await focused(page), "content");
    await page.context.close();
  });
});
