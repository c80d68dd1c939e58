/** A vector, colour or turn, as fields of a world hold it. A turn is right-handed, its angle in radians. */
export type SFVec2f = { x: number, y: number };
export type SFVec3f = { x: number, y: number, z: number };
export type SFColor = { r: number, g: number, b: number };
export type SFRotation = { x: number, y: number, z: number, angle: number };

/** The value of a field. Lists of numbers, vectors, colours and turns are typed arrays, number after number. */
export type FieldValue = boolean | number | string | SFVec2f | SFVec3f | SFColor | SFRotation
  | string[] | Float32Array | Int32Array | Float64Array;

/** A value that is pointed at: entry index of values[popup]. */
export interface Pointed { popup: number; index: number; text: string }

export interface PlayerEvents {
  /** A value has come to be pointed at and its text pops up; null: none is any more. */
  value: Pointed | null;
  /** Part of a chart was shown or hidden: the DEF name of its qm4_ContentToggle. */
  toggle: { name: string, isOn: boolean };
  /** A link was clicked. The player goes nowhere itself; urls are as written, relative to the world. */
  link: { urls: string[], parameters: string[] };
  /** What the world says of what is under the pointer; '' for nothing. */
  description: string;
  /** A viewpoint was bound. */
  viewpoint: { index: number };
  /** How far a load is: words for the reader ('' at the end) and a part from 0 to 1. */
  progress: { text: string, part: number };
  /** A frame was drawn: when it began and how long it took, in milliseconds. */
  frame: { time: number, work: number };
  /** The drawing context was lost, as when a laptop changes its graphics card, and came back. */
  lost: undefined;
  restored: undefined;
  /** Something that the world asks for and the player does not do. */
  warning: string;
}

/** A fault in the text of a world; line and column count from 1. */
export class WorldError extends Error {
  readonly line: number;
  readonly column: number;
}

/** Plays one world at a time in an element, which it fills. */
export class Player {
  /** clock: the time of the world in seconds; default that since 1970. fonts: CSS families in place of those
   *  for the families of VRML97. */
  constructor(element: HTMLElement, options?: {
    clock?: () => number, fonts?: { SANS?: string, SERIF?: string, TYPEWRITER?: string },
  });

  /** Shows a world in place of the one before. Rejects with a WorldError where the text is faulty, and the
   *  one before stays; with an AbortError where another load or dispose() came first. url: the world's own. */
  load(text: string, options?: { url?: string }): Promise<void>;

  /** What the world asks for and the player does not do, in words. */
  readonly warnings: string[];

  readonly viewpoints: { name: string, description: string }[];
  /** The bound viewpoint, -1 for none. Setting it goes there; throws RangeError where there is none. */
  viewpoint: number;

  /** Whether the projection is parallel; default false. */
  parallel: boolean;

  /** Goes back to where the bound viewpoint is. */
  reset(): void;

  /** Fades what is of the same kind as the node of this DEF name; null fades nothing. */
  highlight(name: string | null): void;

  /** The texts that pop up, a list for each popup of the world, with the DEF name of its toggle. */
  readonly values: { name: string, texts: string[] }[];
  /** The entries of the legend from the top; name is the DEF name of what the check box shows, '' without. */
  readonly legend: { text: string, color: SFColor | null, name: string, isOn: boolean }[];
  /** Shows or hides what a legend entry stands for, as its check box would; throws RangeError without one. */
  show(entry: number, isOn: boolean): void;

  readonly pointed: Pointed | null;
  /** Points at a value as a pointer would; index -1 at none. */
  point(popup: number, index: number): void;

  /** The value of a field of a node with a DEF name. Throws RangeError where there is no such. */
  get(name: string, field: string): FieldValue;
  /** Sends an event to a field. Throws RangeError where there is no such, TypeError where it takes none. */
  set(name: string, field: string, value: FieldValue | number[] | number[][]): void;

  /** A picture of the present view as PNG: scale pixels to each of width by height, which are those of the
   *  element by default. Throws RangeError. */
  still(size?: { width?: number, height?: number, scale?: number }): Promise<Blob>;

  /** Settles when nothing of the picture is outstanding. */
  idle(): Promise<void>;

  /** Calls back at each event; returns a function that ends it. */
  listen<E extends keyof PlayerEvents>(event: E, callback: (detail: PlayerEvents[E]) => void): () => void;

  /** Takes everything out of the element and lets go of all that was held. */
  dispose(): void;
}

/** <orvane-chart src>: dispatches 'chart-' + the names above, 'chart-load' and 'chart-error'. */
export class ChartElement extends HTMLElement {
  src: string;
  readonly player: Player | null;
}

declare global {
  interface HTMLElementTagNameMap { 'orvane-chart': ChartElement }
}
