// The page in the other engines: what a person does first. web/test/*.test.mjs try all of it in Chromium.
import assert from "node:assert/strict";
import { mkdir, mkdtemp, writeFile } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, describe, test } from "node:test";
import { fileURLToPath } from "node:url";
import { buildFolder } from "../../build.mjs";
import { serve } from "../../static.mjs";
import { at, moduleFolder, views } from "../pages.mjs";
import * as firefox from "./firefox.mjs";
import * as webkit from "./webkit.mjs";

const pictures = fileURLToPath(new URL("../../../build/screens", import.meta.url));

/**
 * How many colours a section's canvases have at least once all is drawn, pictures of the Moon too. Sections without
 * a canvas tell by their text alone that they stand.
 */
const leastColours = { today: 200, month: 40, year: 40, riseset: 40, sky: 40, pictures: 200 };

const hasColours = (least) => [...document.querySelectorAll("main canvas")].every((canvas) => {
  const { data } = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
  return new Set(new Uint32Array(data.buffer)).size >= least;
});

for (const [name, engine] of Object.entries({ Firefox: firefox, WebKitGTK: webkit })) {
  describe(`Page in ${name}`, () => {
    let folder, server, browser;
    before(async () => {
      folder = await mkdtemp(join(tmpdir(), "velmora-page-"));
      await buildFolder(await moduleFolder(), folder);
      server = await serve(folder);
      browser = await engine.open();
      console.log(`${name} ${browser.version}`);
    });
    after(async () => {
      await browser?.close();
      server?.closeAll();
      server?.close();
    });

    const ready = () => browser.until(() => document.documentElement.dataset.ready === "true");
    const show = async (link) => {
      await browser.goto("about:blank");
      await browser.goto(server.address + link);
      await ready();
    };
    const text = (selector) => browser.evaluate((one) => document.querySelector(one).textContent, selector);
    const hash = () => browser.evaluate(() => decodeURIComponent(location.hash));

    for (const view of views) {
      test(`TheSection ${view} Appears`, async () => {
        await show(at(view));
        await browser.until((wanted) => document.documentElement.dataset.view === wanted, view);
        assert.notEqual((await text("main")).trim(), "");
        const canvases = await browser.evaluate(() => document.querySelectorAll("main canvas").length);
        assert.equal(canvases > 0, view in leastColours);
        await browser.until(hasColours, leastColours[view] ?? 0);
        await mkdir(pictures, { recursive: true });
        await writeFile(join(pictures, `${name.toLowerCase()}-${view}.png`), await browser.screenshot());
      });
    }

    test("AClickChoosesADay", async () => {
      await show(at("month"));
      const { x, y } = await browser.evaluate(() => {
        const box = document.querySelector("[data-day='2025-09-18']").getBoundingClientRect();
        return { x: box.x + box.width / 2, y: box.y + box.height / 2 };
      });
      await browser.click(x, y);
      await browser.until(() => location.hash.includes("day=2025-09-18"));
      assert.match(await text(".panel h2"), /September 18, 2025/);
    });

    test("KeysChooseADay", async () => {
      await show(at("month"));
      await browser.evaluate(() => document.querySelector("[role=grid] [tabindex='0']").focus());
      for (const key of ["ArrowRight", "ArrowDown", "Enter"]) await browser.press(key);
      await browser.until(() => location.hash.includes("day=2025-09-15"));
      assert.equal(await browser.evaluate(() => document.activeElement.dataset.day), "2025-09-15");
    });

    test("TheLanguageIsChangedToArabicAndAReloadKeepsIt", async () => {
      await show(at("settings"));
      await browser.evaluate(() => {
        const box = document.querySelector("#choice-language");
        box.value = "ar";
        box.dispatchEvent(new Event("change", { bubbles: true }));
      });
      const isArabic = () => document.documentElement.dir === "rtl" &&
        document.querySelector("h1")?.textContent === "الإعدادات";
      await browser.until(isArabic);
      await browser.reload();
      await ready();
      await browser.until(isArabic);
      assert.match(await hash(), /#\/settings\?day=2025-09-07&time=21:30&lat=60.1699/);
    });

    test("ThePageOpensWithoutANetworkAfterOneVisit", async () => {
      await show(at("month"));
      await browser.evaluate(() => navigator.serviceWorker.ready.then(() => true));
      await browser.until(() => navigator.serviceWorker.controller !== null);
      server.close();
      server.closeAll();
      await show(at("year"));
      await browser.until(() => document.documentElement.dataset.view === "year");
    });
  });
}
