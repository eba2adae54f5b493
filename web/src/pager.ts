import type { App } from "./app";
import { type Day, isKnown } from "./days";
import { h } from "./dom";
import type { Stage } from "./stage";

/** How far a finger moves before it pulls, in points, and which part of the width turns the page. */
const slack = 8;
const turning = 0.22;
const flick = 0.45;  // points a millisecond
const settleTime = 220;

/**
 * A finger on a calendar: a tap goes to the view, a pull to the side shows the page beside it coming and turns
 * to it. `beside` tells the day of the next (1) or the previous (-1) page.
 */
export class Pager {
  private readonly canvas: HTMLElement;
  private readonly neighbour = h("canvas", { class: "neighbour", "aria-hidden": "true" });
  private pointer: number | undefined;
  private start = { x: 0, y: 0, at: 0 };
  private shift = 0;
  private isPulling = false;
  private drawn = 0;
  /** Ends the sliding at once. */
  private endSettling: (() => void) | undefined;

  constructor(
    private readonly app: App, private readonly stage: Stage, private readonly beside?: (direction: 1 | -1) => Day,
  ) {
    this.canvas = stage.canvas;
    // Not the canvas: while a page turns, a finger may meet the one beside it.
    const { root } = stage;
    root.addEventListener("pointerdown", (event) => this.down(event));
    root.addEventListener("pointermove", (event) => this.move(event));
    root.addEventListener("pointerup", (event) => this.up(event));
    root.addEventListener("pointercancel", (event) => this.cancel(event));
  }

  private point(event: PointerEvent): [number, number] {
    const box = this.stage.root.getBoundingClientRect();
    return [event.clientX - box.left, event.clientY - box.top];
  }

  private down(event: PointerEvent): void {
    if (this.pointer !== undefined || event.button !== 0) return;
    this.endSettling?.();
    this.pointer = event.pointerId;
    this.start = { x: event.clientX, y: event.clientY, at: event.timeStamp };
    this.isPulling = false;
    this.stage.view.touchBegan(...this.point(event));
  }

  private move(event: PointerEvent): void {
    if (event.pointerId !== this.pointer) return;
    const x = event.clientX - this.start.x;
    const y = event.clientY - this.start.y;
    if (!this.isPulling && this.beside && Math.abs(x) > slack && Math.abs(x) > Math.abs(y)) {
      this.isPulling = true;
      this.stage.root.setPointerCapture(event.pointerId);
      this.stage.view.touchCancelled();
    }
    if (this.isPulling) this.pull(x);
    else this.stage.view.touchMoved(...this.point(event));
  }

  private up(event: PointerEvent): void {
    if (event.pointerId !== this.pointer) return;
    this.pointer = undefined;
    if (!this.isPulling) {
      this.stage.view.touchEnded(...this.point(event));
      return;
    }
    const width = this.canvas.clientWidth;
    const speed = this.shift / Math.max(1, event.timeStamp - this.start.at);
    const turns = Math.abs(this.shift) > width * turning || Math.abs(speed) > flick;
    this.settle(turns && this.drawn !== 0);
  }

  private cancel(event: PointerEvent): void {
    if (event.pointerId !== this.pointer) return;
    this.pointer = undefined;
    if (this.isPulling) this.settle(false);
    else this.stage.view.touchCancelled();
  }

  /** Towards the side from which the page comes: in languages that run to the left the next is on the left. */
  private direction(shift: number): 1 | -1 {
    return (shift < 0) !== this.app.isRightToLeft ? 1 : -1;
  }

  private pull(x: number): void {
    const direction = this.direction(x);
    const day = this.beside!(direction);
    if (isKnown(day)) {
      if (this.drawn !== direction) {
        this.drawn = direction;
        this.stage.view.drawDay(day, this.neighbour);
        this.stage.root.append(this.neighbour);
      }
      this.shift = x;
    } else {
      this.drawn = 0;
      this.neighbour.remove();
      this.shift = x / 4;
    }
    this.place();
  }

  private place(): void {
    const width = this.canvas.clientWidth;
    this.canvas.style.transform = `translateX(${this.shift}px)`;
    this.neighbour.style.width = `${width}px`;
    this.neighbour.style.height = `${this.canvas.clientHeight}px`;
    this.neighbour.style.transform = `translateX(${this.shift + (this.shift < 0 ? width : -width)}px)`;
  }

  private settle(turns: boolean): void {
    const width = this.canvas.clientWidth;
    const target = turns ? Math.sign(this.shift) * width : 0;
    const isStill = matchMedia("(prefers-reduced-motion: reduce)").matches;
    const timing = { duration: isStill ? 0 : settleTime, easing: "cubic-bezier(0.2, 0.8, 0.2, 1)" };
    const beside = this.shift < 0 ? width : -width;
    const slide = (canvas: HTMLElement, offset: number): Animation => canvas.animate(
      { transform: [`translateX(${this.shift + offset}px)`, `translateX(${target + offset}px)`] }, timing);
    const slides = [slide(this.neighbour, beside), slide(this.canvas, 0)];
    this.endSettling = () => {
      this.endSettling = undefined;
      for (const one of slides) one.cancel();
      this.settled(turns);
    };
    slides[1]!.onfinish = () => this.endSettling?.();
  }

  private settled(turns: boolean): void {
    const direction = this.drawn as 1 | -1;
    this.shift = 0;
    this.drawn = 0;
    if (turns) {
      this.app.selectDay(this.beside!(direction));
      this.stage.drawNow();
    }
    this.canvas.style.transform = "";
    this.neighbour.remove();
  }
}
