// Debian's Chromium, with nothing that reaches for the network.
import { mkdtemp } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import puppeteer from "puppeteer-core";

export async function launch(flags = []) {
  return puppeteer.launch({
    executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
    headless: true,
    userDataDir: await mkdtemp(join(tmpdir(), "velmora-chromium-")),
    args: [
      "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
      "--disable-component-update", "--disable-sync", "--disable-dev-shm-usage", ...flags,
    ],
  });
}
