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

async function picture(file: (name: string) => Promise<ArrayBuffer>, name: string): Promise<ImageBitmap> {
  return createImageBitmap(new Blob([await file(`images/${name}`)], { type: "image/png" }));
}

/** The Moon as it hangs in the sky: the library's pictures of the full and of the dark disc, one over the other
 *  along the edge of light, which is half an ellipse. */
export class MoonFace {
  readonly canvas = h("canvas", { class: "face", "aria-hidden": "true" });
  private full: ImageBitmap | undefined;
  private dark: ImageBitmap | undefined;
  private light: Light | undefined;
  private readonly layer = document.createElement("canvas");

  constructor(file: (name: string) => Promise<ArrayBuffer>) {
    new ResizeObserver(() => this.draw()).observe(this.canvas);
    Promise.all([picture(file, pictures.full), picture(file, pictures.dark)]).then(([full, dark]) => {
      this.full = full;
      this.dark = dark;
      this.draw();
    }).catch(() => undefined);  // then the view's own disc stays
  }

  show(light: Light): void {
    this.light = light;
    this.draw();
  }

  draw(): void {
    const { full, dark, light } = this;
    const points = this.canvas.clientWidth;
    if (!full || !dark || !light || points === 0) return;
    const size = Math.round(points * Math.min(devicePixelRatio || 1, 3));
    if (this.canvas.width !== size) this.canvas.width = this.canvas.height = this.layer.width = this.layer.height = size;
    const context = this.canvas.getContext("2d")!;
    context.clearRect(0, 0, size, size);
    paint(context, dark, size, light.north);
    const lit = this.layer.getContext("2d")!;
    lit.clearRect(0, 0, size, size);
    fillLit(lit, size, light);
    lit.globalCompositeOperation = "source-in";
    paint(lit, full, size, light.north);
    lit.globalCompositeOperation = "source-over";
    context.drawImage(this.layer, 0, 0);
  }
}

function turned(context: CanvasRenderingContext2D, size: number, degrees: number): void {
  context.translate(size / 2, size / 2);
  context.rotate((-degrees * Math.PI) / 180);
}

function paint(context: CanvasRenderingContext2D, image: ImageBitmap, size: number, north: number): void {
  const width = size / discShare;
  context.save();
  context.imageSmoothingQuality = "medium";
  turned(context, size, north);
  context.drawImage(image, -width / 2, -width / 2, width, width);
  context.restore();
}

/** What the Sun lights: the side of the limb that the tilt names, up to the edge of light. */
function fillLit(context: CanvasRenderingContext2D, size: number, { fraction, tilt }: Light): void {
  const radius = size / 2;
  const away = size * 2;
  context.save();
  context.shadowColor = "#000";
  context.shadowBlur = radius * softness;
  context.shadowOffsetX = away;  // the shadow alone is seen: shadows move in pixels of the canvas, unturned
  context.translate(-away, 0);
  turned(context, size, tilt);
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
