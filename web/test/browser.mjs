// Debian's Chromium, with nothing that reaches for the network.
import { mkdtemp } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import puppeteer from "puppeteer-core";

/** Chromium does not start for root with its sandbox. */
const sandbox = process.getuid() === 0 ? ["--no-sandbox"] : [];

export async function launch(flags = []) {
  return puppeteer.launch({
    executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
    headless: true,
    userDataDir: await mkdtemp(join(tmpdir(), "velmora-chromium-")),
    args: [
      ...sandbox, "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
      "--disable-component-update", "--disable-sync", "--disable-dev-shm-usage", ...flags,
    ],
  });
}
