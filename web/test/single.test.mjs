// The page in one file, opened from a disk.
import assert from "node:assert/strict";
import { test } from "node:test";
import { pathToFileURL } from "node:url";
import { join } from "node:path";
import { buildFile } from "../build.mjs";
import { at, moduleFolder, settled, Site } from "./pages.mjs";

test("ThePageInOneFileOpensFromADiskAndAsksForNothing", async () => {
  const site = await Site.open();
  const file = join(site.folder, "velmora.html");
  await buildFile(await moduleFolder(), site.folder, file);
  const page = await site.visitor();
  for (const view of ["today", "month", "eclipses", "settings"]) {
    await page.goto("about:blank");
    await page.goto(pathToFileURL(file).href + at(view));
    await settled(page);
    assert.equal(await page.$eval("html", (html) => html.dataset.view), view);
  }
  await page.select("#choice-language", "ja");
  await page.waitForFunction(() => document.querySelector("h1").textContent === "設定");
  assert.deepEqual(page.faults, []);
  assert.deepEqual(page.requests.filter((address) => !/^(file|about|data|blob):/.test(address)), []);
  await site.close();
});
