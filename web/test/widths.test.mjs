// A tablet and a desktop, where sections stand at the side.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { smallTargets, violations } from "./rules.mjs";
import { at, Site, views } from "./pages.mjs";

const sizes = {
  ATablet: { width: 820, height: 1180, deviceScaleFactor: 2, isMobile: true, hasTouch: true },
  ADesktop: { width: 1280, height: 800, deviceScaleFactor: 1 },
};

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
});
