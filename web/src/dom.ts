type Child = Node | string | undefined | false;
type Attributes = Record<string, string | number | boolean | undefined | ((event: never) => void)>;

function fill(element: Element, attributes: Attributes, children: readonly Child[]): void {
  for (const [name, value] of Object.entries(attributes)) {
    if (typeof value === "function") {
      element.addEventListener(name, value as EventListener);
    } else if (value !== undefined && value !== false) {
      element.setAttribute(name, value === true ? "" : String(value));
    }
  }
  element.append(...children.filter((child): child is Node | string => child !== undefined && child !== false));
}

/** An element of the page; an attribute that is a function listens to the event of its name. */
export function h<Tag extends keyof HTMLElementTagNameMap>(
  tag: Tag, attributes: Attributes = {}, ...children: readonly Child[]
): HTMLElementTagNameMap[Tag] {
  const element = document.createElement(tag);
  fill(element, attributes, children);
  return element;
}

/** An element of a drawing. */
export function s<Tag extends keyof SVGElementTagNameMap>(
  tag: Tag, attributes: Attributes = {}, ...children: readonly Child[]
): SVGElementTagNameMap[Tag] {
  const element = document.createElementNS("http://www.w3.org/2000/svg", tag);
  fill(element, attributes, children);
  return element;
}

/** Runs `task` once in the next animation frame, however often it is asked for until then. */
export function oncePerFrame(task: () => void): { ask(): void; cancel(): void } {
  let asked = 0;
  return {
    ask() {
      asked ||= requestAnimationFrame(() => {
        asked = 0;
        task();
      });
    },
    cancel() {
      cancelAnimationFrame(asked);
      asked = 0;
    },
  };
}
