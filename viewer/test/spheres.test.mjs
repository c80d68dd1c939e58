// qm4_SphereCollection in a real browser, read off its pictures: few spheres, which are balls, and
// many, which are a cloud of points, look alike.

import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { assertNear, open, serve, view } from './worlds.mjs';

const RED = [0.8, 0, 0];
const BLUE = [0, 0, 0.8];
const SKY = [0, 128, 0];
const SKY_COLOR = SKY.map((part) => part / 255).join(' ');

// The spheres that the tests look at, all in the plane z = 0, with space around them. The last one
// has neither colour nor radius.
const SPHERES = [
  { place: [-3, 2, 0], color: RED, radius: 0.4, transparency: 0 },
  { place: [3, 2, 0], color: BLUE, radius: 0.8, transparency: 0 },
  { place: [-3, -2, 0], color: BLUE, radius: 0.8, transparency: 0.5 },
  { place: [3, -2, 0], radius: 0.1 },
];
const SCALE = 1.5; // of the whole collection

const EYE = 20; // above the plane of the spheres
const VIEW_ANGLE = Math.PI / 4; // of the window's height

const INTERFACE = [
  'SFVec3f translation', 'SFRotation rotation', 'SFVec3f scale', 'MFVec3f locations',
  'MFColor colors', 'MFFloat transparencies', 'MFFloat radii',
];

// The spheres above, nearly half of each before a wall in the colour of the sky, and `hidden` more of radius 0
// before them.
function world(hidden) {
  const styled = SPHERES.filter(({ color }) => color);
  const list = (entry, values) => [...Array(hidden).fill(entry), ...values].join(', ');
  return `#VRML V2.0 utf8
EXTERNPROTO qm4_SphereCollection [
  ${INTERFACE.map((field) => `exposedField ${field}`).join('\n  ')}
] "VR_GRAPH.wrl#qm4_SphereCollection"
Background { skyColor ${SKY_COLOR} }
Viewpoint { position 0 0 ${EYE} fieldOfView ${VIEW_ANGLE} }
Shape {
  appearance Appearance { material Material { diffuseColor 0 0 0 emissiveColor ${SKY_COLOR} } }
  geometry IndexedFaceSet {
    coord Coordinate { point [ -30 -30 0.05, 30 -30 0.05, 30 30 0.05, -30 30 0.05 ] }
    coordIndex [ 0 1 2 3 -1 ]
  }
}
DEF SPHERES qm4_SphereCollection {
  scale ${SCALE} ${SCALE} ${SCALE}
  locations [ ${list('0 0 0', SPHERES.map(({ place }) => place.join(' ')))} ]
  colors [ ${list('1 1 0', styled.map(({ color }) => color.join(' ')))} ]
  transparencies [ ${list('0', styled.map(({ transparency }) => transparency))} ]
  radii [ ${list('0', styled.map(({ radius }) => radius))} ]
}
`;
}

const HIDDEN = { few: 0, many: 200 };

serve({
  files: Object.fromEntries(
    Object.entries(HIDDEN).map(([name, hidden]) => [`${name}.wrl`, world(hidden)])),
});

function isSky(color) {
  return color.every((part, i) => Math.abs(part - SKY[i]) < 12);
}

// What the picture shows in the row of pixels through a place of the collection: the colour in the
// middle of the place, and how many pixels around it are not background.
async function seen(place) {
  const at = await view.at('SPHERES', place);
  const row = await view.row(await view.page.screenshot(), at.y);
  const middle = Math.round(at.x);
  let from = middle;
  let to = middle;
  if (isSky(row[middle])) return { color: row[middle], width: 0 };
  while (!isSky(row[from - 1])) --from;
  while (!isSky(row[to])) ++to;
  return { color: row[middle], width: to - from };
}

// How many pixels a sphere is wide that the viewer sees straight ahead.
async function trueWidth(radius) {
  const { height } = await view.page.locator('x3d-canvas').boundingBox();
  return (SCALE * radius * height) / (EYE * Math.tan(VIEW_ANGLE / 2));
}

function moved([x, y, z]) {
  return [x / 2, y + 1, z];
}

// The nodes that the collection's body draws, kept in the page, and whether they are still the same.
const keepNodes = () => view.page.evaluate(() => {
  const instance = document.querySelector('x3d-canvas').browser.currentScene.getNamedNode('SPHERES');
  window.drawn = () => [...instance.getValue().getBody().getNamedNode('Spheres').children]
    .map((node) => node.getValue());
  window.kept = window.drawn();
});
const areKept = () => view.page.evaluate(() => {
  const now = window.drawn();
  return now.length > 0 && now.length === window.kept.length
    && now.every((node, i) => node === window.kept[i]);
});

for (const [name, hidden] of Object.entries(HIDDEN)) {
  describe(`${name} spheres`, () => {
    test('have their colours, and their radii in a window of any shape', async () => {
      await open(`${name}.wrl`);
      const [red, blue, clear, plain] = await Promise.all(
        SPHERES.map(async ({ place }) => (await seen(place)).color),
      );
      assert.ok(red[0] > 190 && red[1] < 110 && red[1] === red[2], `red: ${red}`);
      assert.ok(blue[2] > 190 && blue[0] < 110 && blue[0] === blue[1], `blue: ${blue}`);
      assertNear(clear, blue.map((part, i) => (part + SKY[i]) / 2), 12, 'half transparent');
      assert.ok(plain.every((part) => part > 220 && part === plain[0]), `no colour: ${plain}`);

      for (const size of [{ width: 600, height: 800 }, { width: 1000, height: 700 }]) {
        await view.page.setViewportSize(size);
        await view.still();
        for (const { place, radius } of SPHERES) {
          const expected = await trueWidth(radius);
          assertNear((await seen(place)).width, expected, 2 + 0.04 * expected, 'width');
        }
      }
    });

    test('go where set_locations sends them, without being made anew', async () => {
      await open(`${name}.wrl`);
      await keepNodes();
      const places = SPHERES.map(({ place }) => moved(place));
      await view.send('SPHERES', 'set_locations', [...Array(hidden).fill([0, 0, 0]), ...places]);
      for (const [i, { place, radius }] of SPHERES.entries()) {
        assertNear((await seen(moved(place))).width, await trueWidth(radius), 6, `width of ${i}`);
        assert.equal((await seen(place)).width, 0, `${i} is still there`);
      }
      assert.ok(await areKept());
    });

    test('change their number with their locations', async () => {
      await open(`${name}.wrl`);
      const some = 150; // a cloud, whatever was there before
      const aside = Array(some - 2).fill([0, -50, 0]);
      await view.send('SPHERES', 'set_radii', Array(some).fill(0.3));
      await view.send('SPHERES', 'set_locations', [[0, 0, 0], ...aside, [3, 0, 0]]);
      for (const place of [[0, 0, 0], [3, 0, 0]]) {
        assertNear((await seen(place)).width, await trueWidth(0.3), 4, 'width');
      }
      await view.send('SPHERES', 'set_locations', [[0, 0, 0]]);
      assert.ok((await seen([0, 0, 0])).width > 10);
      assert.equal((await seen([3, 0, 0])).width, 0);
    });
  });
}
