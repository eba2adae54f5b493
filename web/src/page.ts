import { App, type Change, type Surroundings } from "./app";
import { h } from "./dom";
import { Shell, viewTitles } from "./shell";
import { monthScreen, picturesScreen, riseSetScreen, yearScreen } from "./screens/calendar";
import { eclipsesScreen } from "./screens/eclipses";
import { placeScreen } from "./screens/place";
import { postersScreen } from "./screens/posters";
import type { Screen } from "./screens/screen";
import { settingsScreen } from "./screens/settings";
import { skyScreen } from "./screens/sky";
import { todayScreen } from "./screens/today";
import { printViews } from "./printing";
import { openShare } from "./share";
import { t } from "./words";

function makeScreen(app: App, shell: Shell): Screen {
  const warn = (message: string): void => shell.warn(message);
  switch (app.view) {
    case "today": return todayScreen(app);
    case "month": return monthScreen(app);
    case "year": return yearScreen(app);
    case "riseset": return riseSetScreen(app);
    case "pictures": return picturesScreen(app);
    case "sky": return skyScreen(app, warn);
    case "eclipses": return eclipsesScreen(app);
    case "posters": return postersScreen(app);
    case "place": return placeScreen(app, warn);
    case "settings": return settingsScreen(app);
  }
}

function faultText(app: App): string {
  const { part, text } = app.linkFault!;
  const sentences = {
    view: t("This link names a section that there is not: “%1”. The usual one is shown.", text),
    day: t("This link names a day that is not known: “%1”. Days from 2000 to 2040 are. Today is shown.", text),
    time: t("This link names a time that there is not: “%1”. The present one is shown.", text),
    place: t("This link names a place that cannot be: “%1”. Your usual place is shown.", text),
    link: t("This link cannot be read: “%1”. The usual place and day are shown.", text),
  };
  return sentences[part as keyof typeof sentences];
}

/** Of a screen that is made anew: what was written in it, and where the keyboard was, are there again. */
function keepFields(main: HTMLElement): () => void {
  const written = [...main.querySelectorAll<HTMLInputElement>("input[id]")].map(({ id, value }) => [id, value] as const);
  const focused = main.contains(document.activeElement) ? document.activeElement!.id : "";
  return () => {
    for (const [id, value] of written) {
      const input = main.querySelector<HTMLInputElement>(`#${id}`);
      if (input) input.value = value;
    }
    if (focused) (document.getElementById(focused) ?? main).focus({ preventScroll: true });
  };
}

/** Instead of the page. */
export function sayFailure(error: unknown): void {
  const text = error instanceof Error ? error.message : String(error);
  document.body.replaceChildren(h("main", {}, h("p", { role: "alert", class: "failure" }, `Velmora could not start: ${text}`)));
}

/** Builds the page and keeps it to its state; what it returns offers a new version. */
export async function startPage(surroundings: Surroundings): Promise<(takeOver: () => void) => void> {
  const app = new App(surroundings);
  await app.start();
  let screen: Screen | undefined;
  let shownView = app.view;
  const shell = new Shell(app, () => screen && openShare(app, shell, screen));

  const applyTheme = (): void => {
    document.documentElement.dataset["theme"] = app.theme;
  };
  const show = (isOtherSection: boolean): void => {
    const goOn = isOtherSection ? undefined : keepFields(shell.main);
    shell.closeSheet();  // it is about what was shown before
    screen?.close();
    applyTheme();
    screen = makeScreen(app, shell);
    shell.main.replaceChildren(screen.root);
    goOn?.();
    shell.show(t(viewTitles[app.view]));
    if (isOtherSection) scrollTo({ top: 0, behavior: "instant" });
    shownView = app.view;
    screen.shown?.();
    document.documentElement.dataset["view"] = app.view;
  };
  let builtFor = "";
  const changed = (change: Change): void => {
    if (change === "day" || change === "moment") {
      screen?.refresh(change);
      return;
    }
    const isOtherSection = change === "section" || app.view !== shownView;
    if (builtFor !== app.language) {
      shell.build();
      builtFor = app.language;
    }
    show(isOtherSection);
    if (isOtherSection) {
      shell.clearWarning();
      shell.main.focus({ preventScroll: true });
      shell.say(t(viewTitles[app.view]));
    }
  };

  app.onChange(changed);
  app.moon.onAnnouncement((sentence) => shell.say(sentence));
  changed("all");
  if (app.linkFault) shell.warn(faultText(app));

  printViews(app, () => screen?.view ? [screen.view, ...(screen.furtherViews ?? [])] : []);
  addEventListener("hashchange", () => {
    app.followAddress();
    if (app.linkFault) shell.warn(faultText(app));
  });
  for (const query of ["(prefers-color-scheme: light)", "(min-width: 760px) and (min-height: 600px)"]) {
    matchMedia(query).addEventListener("change", () => {
      if (!matchMedia("print").matches) app.settingsChanged();  // a sheet of paper is no other device
    });
  }
  addEventListener("languagechange", () => void app.choose({ language: app.choices.language }));
  const minute = (): void => {
    app.tick();
    setTimeout(minute, 60_000 - (Date.now() % 60_000));
  };
  setTimeout(minute, 60_000 - (Date.now() % 60_000));
  document.addEventListener("visibilitychange", () => {
    if (!document.hidden) app.tick();
  });
  document.documentElement.dataset["ready"] = "true";
  return (takeOver) => shell.offer(t("A new version is ready."), t("Use it"), takeOver);
}
