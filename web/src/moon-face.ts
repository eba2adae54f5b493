import { h } from "./dom";

/** How the face is lit and turned: of the lit limb's middle and of the Moon's north from straight up,
 *  counterclockwise, in degrees. */
export interface Light {
  readonly fraction: number;
  readonly tilt: number;
  readonly north: number;
}

const pictures = { full: "IMG_27.png", dark: "IMG_0.png" } as const;
/** Of a picture's width that its disc takes. */
const discShare = 248 / 256;
/** How soft the edge of light is, of the radius. */
const softness = 0.035;
/** It is drawn that much coarser than what it lies on, which nobody sees of a soft edge. */
const coarseness = 4;

async function picture(file: (name: string) => Promise<ArrayBuffer>, name: string): Promise<ImageBitmap> {
  return createImageBitmap(new Blob([await file(`images/${name}`)], { type: "image/png" }));
}

/** The Moon as it hangs in the sky: the library's pictures of the full and of the dark disc, one over the other
 *  along the edge of light, which is half an ellipse. */
export class MoonFace {
  readonly canvas = h("canvas", { class: "face", "aria-hidden": "true" });
  private pictures: { full: ImageBitmap; dark: ImageBitmap } | undefined;
  private discs: { full: HTMLCanvasElement; dark: HTMLCanvasElement } | undefined;
  private readonly lit = document.createElement("canvas");
  private readonly edge = document.createElement("canvas");
  private light: Light | undefined;
  private drawn: Light | undefined;

  /** `whenDrawn` is called after each drawing. */
  constructor(file: (name: string) => Promise<ArrayBuffer>, private readonly whenDrawn: () => void) {
    new ResizeObserver(() => this.fit()).observe(this.canvas);
    Promise.all([picture(file, pictures.full), picture(file, pictures.dark)]).then(([full, dark]) => {
      this.pictures = { full, dark };
      this.fit();
    }).catch(() => undefined);  // then the view's own disc stays
  }

  /** Turns the face, and draws it anew once the edge of light has moved by a part of its softness. */
  show(light: Light): void {
    this.light = light;
    this.canvas.style.transform = `rotate(${-light.north}deg)`;
    if (this.isOutdated()) this.draw();
  }

  private isOutdated(): boolean {
    const { light, drawn } = this;
    if (!light || !drawn) return true;
    const turn = ((limbOf(light) - limbOf(drawn)) * Math.PI) / 180;
    const most = softness / 4;
    return Math.abs(2 * (light.fraction - drawn.fraction)) > most || Math.abs(2 * Math.sin(turn / 2)) > most;
  }

  /** Takes the size that the page gives it. */
  private fit(): void {
    const points = this.canvas.clientWidth;
    if (!this.pictures || points === 0) return;
    const size = Math.round(points * Math.min(devicePixelRatio || 1, 3));
    for (const canvas of [this.canvas, this.lit]) canvas.width = canvas.height = size;
    this.edge.width = this.edge.height = Math.ceil(size / coarseness);
    this.discs = { full: discOf(this.pictures.full, size), dark: discOf(this.pictures.dark, size) };
    this.draw();
  }

  private draw(): void {
    const { discs, light } = this;
    if (!discs || !light) return;
    const edge = this.edge.getContext("2d")!;
    edge.clearRect(0, 0, this.edge.width, this.edge.height);
    fillLit(edge, this.edge.width, light);
    const lit = this.lit.getContext("2d")!;
    lit.globalCompositeOperation = "copy";
    lit.drawImage(this.edge, 0, 0, this.lit.width, this.lit.height);
    lit.globalCompositeOperation = "source-in";
    lit.drawImage(discs.full, 0, 0);
    const context = this.canvas.getContext("2d")!;
    context.clearRect(0, 0, this.canvas.width, this.canvas.height);
    context.drawImage(discs.dark, 0, 0);
    context.drawImage(this.lit, 0, 0);
    this.drawn = light;
    this.whenDrawn();
  }
}

/** Where the lit limb's middle is, from the face's own north. */
function limbOf({ tilt, north }: Light): number {
  return tilt - north;
}

/** The picture's disc, as large as a canvas of that size. */
function discOf(image: ImageBitmap, size: number): HTMLCanvasElement {
  const disc = document.createElement("canvas");
  disc.width = disc.height = size;
  const context = disc.getContext("2d")!;
  const width = size / discShare;
  context.imageSmoothingQuality = "high";
  context.drawImage(image, (size - width) / 2, (size - width) / 2, width, width);
  return disc;
}

/** What the Sun lights: the side of the limb that the tilt names, up to the edge of light. */
function fillLit(context: CanvasRenderingContext2D, size: number, light: Light): void {
  const { fraction } = light;
  const radius = size / 2;
  const away = size * 2;
  context.save();
  context.shadowColor = "#000";
  context.shadowBlur = radius * softness;
  context.shadowOffsetX = away;  // the shadow alone is seen: shadows move in pixels of the canvas, unturned
  context.translate(-away, 0);
  context.translate(size / 2, size / 2);
  context.rotate((-limbOf(light) * Math.PI) / 180);
  context.beginPath();
  context.moveTo(-size, 0);
  context.lineTo(-size, -size);
  context.lineTo(size, -size);
  context.lineTo(size, 0);
  context.lineTo(radius, 0);
  context.ellipse(0, 0, radius, radius * Math.abs(2 * fraction - 1), 0, 0, Math.PI, fraction < 0.5);
  context.closePath();
  context.fill();
  context.restore();
}
