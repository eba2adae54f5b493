// What a keyboard and a screen reader meet.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { smallTargets, violations } from "./rules.mjs";
import { addressed, at, desktop, drawn, focusedDay, phone, press, Site, settled, text, views } from "./pages.mjs";

describe("Access", () => {
  let site;
  before(async () => { site = await Site.open(); });
  after(() => site.close());

  for (const [name, options] of Object.entries({
    OnAPhone: { size: phone }, OnADesktopInTheLight: { size: desktop, scheme: "light" },
    InArabic: { language: "ar-EG" }, InJapanese: { language: "ja-JP" },
  })) {
    test(`NoViewViolatesARule${name}`, async () => {
      const page = await site.visitor(options);
      for (const view of views) {
        await site.show(page, at(view));
        assert.deepEqual(await violations(page), [], view);
      }
      assert.deepEqual(page.faults, []);
      await page.context.close();
    });
  }

  test("TheSheetsViolateNoRule", async () => {
    const page = await site.visitor();
    await site.show(page, at("month"));
    for (const opener of [".sections .more", ".share"]) {
      await page.click(opener);
      assert.deepEqual(await violations(page), [], opener);
      await press(page, "Escape");
      assert.equal(await page.$("dialog"), null);
    }
    await page.context.close();
  });

  test("EveryTargetIsLargeEnoughForAFinger", async () => {
    const page = await site.visitor();
    for (const view of views) {
      await site.show(page, at(view));
      assert.deepEqual(await smallTargets(page), [], view);
    }
    await page.context.close();
  });

  test("TheMonthIsAGridWithOneTabStopAndARovingFocus", async () => {
    const page = await site.visitor({ size: desktop });
    await site.show(page, at("month"));
    assert.equal(await page.$$eval("[role=grid] [tabindex='0']", (all) => all.length), 1);
    assert.equal(await page.$$eval("[role=gridcell]", (all) => all.length), 30);
    assert.equal(await page.$$eval("[role=columnheader]", (all) => all.length), 7);
    await page.focus("[role=grid] [tabindex='0']");
    const steps = [
      ["ArrowRight", "2025-09-08"], ["ArrowDown", "2025-09-15"], ["ArrowLeft", "2025-09-14"], ["ArrowUp", "2025-09-07"],
      ["End", "2025-09-13"], ["Home", "2025-09-07"], ["PageDown", "2025-10-07"], ["PageUp", "2025-09-07"],
      ["PageDown", "2026-09-07", "Shift"], ["PageUp", "2025-09-07", "Shift"], ["ArrowUp", "2025-08-31"],
      ["ArrowRight", "2025-09-01"],
    ];
    for (const [key, day, modifier] of steps) {
      await press(page, key, modifier);
      assert.equal(await focusedDay(page), day, key);
      assert.equal(await page.$$eval("[role=grid] [tabindex='0']", (all) => all.length), 1, key);
    }
    await press(page, "ArrowRight");
    await press(page, "Enter");
    await addressed(page, /day=2025-09-02/);
    assert.equal(await page.$eval("[aria-selected='true']", (cell) => cell.dataset.day), "2025-09-02");
    assert.equal(await focusedDay(page), "2025-09-02");
    await press(page, "t");
    assert.equal(await focusedDay(page), await page.$eval("[aria-current='date']", (cell) => cell.dataset.day));
    await page.context.close();
  });

  test("ArrowsGoTheOtherWayWhereWritingDoes", async () => {
    const page = await site.visitor({ size: desktop, language: "ar-EG" });
    await site.show(page, at("month"));
    await page.focus("[role=grid] [tabindex='0']");
    await press(page, "ArrowLeft");
    assert.equal(await focusedDay(page), "2025-09-08");
    await page.context.close();
  });

  test("DaysOfTheYearAndOfRiseAndSetAreListsWithOneTabStop", async () => {
    const page = await site.visitor({ size: desktop });
    for (const view of ["year", "riseset"]) {
      await site.show(page, at(view));
      if (await page.$("[role=listbox]") === null) continue;  // the double draws none
      assert.equal(await page.$$eval("[role=listbox] [tabindex='0']", (all) => all.length), 1, view);
    }
    await page.context.close();
  });

  test("TheTimeIsASliderThatSaysTheClock", async () => {
    const page = await site.visitor();
    await site.show(page, at("today"));
    await page.focus("[role=slider]");
    const said = () => page.$eval("[role=slider]", (slider) => slider.getAttribute("aria-valuetext").replace(/\s/g, " "));
    assert.equal(await said(), "9:30 PM");
    await press(page, "ArrowRight");
    await drawn(page);
    assert.equal(await said(), "9:35 PM");
    assert.equal((await text(page, ".clock")).replace(/\s/g, " "), "9:35 PM");
    await press(page, "PageUp");
    await drawn(page);
    assert.equal(await said(), "10:35 PM");
    await press(page, "Home");
    await drawn(page);
    assert.equal(await said(), "12:00 AM");
    await page.waitForFunction(() => location.hash.includes("time=00:00"));
    await page.context.close();
  });

  test("AnotherSectionTakesTheFocusAndIsSaid", async () => {
    const page = await site.visitor({ size: desktop });
    await site.show(page, at("today"));
    await page.click("[data-view=eclipses]");
    await settled(page);
    assert.equal(await page.evaluate(() => document.activeElement.id), "content");
    assert.equal(await text(page, ".spoken[role=status]"), "Eclipses");
    assert.equal(await text(page, "h1"), "Eclipses");
    await page.context.close();
  });
});
