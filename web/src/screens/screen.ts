import type { Change } from "../app";
import type { HostedView } from "../velmora";

/** What one section shows. */
export interface Screen {
  readonly root: HTMLElement;
  readonly title: string;
  /** The view that is saved as a picture; none where a section has none. */
  readonly view?: HostedView;
  /** Those that stand below it on paper. */
  readonly furtherViews?: readonly HostedView[];
  /** How many pixels wide a picture of the view is; else three for each of its points. */
  readonly pictureWidth?: number;
  /** After the day or the moment changed. */
  refresh(change: Change): void;
  /** Once it stands in the page. */
  shown?(): void;
  close(): void;
}
