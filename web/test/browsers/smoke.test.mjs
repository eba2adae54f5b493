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
const leastColours = { today: 200, month: 40, year: 40, riseset: 40, sky: 40, pictures: 200, posters: 40 };

/** Of the canvases on the screen together: a row of rise and set has few of its own. */
const hasColours = (least) => {
  const colours = new Set();
  for (const canvas of document.querySelectorAll("main canvas")) {
    if (canvas.width === 0) return false;
    const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext("2d");
    copy.drawImage(canvas, 0, 0);
    for (const colour of new Uint32Array(copy.getImageData(0, 0, canvas.width, canvas.height).data.buffer)) colours.add(colour);
  }
  return colours.size >= least;
};

/** How many blue pixels the picture of the screen shows in a day's disc and name: in the light those of the chosen day
 *  are blue. They stand before its hours. */
const bluePixels = async (picture, day) => {
  const bytes = Uint8Array.from(atob(picture), (letter) => letter.charCodeAt(0));
  const screen = await createImageBitmap(new Blob([bytes], { type: "image/png" }));
  const row = document.querySelector(`[data-day="${day}"]`).getBoundingClientRect();
  const width = 48;
  const copy = new OffscreenCanvas(width, row.height).getContext("2d");
  copy.drawImage(screen, -row.x, -row.y);
  const { data } = copy.getImageData(0, 0, width, row.height);
  let count = 0;
  for (let at = 0; at < data.length; at += 4) if (data[at + 2] - data[at] > 40) ++count;
  return count;
};

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

    test("AClickDrawsTheChosenRowOfRiseAndSetAndTheOneBefore", async () => {
      await show(at("settings"));
      await browser.evaluate(() => localStorage.setItem("velmora", JSON.stringify({ choices: { theme: "light" } })));
      await show(at("riseset"));
      await browser.until(hasColours, leastColours.riseset);
      const blue = async () => {
        const picture = Buffer.from(await browser.screenshot()).toString("base64");
        const of = (day) => browser.evaluate(bluePixels, picture, day);
        return [await of("2025-09-07"), await of("2025-09-09")];
      };
      const [chosen, other] = await blue();
      assert.ok(chosen > 100 && other === 0, `${chosen} and ${other} blue pixels`);
      const { x, y } = await browser.evaluate(() => {
        const box = document.querySelector("[data-day='2025-09-09']").getBoundingClientRect();
        return { x: box.x + 24, y: box.y + box.height / 2 };
      });
      await browser.click(x, y);
      await browser.until(() => location.hash.includes("day=2025-09-09"));
      const [left, taken] = await blue();
      assert.ok(left === 0 && taken > 100, `${left} and ${taken} blue pixels`);
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
