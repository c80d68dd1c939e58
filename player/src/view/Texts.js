// Draws texts into textures with the browser's own fonts, as sharp as the screen can show them: each Text has
// its pixels at the size it is seen at, and gets others when the viewer comes nearer.

import { BufferAttribute, CanvasTexture, ClampToEdgeWrapping, LinearFilter, LinearMipmapLinearFilter, RedFormat, Vector3 } from 'three';

const WIDEST = 2048; // of a page, in pixels
const HIGHEST = 4096;
const GAP = 2; // pixels around a string
const MOST = 256; // pixels a character is high
const LEAST = 6;
const BLURRED = 1.15; // how much too small a text's pixels may be
const LAVISH = 3; // how much too many

const centre = new Vector3();

/** One texture with the strings of several Texts. */
class Page {
  constructor(width, height) {
    this.users = 0;
    this.canvas = document.createElement('canvas');
    this.canvas.width = width;
    this.canvas.height = height;
    this.context = this.canvas.getContext('2d', { alpha: false });
    this.context.fillStyle = '#fff';
    this.context.textBaseline = 'alphabetic';
    this.texture = new CanvasTexture(this.canvas);
    this.texture.format = RedFormat;
    this.texture.flipY = false;
    this.texture.unpackAlignment = 1;
    this.texture.wrapS = this.texture.wrapT = ClampToEdgeWrapping;
    this.texture.magFilter = LinearFilter;
    this.texture.minFilter = LinearMipmapLinearFilter;
    this.texture.anisotropy = 4;
  }

  drop() {
    if (--this.users === 0) this.texture.dispose();
  }
}

export class Texts {
  constructor(view) {
    this.view = view;
    this.all = new Set(); // Shapes whose geometry is a Text
  }

  add(shape) {
    shape.page = null;
    shape.textPixels = 0;
    this.all.add(shape);
  }

  remove(shape) {
    shape.page?.drop();
    shape.page = null;
    this.all.delete(shape);
  }

  /** The Text has other strings or another font. */
  changed(shape) {
    shape.textPixels = 0;
  }

  /** Before a frame: draws anew what would look blurred. While the camera moves only what is far too coarse. */
  update(camera, screenHeight, isMoving) {
    const wanting = [];
    for (const shape of this.all) {
      if (shape.geometry.data.inked.length === 0 || !this.view.isShown(shape.object)) continue;
      const wanted = Math.min(MOST, Math.max(LEAST, this.pixelsFor(shape, camera, screenHeight)));
      const have = shape.textPixels;
      const limit = isMoving ? 2 : BLURRED;
      if (wanted <= have * limit && (wanted * LAVISH >= have || isMoving)) continue;
      wanting.push({ shape, pixels: Math.ceil(wanted) });
    }
    if (wanting.length > 0) this.draw(wanting);
    return wanting.length > 0;
  }

  /** How many pixels of the screen a character of the text is high, at the part nearest to the viewer. */
  pixelsFor({ object, geometry }, camera, screenHeight) {
    const { low, high } = geometry.bounds;
    centre.set((low[0] + high[0]) / 2, (low[1] + high[1]) / 2, 0);
    const radius = Math.hypot(high[0] - low[0], high[1] - low[1]) / 2;
    const scale = object.matrixWorld.getMaxScaleOnAxis();
    centre.applyMatrix4(object.matrixWorld).applyMatrix4(camera.matrixWorldInverse);
    const distance = camera.isOrthographicCamera ? 1 : Math.max(camera.near, -centre.z - radius * scale);
    return geometry.data.size * scale * camera.projectionMatrix.elements[5] / distance * screenHeight / 2;
  }

  draw(wanting) {
    let rest = wanting.sort((a, b) => b.pixels - a.pixels);
    while (rest.length > 0) rest = this.drawPage(rest);
  }

  /** Puts as many Texts as fit on a new page; returns the others. */
  drawPage(wanting) {
    const places = [];
    let x = 0, y = 0, rowHeight = 0, width = 0, done = 0;
    for (; done < wanting.length; ++done) {
      const { shape } = wanting[done];
      let { pixels } = wanting[done];
      const { inked } = shape.geometry.data;
      const widest = Math.max(...inked.map(({ ink }) => ink.right - ink.left));
      pixels = Math.min(pixels, (WIDEST - 2 * GAP - 2) / widest);
      const mark = { x, y, rowHeight, width, count: places.length };
      for (const piece of inked) {
        const { left, right, below, above } = piece.ink;
        const w = Math.ceil((right - left) * pixels) + 2 * GAP, h = Math.ceil((above - below) * pixels) + 2 * GAP;
        if (x + w > WIDEST) {
          x = 0;
          y += rowHeight;
          rowHeight = 0;
        }
        places.push({ shape, piece, pixels, x, y });
        x += w;
        width = Math.max(width, x);
        rowHeight = Math.max(rowHeight, h);
      }
      if (y + rowHeight <= HIGHEST) continue;
      if (done > 0) {
        ({ x, y, rowHeight, width } = mark);
        places.length = mark.count;
        break;
      }
      // A text too long for a page of its own.
      places.length = 0;
      x = y = rowHeight = 0;
      wanting[done].pixels = pixels * Math.min(0.9, Math.sqrt(HIGHEST / (y + rowHeight || 2 * HIGHEST)));
      --done;
    }
    const page = new Page(Math.max(4, width), Math.max(4, Math.ceil((y + rowHeight) / 4) * 4));
    this.fill(page, places);
    return wanting.slice(done);
  }

  fill(page, places) {
    const { context, canvas } = page;
    const maps = new Map();
    let font = '';
    for (const { shape, piece, pixels, x, y } of places) {
      const { font: { look, family } } = shape.geometry.data;
      const wanted = `${look}${pixels}px ${family}`;
      if (wanted !== font) context.font = font = wanted;
      const { left, right, below, above } = piece.ink;
      context.fillText(piece.string, x + GAP - left * pixels, y + GAP + above * pixels);
      const u0 = (x + GAP) / canvas.width, u1 = (x + GAP + (right - left) * pixels) / canvas.width;
      const v0 = (y + GAP + (above - below) * pixels) / canvas.height, v1 = (y + GAP) / canvas.height;
      if (!maps.has(shape)) maps.set(shape, []);
      maps.get(shape).push(u0, v0, u1, v0, u1, v1, u0, v1);
      shape.textPixels = pixels;
    }
    for (const [shape, uv] of maps) {
      ++page.users;
      shape.page?.drop();
      shape.page = page;
      shape.setTextMap(page.texture, new BufferAttribute(new Float32Array(uv), 2));
    }
    page.texture.needsUpdate = true;
  }
}
