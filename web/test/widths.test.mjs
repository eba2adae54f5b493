// A tablet and a desktop, where sections stand at the side, and text so large that little of it has room.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { smallTargets, violations } from "./rules.mjs";
import { at, Site, views } from "./pages.mjs";

const sizes = {
  ATablet: { width: 820, height: 1180, deviceScaleFactor: 2, isMobile: true, hasTouch: true },
  ADesktop: { width: 1280, height: 800, deviceScaleFactor: 1 },
};

/** As wide as a phone is to text of twice the size, and a window four times enlarged. */
const enlarged = {
  TextTwiceAsLarge: { width: 195, height: 422, deviceScaleFactor: 2, isMobile: true, hasTouch: true },
  AWindowFourTimesEnlarged: { width: 320, height: 256, deviceScaleFactor: 4 },
};

/** What reaches over the edges of the box that it stands in. */
const stickingOut = () => [...document.querySelectorAll(".bar, .sections, .card, .page-head, .date-line, .segments")]
  .flatMap((box) => {
    const { left, right } = box.getBoundingClientRect();
    return [...box.querySelectorAll(":not(option, .spoken, svg *)")].filter((one) => {
      const inner = one.getBoundingClientRect();
      return inner.width > 0 && (inner.left < left - 1 || inner.right > right + 1);
    });
  }).map((one) => one.outerHTML.slice(0, 100));

describe("Widths", () => {
  let site;
  before(async () => { site = await Site.open(); });
  after(() => site.close());

  for (const [name, size] of Object.entries(sizes)) {
    test(`${name}KeepsTheRulesAndShowsAllOfItsWidth`, async () => {
      const page = await site.visitor({ size });
      for (const view of views) {
        await site.show(page, at(view));
        assert.deepEqual(await violations(page), [], view);
        assert.deepEqual(await smallTargets(page), [], view);
        assert.equal(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), true, view);
      }
      assert.deepEqual(page.faults, []);
      await page.context.close();
    });
  }

  for (const [name, size] of Object.entries(enlarged)) {
    test(`${name}IsNotCut`, async () => {
      const page = await site.visitor({ size, language: "de-DE" });
      for (const view of views) {
        await site.show(page, at(view));
        assert.equal(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), true, view);
        assert.deepEqual(await page.evaluate(stickingOut), [], view);
      }
      assert.deepEqual(page.faults, []);
      await page.context.close();
    });
  }
});
