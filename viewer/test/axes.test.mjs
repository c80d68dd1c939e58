// Labels of axes in a real browser: drawn on their lines and in the middle of their cells.

import { test } from 'node:test';
import { assertNear, open, serve, view } from './worlds.mjs';

// Seen from far away, so that what is nearer looks hardly larger.
const VIEWS = {
  AddViewpoint: [
    [{ description: 'Front', position: [3, 3, 400], fieldOfView: 0.03 }],
    [{
      description: 'Top', position: [3, 400, 3], orientation: [1, 0, 0, -1.5708], fieldOfView: 0.03,
    }],
  ],
};
const GRID = {
  Width: 6, Height: 6, Depth: 6, XAxisCellCount: 3, YAxisCellCount: 3, ZAxisCellCount: 3,
};
const RED = '#ff0000', GREEN = '#00ff00', BLUE = '#0000ff';

const categories = (height, color, font) => ({
  Labels: ['HEH', 'TEN', 'LED'], LabelHeight: height, LabelColor: color, LabelFont: font,
});
const values = (height, color, font) => ({
  Min: 0, Max: 3, NumericFormat: '0', LabelHeight: height, LabelColor: color, LabelFont: font,
});
const model = (chart, labels, [x, y, z], font) => JSON.stringify({
  chart,
  GridProps: GRID,
  XAxisProps: labels(x, RED, font),
  YAxisProps: values(y, GREEN, font),
  ZAxisProps: labels(z, BLUE, font),
  Viewpoints: VIEWS,
});

serve({
  files: {
    'low.json': model('AreaGraph', categories, [0.3, 0.5, 0.4], 'VRML_SANS'),
    'high.json': model('SurfaceGraph', categories, [1.6, 1.4, 1], 'VRML_SERIF'),
    'values.json': model('DensityGraph', values, [0.4, 1.2, 0.8], 'VRML_SANS'),
  },
  charts: {
    'low.wrl': 'build low.json', 'high.wrl': 'build high.json', 'values.wrl': 'build values.json',
  },
});

const CELLS = [1, 3, 5];
const LINES = [0, 2, 4, 6];

for (const [world, places, [x, y, z]] of [
  ['low.wrl', CELLS, [0.3, 0.5, 0.4]],
  ['high.wrl', CELLS, [1.6, 1.4, 1]],
  ['values.wrl', LINES, [0.4, 1.2, 0.8]],
]) {
  test(`labels are level with their lines or cells: ${world}`, async () => {
    await open(world);
    const canvas = await view.page.locator('x3d-canvas').boundingBox();
    const pixel = async (point) => {
      const { x, y } = await view.at('qm4_ChartGrid', point);
      return { x: x - canvas.x, y: y - canvas.y };
    };
    const hold = async (name, viewpoint, channel, side, points, height) => {
      await view.viewpoint(viewpoint);
      const drawn = await view.bands(await view.screenshot(), channel, side === 'x');
      const wanted = await Promise.all(points.map(async (point) => (await pixel(point))[side]));
      const unit = Math.abs((await pixel([1, 0, 0])).x - (await pixel([0, 0, 0])).x);
      assertNear(drawn, wanted.sort((a, b) => a - b), 1 + 0.04 * height * unit, name);
    };
    await hold('x', 'Top', 0, 'x', places.map((at) => [at, 0, 6]), x);
    await hold('y', 'Front', 1, 'y', LINES.map((at) => [0, at, 6]), y);
    await hold('z', 'Top', 2, 'y', places.map((at) => [6, 0, at]), z);
  });
}
