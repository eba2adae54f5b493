// Rules that every section keeps: those of axe-core, and a finger's size.
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";

const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

/** What axe-core finds wrong with what the page shows. */
export async function violations(page) {
  const cdp = await page.createCDPSession();
  await cdp.send("Runtime.evaluate", { expression: axe });  // past the page's own policy
  const { result } = await cdp.send("Runtime.evaluate", {
    expression: `axe.run(document, { runOnly: ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice"] })
      .then(({ violations }) => JSON.stringify(violations.map(({ id, nodes }) => [id, ...nodes.map(({ html, failureSummary }) => html.slice(0, 200) + " :: " + failureSummary)])))`,
    awaitPromise: true, returnByValue: true,
  });
  return JSON.parse(result.value);
}

/** What is to be tapped and is smaller than 44 points. A switch is tapped by its label, too. */
export async function smallTargets(page) {
  return page.$$eval("button, select, input, summary, [role=slider]", (all) => all
    .filter((one) => one.offsetParent && !one.closest("[hidden]"))
    .map((one) => [one.outerHTML.slice(0, 120), one.getBoundingClientRect()])
    .filter(([, { width, height }]) => width > 0 && (height < 43.9 || width < 43.9))
    .filter(([html]) => !html.includes('role="switch"'))
    .map(([html, { width, height }]) => `${html} ${width}x${height}`));
}
