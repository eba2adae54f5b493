// What a person does with the page.
import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { addressed, at, desktop, drawn, helsinki, isReal, phone, press, Site, settled, swipe, text, views } from "./pages.mjs";

const warning = ".notice p";

describe("Page", () => {
  let site;
  before(async () => { site = await Site.open(); });
  after(() => site.close());

  test("EverySectionOpensByItsLinkWithoutAFault", async () => {
    const page = await site.visitor();
    for (const view of views) {
      await site.show(page, at(view));
      assert.equal(await page.$eval("html", (html) => html.dataset.view), view);
      assert.match(await page.title(), /Helsinki/);
    }
    assert.deepEqual(page.faults, []);
    await page.context.close();
  });

  test("NothingIsAskedOfAnotherServer", async () => {
    const page = await site.visitor();
    for (const view of views) await site.show(page, at(view));
    const others = page.requests.filter((address) => !address.startsWith(site.address) && !/^(about|data|blob):/.test(address));
    assert.deepEqual(others, []);
    await page.context.close();
  });

  test("ATapSelectsADay", async () => {
    const page = await site.visitor();
    await site.show(page, at("month"));
    const box = await page.$eval("[data-day='2025-09-18']", (cell) => cell.getBoundingClientRect().toJSON());
    await page.touchscreen.tap(box.x + box.width / 2, box.y + box.height / 2);
    await drawn(page);
    await addressed(page, /day=2025-09-18/);
    assert.match(await text(page, ".panel h2"), /September 18, 2025/);
    await page.context.close();
  });

  test("APullTurnsTheMonth", async () => {
    const page = await site.visitor();
    await site.show(page, at("month"));
    await swipe(page, ".stage", 0.8, 0.2);
    assert.equal(await text(page, ".page-name"), "October 2025");
    await swipe(page, ".stage", 0.2, 0.8);
    assert.equal(await text(page, ".page-name"), "September 2025");
    await swipe(page, ".stage", 0.5, 0.46);
    assert.equal(await text(page, ".page-name"), "September 2025");
    await page.context.close();
  });

  test("APullTurnsTheOtherWayWhereWritingDoes", async () => {
    const page = await site.visitor({ language: "ar-EG" });
    await site.show(page, at("month"));
    await swipe(page, ".stage", 0.2, 0.8);
    await addressed(page, /day=2025-10-07/);
    await page.context.close();
  });

  test("TheTablesEndStopsThePull", async () => {
    const page = await site.visitor();
    await site.show(page, at("month", "day=2040-12-05&time=12:00"));
    await swipe(page, ".stage", 0.8, 0.2);
    assert.equal(await text(page, ".page-name"), "December 2040");
    await addressed(page, /day=2040-12-05/);
    assert.equal(await page.$eval("[aria-label='Next month']", (button) => button.disabled), true);
    await page.context.close();
  });

  test("AReloadShowsTheSame", async () => {
    const page = await site.visitor();
    await site.show(page, at("sky"));
    await page.reload();
    await settled(page);
    assert.equal(await text(page, "h1"), "Sky");
    await addressed(page, /#\/sky\?day=2025-09-07&time=21:30&lat=60.1699/);
    await page.context.close();
  });

  test("BackGoesToTheSectionBefore", async () => {
    const page = await site.visitor({ size: desktop });
    await site.show(page, at("today"));
    await page.click("[data-view=month]");
    await page.click("[data-view=year]");
    assert.equal(await text(page, "h1"), "Year");
    await page.goBack();
    await drawn(page);
    assert.equal(await text(page, "h1"), "Month");
    await page.context.close();
  });

  for (const [link, said] of [
    ["#/nowhere", /section that there is not: “nowhere”/],
    [`#/month?day=2024-02-30&${helsinki}`, /day that is not known: “2024-02-30”/],
    [`#/month?day=1999-12-31&${helsinki}`, /day that is not known: “1999-12-31”/],
    [`#/today?time=25:00&${helsinki}`, /time that there is not: “25:00”/],
    ["#/today?lat=95&lon=0&zone=UTC", /place that cannot be: “95, 0, UTC, –”/],
    ["#/today?lat=5&lon=0&zone=Moon/Tycho", /place that cannot be/],
    ["#hello", /cannot be read: “hello”/],
    ["#/today?x=%3Cimg%20src=x%20onerror=alert(1)%3E", /cannot be read: “x”/],
  ]) {
    test(`TheWrongLink ${link} IsToldAndTheUsualIsShown`, async () => {
      const page = await site.visitor();
      await site.show(page, link);
      assert.match(await text(page, warning), said);
      assert.equal(await text(page, "h1"), "Today");
      assert.equal(await page.$eval("canvas", (canvas) => canvas.width > 0), true);
      assert.deepEqual(page.faults, []);
      await page.context.close();
    });
  }

  test("TheDayPulledAlongItsRulerIsFollowed", async () => {
    const page = await site.visitor();
    await site.show(page, at("today"));
    const before = await text(page, ".card dd");
    await swipe(page, ".strip", 0.9, 0.25);
    const clock = (await text(page, ".clock")).replace(/\s/g, " ");
    assert.match(clock, /^(5:5\d|6:0\d) AM$/);
    assert.notEqual(await text(page, ".cards"), before);
    await page.click(".time-line .plain");
    await drawn(page);
    await addressed(page, /^(?!.*time=)/);
    await page.context.close();
  });

  test("ChoicesAreKept", async () => {
    const page = await site.visitor();
    await site.show(page, at("settings"));
    await page.select("#choice-clock", "24");
    await page.select("#choice-theme", "light");
    await site.show(page, at("today"));
    assert.equal(await text(page, ".clock"), "21:30");
    assert.equal(await page.$eval("html", (html) => html.dataset.theme), "light");
    await page.context.close();
  });

  test("TheLanguageIsChangedToArabicAndJapanese", async () => {
    const page = await site.visitor();
    await site.show(page, at("settings"));
    await page.select("#choice-language", "ar");
    await page.waitForFunction(() => document.querySelector("h1").textContent === "الإعدادات");
    assert.equal(await page.$eval("html", ({ dir, lang }) => `${lang} ${dir}`), "ar rtl");
    await page.select("#choice-language", "ja");
    await page.waitForFunction(() => document.querySelector("h1").textContent === "設定");
    assert.equal(await page.$eval("html", ({ dir, lang }) => `${lang} ${dir}`), "ja ltr");
    assert.deepEqual(page.faults, []);
    await page.context.close();
  });

  test("ABrowserThatKeepsNothingIsTold", async () => {
    const page = await site.visitor({ before: () => {
      Object.defineProperty(window, "localStorage", { get() { throw new DOMException("denied", "SecurityError"); } });
    } });
    await site.show(page, at("settings"));
    assert.match(await text(page, "main"), /keeps nothing/);
    await page.select("#choice-clock", "24");
    await drawn(page);
    assert.equal(await page.$eval("#choice-clock", (box) => box.value), "24");
    assert.deepEqual(page.faults, []);
    await page.context.close();
  });

  test("AFullStorageIsTold", async () => {
    const page = await site.visitor({ before: () => {
      Storage.prototype.setItem = () => { throw new DOMException("full", "QuotaExceededError"); };
    } });
    await site.show(page, at("settings"));
    await page.select("#choice-clock", "24");
    await drawn(page);
    assert.match(await text(page, "main"), /keeps nothing/);
    await page.context.close();
  });

  test("WhatWasKeptAndIsDamagedIsLeftOut", async () => {
    for (const kept of ["{", "7", '{"places":[3,"#/today?lat=99"],"choices":{"clock":"13","theme":7}}']) {
      const page = await site.visitor();
      await page.goto(site.address);
      await page.evaluate((text) => localStorage.setItem("velmora", text), kept);
      await site.show(page, at("today"));
      assert.deepEqual(page.faults, []);
      await page.context.close();
    }
  });

  test("ARefusedPositionIsTold", async () => {
    const page = await site.visitor();
    await page.context.overridePermissions(site.address, []);
    await site.show(page, at("place"));
    await page.click(".place .wide-button");
    await page.waitForSelector(warning);
    assert.match(await text(page, warning), /position was refused/);
    await page.context.close();
  });

  test("TheOwnPositionIsTaken", async () => {
    const page = await site.visitor();
    await page.context.overridePermissions(site.address, ["geolocation"]);
    await page.setGeolocation({ latitude: 35.68, longitude: 139.69 });
    await site.show(page, at("place"));
    await page.click(".place .wide-button");
    await page.waitForFunction(() => location.hash.includes("lat=35.68"));
    assert.equal(await text(page, "h1"), "Today");
    await page.context.close();
  });

  test("ACityIsFoundAndKept", async () => {
    const page = await site.visitor();
    await site.show(page, at("place"));
    await page.type("#city", "Portl");
    await page.waitForSelector("#cities .row");
    await page.click("#cities .row");
    await drawn(page);
    await addressed(page, /name=Portland/);
    await page.goto(site.address);
    await settled(page);
    assert.equal(await text(page, ".place-button .label"), "Portland");
    await page.context.close();
  });

  test("WrongCoordinatesAreToldAndRightOnesTaken", async () => {
    const page = await site.visitor();
    await site.show(page, at("place"));
    await page.type("#latitude", "91");
    await press(page, "Enter");
    assert.match(await text(page, "#problem"), /latitude is a number/);
    await page.$eval("#latitude", (input) => { input.value = "-33,9"; });
    await page.type("#longitude", "18.4");
    await page.$eval("#zone", (input) => { input.value = "Africa/Johannesburg"; });
    await page.focus("#name");
    await press(page, "Enter");
    await addressed(page, /lat=-33.9&lon=18.4&zone=Africa\/Johannesburg/);
    await page.context.close();
  });

  test("ThePageCanBeInstalled", async () => {
    const page = await site.browser.newPage();  // a visitor's window is a private one, which installs nothing
    await site.show(page);
    const cdp = await page.createCDPSession();
    assert.deepEqual((await cdp.send("Page.getAppManifest")).errors, []);
    assert.deepEqual((await cdp.send("Page.getInstallabilityErrors")).installabilityErrors, []);
    await page.close();
  });

  test("ThePageOpensWithoutANetworkAfterOneVisit", async () => {
    const own = await Site.open();
    const page = await own.visitor();
    await own.show(page, at("month"));
    await page.evaluate(() => navigator.serviceWorker.ready);
    await page.waitForFunction(() => navigator.serviceWorker.controller !== null);
    own.server.close();
    own.server.closeAll();
    for (const view of views.filter((one) => one !== "pictures")) {
      await page.goto("about:blank");
      await page.goto(own.address + at(view));
      await settled(page);
      assert.equal(await page.$eval("html", (html) => html.dataset.view), view);
    }
    await own.browser.close();
  });

  test("TheCompassTurnsWithTheDevice", async () => {
    const page = await site.visitor();
    await site.show(page, at("sky"));
    await page.click(".compass-tools .wide-button");
    // A device tells its bearing again and again; the page listens once it has asked for leave.
    await page.waitForFunction(() => {
      dispatchEvent(new DeviceOrientationEvent("deviceorientationabsolute", { alpha: 270, absolute: true }));
      return document.querySelector(".turner").getAttribute("aria-valuenow") === "90";
    });
    await page.context.close();
  });

  test("TheCompassTurnsByAFinger", async () => {
    const page = await site.visitor();
    await site.show(page, at("sky"));
    const box = await (await page.$(".turner")).boundingBox();
    const finger = await page.touchscreen.touchStart(box.x + box.width * 0.9, box.y + box.height / 2);
    await finger.move(box.x + box.width / 2, box.y + box.height * 0.9);
    await finger.end();
    await drawn(page);
    assert.equal(await page.$eval(".turner", (turner) => turner.getAttribute("aria-valuenow")), "270");
    await page.context.close();
  });

  test("APrintedViewIsADrawingAndGoesAfterwards", async () => {
    const page = await site.visitor();
    await site.show(page, at("month"));
    await page.evaluate(() => dispatchEvent(new Event("beforeprint")));
    await page.emulateMediaType("print");
    assert.equal(await page.$eval(".printed svg", (drawing) => drawing.getBoundingClientRect().height > 100), true);
    await page.evaluate(() => dispatchEvent(new Event("afterprint")));
    assert.equal(await page.$(".printed"), null);
    assert.deepEqual(page.faults, []);
    await page.context.close();
  });

  test("ADayTellsItsLunationWhereTheCalendarsBeginAndAfterAMonthWithoutANewMoon", { skip: !isReal }, async () => {
    const page = await site.visitor();
    for (const [day, told] of [
      ["2000-01-01", "Waning Crescent day 25 of"], ["2000-01-06", "New Moon day 1 of"], ["2000-01-07", "Waxing Crescent day 2 of"],
      ["2014-02-28", "Waning Crescent day 30 of"], ["2014-03-01", "New Moon day 1 of"],
    ]) {
      await site.show(page, at("month", `day=${day}`));
      assert.match(await text(page, ".panel-phase"), new RegExp(told), day);
    }
    await page.context.close();
  });

  test("AnEclipseAfterTheCalendarsEndLeadsToNoDay", { skip: !isReal }, async () => {
    const page = await site.visitor();
    await site.show(page, at("eclipses", "day=2040-12-31"));
    assert.match(await text(page, ".eclipse-date"), /2041/);
    assert.equal(await page.$(".eclipse-card .plain"), null);
    await page.context.close();
  });

  test("TheLightAndTheSizeOfTheDeviceAreFollowed", async () => {
    const page = await site.visitor({ size: phone, scheme: "dark" });
    await site.show(page, at("month"));
    await page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: "light" }]);
    await page.waitForSelector("html[data-theme=light]");
    await page.setViewport({ ...phone, width: 844, height: 390 });
    await drawn(page);
    assert.equal(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), true);
    assert.deepEqual(page.faults, []);
    await page.context.close();
  });
});
