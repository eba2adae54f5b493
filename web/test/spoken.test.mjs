// What a screen reader says of each section, in reading order, beside the texts in web/test/spoken. When what is
// said has rightly changed: VELMORA_UPDATE_SPOKEN=1 web/run-tests writes them anew, for reading and committing.
import assert from "node:assert/strict";
import { readFile, writeFile } from "node:fs/promises";
import { after, before, describe, test } from "node:test";
import { at, isReal, Site, views } from "./pages.mjs";

/** Parts of which nothing is said themselves, and those whose name says what is in them. */
const unsaid = new Set(["RootWebArea", "generic", "none", "row", "InlineTextBox", "LineBreak"]);
const whole = new Set([
  "button", "cell", "columnheader", "combobox", "DisclosureTriangle", "gridcell", "heading", "image", "link", "option",
  "rowheader", "slider", "StaticText", "term",
]);
const states = ["checked", "pressed", "selected", "expanded", "disabled", "invalid"];

/** "Next month, button, disabled": name, role, value, description and states. */
function sentence({ name, role, value, description, properties = [] }) {
  const is = (state) => properties.some((one) => one.name === state && ![false, "false"].includes(one.value.value));
  const said = [name?.value, role.value === "StaticText" ? "" : role.value, value?.value, description?.value,
    ...states.filter(is)];
  return said.map((part) => String(part ?? "").replace(/\s+/g, " ").trim()).filter(Boolean).join(", ");
}

function sentences(nodes) {
  const byId = new Map(nodes.map((node) => [node.nodeId, node]));
  const said = [];
  const visit = (node) => {
    const role = node.role?.value;
    const isSaid = !node.ignored && !unsaid.has(role) && `${node.name?.value ?? ""}${node.value?.value ?? ""}`.trim();
    if (isSaid) said.push(sentence(node));
    if (isSaid && whole.has(role)) return;
    for (const child of node.childIds ?? []) if (byId.has(child)) visit(byId.get(child));
  };
  visit(nodes.find((node) => node.parentId === undefined));
  return said;
}

/** The tree has the number of a slider alone: its text is read in its place. */
async function withTexts(cdp, nodes) {
  for (const node of nodes.filter(({ role }) => role?.value === "slider")) {
    const { attributes } = (await cdp.send("DOM.describeNode", { backendNodeId: node.backendDOMNodeId })).node;
    const place = attributes.indexOf("aria-valuetext");
    if (place >= 0) node.value.value = attributes[place + 1];
  }
  return nodes;
}

/** The clock stands, so that the same day is today in every run. */
const stopClock = () => { Date.now = () => Date.UTC(2025, 8, 7, 9); };

describe("A screen reader", { skip: !isReal && "VELMORA_MODULE names no module" }, () => {
  let site;
  before(async () => { site = await Site.open(); });
  after(() => site.close());

  for (const [file, language] of [["english", "en-US"], ["arabic", "ar-EG"]]) {
    test(`SaysIn ${language} WhatIsWrittenDown`, async () => {
      const page = await site.visitor({ language, before: stopClock });
      const cdp = await page.createCDPSession();
      const parts = [];
      for (const view of views) {
        await site.show(page, at(view));
        const { nodes } = await cdp.send("Accessibility.getFullAXTree");
        parts.push(`# ${view}\n\n${sentences(await withTexts(cdp, nodes)).join("\n")}\n`);
      }
      await page.context.close();
      const said = parts.join("\n");
      const path = new URL(`spoken/${file}.txt`, import.meta.url);
      if (process.env.VELMORA_UPDATE_SPOKEN) await writeFile(path, said);
      assert.deepEqual(said.split("\n"), (await readFile(path, "utf8")).split("\n"));
    });
  }
});
