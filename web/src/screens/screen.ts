import type { Change } from "../app";
import type { HostedView } from "../velmora";

/** What one section shows. */
export interface Screen {
  readonly root: HTMLElement;
  readonly title: string;
  /** The view that is saved as a picture; none where a section has none. */
  readonly view?: HostedView;
  /** After the day or the moment changed. */
  refresh(change: Change): void;
  /** Once it stands in the page. */
  shown?(): void;
  close(): void;
}
