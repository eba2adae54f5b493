// Debian's Firefox ESR, which speaks WebDriver BiDi itself.
import puppeteer from "puppeteer-core";
import { phone } from "../pages.mjs";

const patience = 180_000;  // milliseconds, until what never comes is given up

export async function open() {
  const browser = await puppeteer.launch({
    browser: "firefox", executablePath: process.env.FIREFOX ?? "/usr/bin/firefox-esr", headless: true,
    timeout: patience, protocolTimeout: patience,
  });
  const page = await browser.newPage();
  page.setDefaultTimeout(patience);
  await page.setViewport({ width: phone.width, height: phone.height });
  return {
    version: await browser.version(),
    goto: (address) => page.goto(address),
    reload: () => page.reload(),
    evaluate: (task, ...args) => page.evaluate(task, ...args),
    until: (condition, ...args) => page.waitForFunction(condition, {}, ...args),
    click: (x, y) => page.mouse.click(x, y),
    press: (key) => page.keyboard.press(key),
    screenshot: () => page.screenshot(),
    close: () => browser.close(),
  };
}
