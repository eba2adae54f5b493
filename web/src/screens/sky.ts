import type { App } from "../app";
import { h } from "../dom";
import { Pager } from "../pager";
import { Ruler } from "../ruler";
import { Stage } from "../stage";
import { t, w } from "../words";
import type { Screen } from "./screen";

/** What Safari tells beside the angles of the standard. */
type Orientation = DeviceOrientationEvent & { webkitCompassHeading?: number };
type AskedOrientation = typeof DeviceOrientationEvent & { requestPermission?: () => Promise<"granted" | "denied"> };

function headingOf(event: Orientation): number | undefined {
  if (event.webkitCompassHeading !== undefined) return event.webkitCompassHeading;
  if (!event.absolute || event.alpha === null) return undefined;
  return (360 - event.alpha + screen.orientation.angle) % 360;
}

export function skyScreen(app: App, warn: (message: string) => void): Screen {
  let heading = 0;
  const compass = new Stage(app, "compass", w("Compass"), (width) => width, { at: app.at, heading });
  const arc = new Stage(app, "arc", w("Path of the Moon"), (width) => width * 0.56, { at: app.at });
  new Pager(app, arc);
  const ruler = new Ruler(app);
  const clock = h("p", { class: "clock" });
  const now = h("button", { type: "button", class: "plain", click: () => app.showNow() }, t("Now"));
  const places = h("dl", { class: "standings" });
  const turner = h("div", { class: "turner", role: "slider", tabindex: 0, "aria-label": t("Direction at the top"),
    "aria-valuemin": 0, "aria-valuemax": 359 }, compass.root);
  const follow = h("button", { type: "button", class: "wide-button", "aria-pressed": "false" }, t("Turn with the device"));
  const north = h("button", { type: "button", class: "plain", click: () => turn(0) }, t("North up"));

  const showMoment = (): void => {
    clock.textContent = `${app.format.mediumDay(app.day)}, ${app.format.time(app.at)}`;
    now.hidden = app.followsClock;
    ruler.showMoment();
    compass.view.setOptions({ at: app.at, heading });
    arc.view.setOptions({ at: app.at });
    turner.setAttribute("aria-valuenow", String(Math.round(heading)));
    turner.setAttribute("aria-valuetext", app.format.direction(heading));
    north.hidden = heading === 0;
    const moment = app.moon.moment(app.at);
    if (!moment) return;
    const row = (name: string, { altitude, azimuth }: { altitude: number; azimuth: number }): HTMLElement => {
      const text = altitude >= 0 ? "%1 above the horizon, %2" : "%1 below the horizon, %2";
      return h("div", { class: "fact" }, h("dt", {}, name),
        h("dd", {}, w(text, app.format.degrees(Math.abs(altitude)), app.format.direction(azimuth))));
    };
    places.replaceChildren(row(w("Moon"), moment.moon), row(w("Sun"), moment.sun));
  };
  const turn = (to: number): void => {
    heading = ((to % 360) + 360) % 360;
    showMoment();
  };

  let grasped: number | undefined;
  const angle = (event: PointerEvent): number => {
    const box = turner.getBoundingClientRect();
    return (Math.atan2(event.clientY - box.top - box.height / 2, event.clientX - box.left - box.width / 2) * 180) / Math.PI;
  };
  turner.addEventListener("pointerdown", (event) => {
    grasped = angle(event) + heading;
    turner.setPointerCapture(event.pointerId);
    stopFollowing();
  });
  turner.addEventListener("pointermove", (event) => {
    if (grasped !== undefined) turn(grasped - angle(event));
  });
  for (const end of ["pointerup", "pointercancel"] as const) turner.addEventListener(end, () => (grasped = undefined));
  turner.addEventListener("keydown", (event) => {
    const steps: Record<string, number> = { ArrowRight: 5, ArrowUp: 5, ArrowLeft: -5, ArrowDown: -5, PageUp: 45, PageDown: -45 };
    const step = steps[event.key];
    if (step === undefined && event.key !== "Home") return;
    event.preventDefault();
    turn(step === undefined ? 0 : heading + step);
  });

  const turned = (event: Event): void => {
    const to = headingOf(event as Orientation);
    if (to !== undefined) turn(to);
  };
  const kinds = ["deviceorientationabsolute", "deviceorientation"];
  const stopFollowing = (): void => {
    for (const kind of kinds) removeEventListener(kind, turned);
    follow.setAttribute("aria-pressed", "false");
  };
  follow.addEventListener("click", async () => {
    if (follow.getAttribute("aria-pressed") === "true") return stopFollowing();
    const asked = DeviceOrientationEvent as AskedOrientation;
    const answer = (await asked.requestPermission?.().catch(() => "denied" as const)) ?? "granted";
    if (answer === "denied") return warn(t("The device does not tell its direction. Turn the compass with a finger."));
    for (const kind of kinds) addEventListener(kind, turned);
    follow.setAttribute("aria-pressed", "true");
  });
  follow.hidden = !("DeviceOrientationEvent" in window) || !matchMedia("(pointer: coarse)").matches;

  const showDay = (): void => {
    ruler.showDay();
    showMoment();
  };
  showDay();
  const root = h("div", { class: "sky" },
    h("div", { class: "compass-side" }, turner, h("div", { class: "compass-tools" }, follow, north)),
    h("div", { class: "arc-side" },
      h("section", { class: "time", "aria-label": t("Time of the day") },
        h("div", { class: "time-line" }, clock, now), ruler.root),
      places, h("h2", { class: "arc-title" }, w("Path of the Moon")), arc.root));
  return {
    root,
    title: t("Sky"),
    view: compass.view,
    furtherViews: [arc.view],
    refresh: (change) => (change === "day" ? showDay() : showMoment()),
    close() {
      stopFollowing();
      compass.close();
      arc.close();
      ruler.close();
    },
  };
}
