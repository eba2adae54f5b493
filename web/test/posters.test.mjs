// Pictures for paper.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { violations } from "./rules.mjs";
import { at, drawn, isReal, Site, text } from "./pages.mjs";

/** Has the page remember what it saves. */
function watchFiles() {
  globalThis.saved = [];
  URL.createObjectURL = (blob) => {
    globalThis.saved.push(blob);
    return "#";
  };
}

async function save(page, row) {
  await page.click(".share");
  await page.evaluate((label) => [...document.querySelectorAll("dialog .row")]
    .find(({ textContent }) => textContent.includes(label)).click(), row);
  await page.waitForFunction(() => globalThis.saved.length > 0);
}

describe("Posters", { skip: !isReal && "VELMORA_MODULE names no module" }, () => {
  let site;
  before(async () => { site = await Site.open(); });
  after(() => site.close());

  for (const [kind, width, title] of [
    ["night", 3508, /Helsinki/], ["darkness", 2480, /Hours of darkness/], ["poster", 2480, /Phases of the Moon/],
  ]) {
    test(`ThePoster ${kind} IsShownAndSavedForPaper`, async () => {
      const page = await site.visitor({ before: watchFiles });
      await site.show(page, at("posters"));
      await page.click(`[data-poster=${kind}]`);
      await drawn(page);
      assert.deepEqual(await violations(page), []);
      assert.equal(await page.$$eval("[data-poster][aria-pressed=true]", ([one, ...more]) => more.length === 0 && one.dataset.poster), kind);
      await save(page, "SVG");
      assert.match(await page.evaluate(() => globalThis.saved[0].text()), title);
      await page.evaluate(() => { globalThis.saved = []; });
      await save(page, "PNG");
      const size = await page.evaluate(async () => (await createImageBitmap(globalThis.saved[0])).width);
      assert.equal(size, width);
      assert.deepEqual(page.faults, []);
      await page.context.close();
    });
  }

  test("APosterOfAYearFollowsItsYear", async () => {
    const page = await site.visitor();
    await site.show(page, at("posters"));
    await page.click("[data-poster=darkness]");
    await page.click("[aria-label='Next year']");
    await drawn(page);
    assert.equal(await text(page, ".page-name"), "2026");
    assert.equal(await page.$$eval(".elements [role=img]", (all) => all.some((one) => one.ariaLabel.includes("2026"))), true);
    await page.context.close();
  });
});

describe("Paper", { skip: !isReal && "VELMORA_MODULE names no module" }, () => {
  test("TheSkyIsPrintedWithItsArc", async () => {
    const site = await Site.open();
    const page = await site.visitor();
    await site.show(page, at("sky"));
    await page.evaluate(() => dispatchEvent(new Event("beforeprint")));
    await page.emulateMediaType("print");
    const heights = await page.$$eval(".printed svg", (all) => all.map((one) => one.getBoundingClientRect().height));
    assert.equal(heights.length, 2);
    assert.ok(heights.every((height) => height > 100), String(heights));
    await page.evaluate(() => dispatchEvent(new Event("afterprint")));
    assert.equal(await page.$(".printed"), null);
    await site.close();
  });

  test("TheRisesAndSetsOfAMonthTakeOneSheetWithTheirIcons", async () => {
    const site = await Site.open();
    const page = await site.visitor();
    await site.show(page, at("riseset"));
    await page.evaluate(() => dispatchEvent(new Event("beforeprint")));
    const blended = await page.$$eval(".printed [data-style]", (all) => all.map((one) => getComputedStyle(one).mixBlendMode));
    assert.ok(blended.length > 31);
    assert.deepEqual([...new Set(blended)], ["overlay"]);
    const missing = await page.$$eval(".printed use", (all) => all.filter((one) => !document.querySelector(one.getAttribute("href"))).length);
    assert.equal(missing, 0);
    await page.evaluate(() => dispatchEvent(new Event("afterprint")));
    const sheets = Buffer.from(await page.pdf({ format: "A4" })).toString("latin1").match(/\/Type \/Page\b/g);
    assert.equal(sheets.length, 1);
    assert.deepEqual(page.faults, []);
    await site.close();
  });

  test("AViewIsPrintedOnce", async () => {
    const site = await Site.open();
    const page = await site.visitor();
    await site.show(page, at("month"));
    for (let time = 0; time < 2; ++time) await page.evaluate(() => dispatchEvent(new Event("beforeprint")));
    assert.equal(await page.$$eval(".printed", (all) => all.length), 1);
    await site.close();
  });
});
