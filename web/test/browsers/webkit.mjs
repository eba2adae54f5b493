// WebKitGTK's small browser, asked through its driver in the words of WebDriver (https://www.w3.org/TR/webdriver2/).
import { spawn } from "node:child_process";
import { once } from "node:events";
import { createServer } from "node:net";
import { phone } from "../pages.mjs";

const browser = process.env.WEBKIT_BROWSER ?? "/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser";
const keys = { ArrowRight: "\uE014", ArrowDown: "\uE015", Enter: "\uE007" };
const patience = 120_000;  // milliseconds, of the driver: until it gives up what never comes

async function freePort() {
  const server = createServer().listen(0, "127.0.0.1");
  await once(server, "listening");
  const { port } = server.address();
  server.close();
  await once(server, "close");
  return port;
}

/** A screen in memory; Xvfb tells its number once it is there. */
async function openScreen() {
  const server = spawn("Xvfb", ["-displayfd", "3", "-screen", "0", "1440x1200x24", "-nolisten", "tcp"],
    { stdio: ["ignore", "ignore", "ignore", "pipe"] });
  const [number] = await Promise.race([once(server.stdio[3], "data"), once(server, "exit").then(() => {
    throw new Error("Xvfb did not start");
  })]);
  return { name: `:${String(number).trim()}`, close: () => server.kill() };
}

class Driver {
  constructor(program, port) {
    this.program = program;
    this.base = `http://127.0.0.1:${port}`;
  }

  /** Until it listens. */
  static async open(display) {
    const port = await freePort();
    const program = spawn("WebKitWebDriver", ["-p", String(port)],
      { stdio: "ignore", env: { ...process.env, DISPLAY: display, GDK_BACKEND: "x11" } });
    const driver = new Driver(program, port);
    for (;;) {
      if (program.exitCode !== null) throw new Error("WebKitWebDriver did not start");
      try {
        await driver.call("GET", "/status");
        return driver;
      } catch (error) {
        if (error.cause?.code !== "ECONNREFUSED") throw error;
      }
    }
  }

  async call(method, path, body) {
    const response = await fetch(this.base + path, { method, body: body && JSON.stringify(body) });
    const { value } = await response.json();
    if (!response.ok) throw new Error(`${path}: ${value.error}: ${value.message}`);
    return value;
  }
}

export async function open() {
  const screen = await openScreen();
  const driver = await Driver.open(screen.name);
  const { sessionId, capabilities } = await driver.call("POST", "/session", { capabilities: { alwaysMatch: {
    "webkitgtk:browserOptions": { binary: browser, args: ["--automation"] },
    timeouts: { script: patience, pageLoad: patience },
  } } });
  const call = (method, path, body) => driver.call(method, `/session/${sessionId}${path}`, body);
  await call("POST", "/window/rect", { width: phone.width, height: phone.height });
  const evaluate = (task, ...args) => call("POST", "/execute/async", {
    script: `const done = arguments[arguments.length - 1];
      Promise.resolve((${task})(...[...arguments].slice(0, -1))).then(done);`, args,
  });
  const act = (source) => call("POST", "/actions", { actions: [source] });
  return {
    version: capabilities.browserVersion,
    goto: (address) => call("POST", "/url", { url: address }),
    reload: () => call("POST", "/refresh", {}),
    evaluate,
    until: (condition, ...args) => evaluate(`(...args) => new Promise((done) => {
      const look = () => (${condition})(...args) ? done(true) : requestAnimationFrame(look);
      look();
    })`, ...args),
    click: (x, y) => act({ type: "pointer", id: "mouse", parameters: { pointerType: "mouse" }, actions: [
      { type: "pointerMove", x: Math.round(x), y: Math.round(y) },
      { type: "pointerDown", button: 0 }, { type: "pointerUp", button: 0 },
    ] }),
    press: (key) => act({ type: "key", id: "keys", actions: [
      { type: "keyDown", value: keys[key] }, { type: "keyUp", value: keys[key] },
    ] }),
    screenshot: async () => Buffer.from(await call("GET", "/screenshot"), "base64"),
    async close() {
      await call("DELETE", "");
      driver.program.kill();
      screen.close();
    },
  };
}
