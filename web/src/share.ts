import type { App } from "./app";
import { dayText } from "./days";
import { h } from "./dom";
import type { Screen } from "./screens/screen";
import type { Shell } from "./shell";
import { t } from "./words";

const pictureScale = 3;

function save(file: Blob, name: string): void {
  const address = URL.createObjectURL(file);
  h("a", { href: address, download: name }).click();
  setTimeout(() => URL.revokeObjectURL(address), 60_000);
}

/** Ways to take what is shown along: link, picture, drawing, calendar, paper. */
export function openShare(app: App, shell: Shell, screen: Screen): void {
  const { view, pictureWidth } = screen;
  const name = `velmora-${app.view}-${dayText(app.day)}`;
  const link = new URL(app.address(), location.href).href;
  const row = (text: string, act: () => Promise<void> | void): HTMLElement =>
    h("button", { type: "button", class: "row", click: async () => {
      shell.closeSheet();
      try {
        await act();
      } catch {
        shell.warn(t("That did not work in this browser."));
      }
    } }, h("span", { class: "label" }, text));
  const rows = [
    row(t("Copy the link"), async () => {
      await navigator.clipboard.writeText(link);
      shell.say(t("The link is copied."));
    }),
    row(t("Print"), () => print()),
    row(t("Phases and eclipses of %1 for a calendar (ICS)", app.format.year(app.day)), () =>
      save(new Blob([app.moon.icalendar(app.day.year)], { type: "text/calendar" }), `velmora-${app.day.year}.ics`)),
  ];
  if (view) {
    rows.push(
      row(t("Save as a picture (PNG)"), async () => save(
        await view.png(pictureWidth ? pictureWidth / view.size.width : pictureScale), `${name}.png`)),
      row(t("Save as a drawing (SVG)"), () => save(new Blob([view.svg()], { type: "image/svg+xml" }), `${name}.svg`)));
  }
  shell.openSheet(t("Save and share"), rows);
}
