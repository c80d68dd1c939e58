// Where the lines of a Text stand, by its FontStyle, and how wide they are in the browser's own fonts.

import { drawn } from '../scene/Node.js';

const EM = 100; // pixels a character is high when it is measured
const measured = new Map();
let context = null;

/** What font a FontStyle asks for, without a size: CSS style and weight, and CSS families. */
export function fontOf(style, fonts) {
  const wanted = style?.get('family') ?? [];
  const family = wanted.map((name) => fonts[name]).find(Boolean) ?? fonts.SERIF;
  const look = style?.get('style') ?? '';
  return { look: `${/ITALIC/.test(look) ? 'italic ' : ''}${/BOLD/.test(look) ? 'bold ' : ''}`, family };
}

/** Forgets all widths, as when a font has come. */
export function forgetWidths() {
  measured.clear();
}

/** The ink of a string, in parts of its font's size: left, right, below, above, and its advance. */
export function ink(font, string) {
  const key = `${font.look}|${font.family}|${string}`;
  const known = measured.get(key);
  if (known) return known;
  context ??= document.createElement('canvas').getContext('2d');
  context.font = `${font.look}${EM}px ${font.family}`;
  const box = context.measureText(string);
  const found = {
    left: -box.actualBoundingBoxLeft / EM,
    right: box.actualBoundingBoxRight / EM,
    below: -box.actualBoundingBoxDescent / EM,
    above: box.actualBoundingBoxAscent / EM,
    advance: box.width / EM,
  };
  if (!(found.right > found.left)) Object.assign(found, { left: 0, right: 0, below: 0, above: 0 });
  if (measured.size > 20000) measured.clear();
  measured.set(key, found);
  return found;
}

/** @returns {{pieces: {string, x, y, stretch, ink}[], size, font, position, normal, index}}  a piece is a string
 *  whose origin is at (x, y), in the Text's own frame; position has four corners a piece, about its ink */
export function layOut(node, fonts) {
  const style = drawn(node.get('fontStyle') ?? null);
  const font = fontOf(style, fonts);
  const plain = {
    size: style?.get('size') ?? 1,
    spacing: style?.get('spacing') ?? 1,
    leftToRight: style?.get('leftToRight') ?? true,
    topToBottom: style?.get('topToBottom') ?? true,
    justify: style?.get('justify') ?? ['BEGIN'],
    strings: node.get('string'),
    lengths: node.get('length'),
    maxExtent: node.get('maxExtent'),
    font,
  };
  const pieces = style?.get('horizontal') === false ? columns(plain) : rows(plain);
  return { pieces, size: plain.size, font, ...corners(pieces, plain.size) };
}

function rows({ size, spacing, leftToRight, topToBottom, justify, strings, lengths, maxExtent, font }) {
  const major = justify[0] ?? 'BEGIN', minor = justify[1] ?? 'FIRST';
  const order = topToBottom ? strings : [...strings].reverse();
  const pieces = order.map((given, row) => {
    const string = leftToRight ? given : [...given].reverse().join('');
    const box = ink(font, string), wanted = lengths[topToBottom ? row : strings.length - 1 - row] ?? 0;
    const isBegin = !leftToRight ? major === 'END' : major === 'BEGIN' || major === 'FIRST';
    const isEnd = !leftToRight ? major !== 'END' && major !== 'MIDDLE' : major === 'END';
    const left = isBegin ? 0 : box.left;
    const width = (box.right - left) * size, stretch = wanted > 0 && width > 0 ? wanted / width : 1;
    let x = -left * stretch;
    if (isBegin) x = 0;
    else if (isEnd) x = -box.right * stretch;
    else x = -(left + box.right) / 2 * stretch;
    return { string, ink: box, stretch, x: x * size, y: -row * spacing * size, width: width * stretch };
  });
  const widest = Math.max(0, ...pieces.map(({ width }) => width));
  if (maxExtent > 0 && widest > maxExtent) {
    for (const piece of pieces) {
      piece.stretch *= maxExtent / widest;
      piece.x *= maxExtent / widest;
    }
  }
  const top = Math.max(...pieces.map(({ y, ink: { above } }) => y + above * size));
  const bottom = Math.min(...pieces.map(({ y, ink: { below } }) => y + below * size));
  let rise = 0;
  if (minor === 'BEGIN') rise = -top;
  else if (minor === 'MIDDLE') rise = -(top + bottom) / 2;
  else if (minor === 'END') rise = (pieces.length - 1) * spacing * size;
  for (const piece of pieces) piece.y += rise;
  return pieces;
}

/** One character below the other, each in the middle of its column. */
function columns({ size, spacing, leftToRight, topToBottom, justify, strings, maxExtent, font }) {
  const major = justify[0] ?? 'BEGIN', minor = justify[1] ?? 'FIRST';
  const pieces = [];
  const order = leftToRight ? strings : [...strings].reverse();
  order.forEach((given, column) => {
    const characters = topToBottom ? [...given] : [...given].reverse();
    const height = characters.length * size;
    const squeeze = maxExtent > 0 && height > maxExtent ? maxExtent / height : 1;
    const isBegin = major === (topToBottom ? 'BEGIN' : 'END') || (topToBottom && major === 'FIRST');
    const top = major === 'MIDDLE' ? squeeze * height / 2 : isBegin ? 0 : squeeze * height;
    characters.forEach((string, row) => {
      const box = ink(font, string);
      pieces.push({
        string, ink: box, stretch: 1, x: (column * spacing + 0.5 - (box.left + box.right) / 2) * size,
        y: top - (row + 0.8) * size * squeeze,
      });
    });
  });
  const width = ((order.length - 1) * spacing + 1) * size;
  const shift = minor === 'MIDDLE' ? -width / 2 : minor === 'END' ? -width : 0;
  for (const piece of pieces) piece.x += shift;
  return pieces;
}

function corners(pieces, size) {
  const inked = pieces.filter(({ ink: { left, right } }) => right > left);
  const position = new Float32Array(12 * inked.length), normal = new Float32Array(12 * inked.length);
  const index = new Uint16Array(6 * inked.length);
  inked.forEach((piece, n) => {
    const { left, right, below, above } = piece.ink;
    const x0 = piece.x + left * size * piece.stretch, x1 = piece.x + right * size * piece.stretch;
    const y0 = piece.y + below * size, y1 = piece.y + above * size;
    position.set([x0, y0, 0, x1, y0, 0, x1, y1, 0, x0, y1, 0], 12 * n);
    normal.set([0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1], 12 * n);
    index.set([0, 1, 2, 0, 2, 3].map((k) => 4 * n + k), 6 * n);
  });
  return { inked, position, normal, index };
}
