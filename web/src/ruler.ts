import type { App } from "./app";
import { h, oncePerFrame } from "./dom";
import type { DayInTheSky, HorizontalPosition } from "./velmora";
import { t } from "./words";

const oneMinute = 60_000;
const samples = 144;

/** Colours of the sky by the Sun's altitude, in degrees, from night to day. */
const darkSky: readonly (readonly [number, string])[] = [
  [-18, "#0b0914"], [-12, "#141430"], [-6, "#25285a"], [-0.8, "#5a4a7c"], [3, "#6f6496"], [12, "#5f78b4"],
];
const lightSky: readonly (readonly [number, string])[] = [
  [-18, "#8e93bd"], [-12, "#a3a8d0"], [-6, "#bcbfe2"], [-0.8, "#e3cfd8"], [3, "#e9e4ef"], [12, "#d5e3f7"],
];

function channels(colour: string): number[] {
  return [1, 3, 5].map((at) => parseInt(colour.slice(at, at + 2), 16));
}

function skyColour(altitude: number, sky: readonly (readonly [number, string])[]): string {
  const after = sky.findIndex(([limit]) => altitude < limit);
  if (after === 0) return sky[0]![1];
  if (after < 0) return sky[sky.length - 1]![1];
  const [low, from] = sky[after - 1]!;
  const [high, to] = sky[after]!;
  const share = (altitude - low) / (high - low);
  const a = channels(from);
  const b = channels(to);
  return `rgb(${a.map((value, i) => Math.round(value + (b[i]! - value) * share)).join(" ")})`;
}

/** The day from midnight to midnight: light, the paths of Sun and Moon, and the time, to be pulled along. */
export class Ruler {
  readonly root: HTMLElement;
  private readonly canvas = h("canvas", { "aria-hidden": "true" });
  private readonly needle = h("div", { class: "needle", "aria-hidden": "true" });
  private readonly hours = h("div", { class: "hours", "aria-hidden": "true" });
  private readonly slider: HTMLElement;
  private readonly resizing = new ResizeObserver(() => this.frame.ask());
  private readonly frame = oncePerFrame(() => this.draw());
  private readonly pulling = oncePerFrame(() => this.app.showMoment(this.pulledTo));
  private pulledTo = 0;
  private sky: DayInTheSky | undefined;

  constructor(private readonly app: App) {
    this.slider = h("div", { class: "strip", role: "slider", tabindex: 0, "aria-label": t("Time of the day") },
      this.canvas, this.needle);
    this.root = h("div", { class: "ruler" }, this.slider, this.hours);
    this.slider.addEventListener("pointerdown", (event) => this.grasp(event));
    this.slider.addEventListener("pointermove", (event) => {
      if (this.slider.hasPointerCapture(event.pointerId)) this.pull(event);
    });
    this.slider.addEventListener("keydown", (event) => this.key(event));
    this.resizing.observe(this.slider);
  }

  /** Another day or place. */
  showDay(): void {
    this.sky = this.app.moon.skyOfDay(this.app.day);
    this.frame.ask();
    this.showMoment();
  }

  showMoment(): void {
    if (!this.sky) return;
    const share = (this.app.at - this.sky.start) / (this.sky.end - this.sky.start);
    this.needle.style.insetInlineStart = `${share * 100}%`;
    const minutes = Math.round((this.app.at - this.sky.start) / oneMinute);
    this.slider.setAttribute("aria-valuemin", "0");
    this.slider.setAttribute("aria-valuemax", String(this.minutes - 1));
    this.slider.setAttribute("aria-valuenow", String(minutes));
    this.slider.setAttribute("aria-valuetext", this.app.format.time(this.app.at));
  }

  private get minutes(): number {
    return this.sky ? Math.round((this.sky.end - this.sky.start) / oneMinute) : 0;
  }

  private show(minutes: number): void {
    if (!this.sky) return;
    const kept = Math.max(0, Math.min(this.minutes - 1, minutes));
    this.pulledTo = this.sky.start + kept * oneMinute;
    this.pulling.ask();
  }

  private grasp(event: PointerEvent): void {
    if (event.button !== 0) return;
    this.slider.setPointerCapture(event.pointerId);
    this.pull(event);
  }

  private pull(event: PointerEvent): void {
    const box = this.slider.getBoundingClientRect();
    const share = (event.clientX - box.left) / box.width;
    this.show(Math.round((this.app.isRightToLeft ? 1 - share : share) * this.minutes));
  }

  private key(event: KeyboardEvent): void {
    if (!this.sky || event.ctrlKey || event.metaKey || event.altKey) return;
    const now = Math.round((this.app.at - this.sky.start) / oneMinute);
    const onward = this.app.isRightToLeft ? -5 : 5;
    const targets: Record<string, number> = {
      ArrowRight: now + onward, ArrowLeft: now - onward, ArrowUp: now + 5, ArrowDown: now - 5,
      PageUp: now + 60, PageDown: now - 60, Home: 0, End: this.minutes - 1,
    };
    const target = targets[event.key];
    if (target === undefined) return;
    event.preventDefault();
    this.show(target);
  }

  private draw(): void {
    const { clientWidth: width, clientHeight: height } = this.slider;
    if (!this.sky || width === 0) return;
    const { start, end } = this.sky;
    const scale = Math.min(devicePixelRatio || 1, 3);
    this.canvas.width = width * scale;
    this.canvas.height = height * scale;
    const context = this.canvas.getContext("2d")!;
    context.scale(this.app.isRightToLeft ? -scale : scale, scale);
    if (this.app.isRightToLeft) context.translate(-width, 0);

    const instants = Array.from({ length: samples + 1 }, (_, i) => start + ((end - start) * i) / samples);
    const sun = this.app.moon.track("sun", instants);
    const moon = this.app.moon.track("moon", instants);
    const light = context.createLinearGradient(0, 0, width, 0);
    const colours = this.app.theme === "light" ? lightSky : darkSky;
    sun.forEach(({ altitude }, i) => light.addColorStop(i / samples, skyColour(altitude, colours)));
    context.fillStyle = light;
    context.fillRect(0, 0, width, height);

    const style = getComputedStyle(this.slider);
    const horizon = height / 2;
    context.strokeStyle = style.getPropertyValue("--horizon");
    context.lineWidth = 1;
    context.beginPath();
    context.moveTo(0, horizon);
    context.lineTo(width, horizon);
    context.stroke();
    this.curve(context, sun, style.getPropertyValue("--sun"), width, height);
    this.curve(context, moon, style.getPropertyValue("--moon"), width, height);
    this.writeHours(start, end);
  }

  private curve(
    context: CanvasRenderingContext2D, positions: readonly HorizontalPosition[], colour: string, width: number,
    height: number,
  ): void {
    context.strokeStyle = colour;
    context.lineWidth = 2;
    context.lineJoin = "round";
    for (const isUp of [false, true]) {
      context.save();
      context.globalAlpha = isUp ? 1 : 0.3;
      context.beginPath();
      context.rect(0, isUp ? 0 : height / 2, width, height / 2);
      context.clip();
      context.beginPath();
      positions.forEach(({ altitude }, i) => {
        context.lineTo((i / samples) * width, height / 2 - (altitude / 90) * (height / 2 - 4));
      });
      context.stroke();
      context.restore();
    }
  }

  private writeHours(start: number, end: number): void {
    const quarter = (end - start) / 4;
    this.hours.replaceChildren(...[0, 1, 2, 3, 4].map((i) => h("span", {}, this.app.format.hour(start + i * quarter))));
  }

  close(): void {
    this.frame.cancel();
    this.pulling.cancel();
    this.resizing.disconnect();
  }
}
