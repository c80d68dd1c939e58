// The charts that the benchmark of worlds compares: a table for `orvane chart`, and the same data as
// options of ECharts-GL and as a figure of Plotly.

const series = (count, entry) => Array.from({ length: count }, (_, i) => entry(i));
const short = (number) => Number(number.toFixed(3));

const wave = (x, z) => short(3 + 1.5 * Math.sin(x / 7) * Math.cos(z / 9) + ((7 * x + 13 * z) % 10) / 20);
const walk = (i) => short(5 + 2 * Math.sin(i / 900) + Math.sin(i / 37) + ((i * 7919) % 101) / 100);

const csv = (rows) => rows.map((row) => row.join(',')).join('\n');

function grid(columns, rows, corner) {
  return csv([
    [corner, ...series(columns, (x) => `c${x + 1}`)],
    ...series(rows, (z) => [`r${z + 1}`, ...series(columns, (x) => wave(x, z))]),
  ]);
}

// Axes, walls and lights as far as they have them, without animation.
const space = { animation: false, tooltip: {}, xAxis3D: {}, yAxis3D: {}, zAxis3D: {}, grid3D: {} };
const scene = (data, frames) => ({ data, frames, layout: { margin: { l: 0, r: 0, t: 0, b: 0 } } });

// Columns are boxes of six sides in one mesh: Plotly has none of its own.
function boxes(columns, rows) {
  const mesh = { type: 'mesh3d', flatshading: true, x: [], y: [], z: [], i: [], j: [], k: [] };
  for (let column = 0; column < columns; ++column) {
    for (let row = 0; row < rows; ++row) {
      const first = mesh.x.length;
      for (let corner = 0; corner < 8; ++corner) {
        mesh.x.push(column + 0.6 * (corner & 1));
        mesh.y.push(row + 0.6 * ((corner >> 1) & 1));
        mesh.z.push(corner & 4 ? wave(column, row) : 0);
      }
      for (const [a, b, c, d] of ['0132', '4576', '0154', '2376', '0264', '1375']) {
        mesh.i.push(first + Number(a), first + Number(a));
        mesh.j.push(first + Number(b), first + Number(c));
        mesh.k.push(first + Number(c), first + Number(d));
      }
    }
  }
  return scene([mesh]);
}

function columns(categories, rows) {
  return {
    table: csv([
      ['', ...series(rows, (z) => `s${z + 1}`)],
      ...series(categories, (x) => [`c${x + 1}`, ...series(rows, (z) => wave(x, z))]),
    ]),
    words: ['column'],
    echarts: () => ({
      ...space,
      series: [{
        type: 'bar3D',
        shading: 'lambert',
        data: series(categories * rows, (i) => {
          const [x, z] = [i % categories, Math.floor(i / categories)];
          return [x, z, wave(x, z)];
        }),
      }],
    }),
    plotly: () => boxes(categories, rows),
  };
}

const SIDE = 300;
const VALUES = 32766;
const POINTS = 5000;
const FRAMES = 10;

const place = (i, frame, part) => short(
  5 + 4 * Math.sin(i * (part + 1.3) + 0.1 * frame * ((i % 7) - 3)));
const cloud = (frame) => series(POINTS, (i) => [0, 1, 2].map((part) => place(i, frame, part)));

// By name; `words` follow "orvane chart", `isMoving` marks what never comes to rest.
export const CASES = {
  '12 x 4 columns': columns(12, 4),
  '10,000 columns': columns(100, 100),
  '300 x 300 surface': {
    table: grid(SIDE, SIDE, 'height'),
    words: ['surface'],
    echarts: () => ({
      ...space,
      series: [{
        type: 'surface',
        wireframe: { show: false },
        shading: 'lambert',
        data: series(SIDE * SIDE, (i) => {
          const [x, z] = [i % SIDE, Math.floor(i / SIDE)];
          return [x, z, wave(x, z)];
        }),
        dataShape: [SIDE, SIDE],
      }],
    }),
    plotly: () => scene([{ type: 'surface', z: series(SIDE, (z) => series(SIDE, (x) => wave(x, z))) }]),
  },
  '5,000 moving points': {
    table: csv([['frame', 'x', 'y', 'z'], ...series(FRAMES, (frame) => (
      cloud(frame).map((point) => [frame, ...point].join(',')))).flat()
      .map((line) => [line])]),
    words: ['scatter'],
    isMoving: true,
    echarts: () => ({ ...space, series: [{ type: 'scatter3D', symbolSize: 6, data: cloud(0) }] }),
    plotly: () => {
      const of = (frame) => {
        const points = cloud(frame);
        const [x, y, z] = [0, 1, 2].map((part) => points.map((point) => point[part]));
        return { type: 'scatter3d', mode: 'markers', marker: { size: 4 }, x, y, z };
      };
      return scene([of(0)], series(FRAMES, (frame) => [of(frame)]));
    },
    echartsFrames: () => series(FRAMES, cloud),
  },
  'ribbon of 32,766 values': {
    table: csv([['', 'value'], ...series(VALUES, (i) => [`c${i + 1}`, walk(i)])]),
    words: ['ribbon'],
    // Neither has ribbons: a line.
    echarts: () => ({
      ...space,
      series: [{ type: 'line3D', data: series(VALUES, (i) => [i, 0, walk(i)]) }],
    }),
    plotly: () => scene([{
      type: 'scatter3d', mode: 'lines', x: series(VALUES, (i) => i), y: series(VALUES, () => 0),
      z: series(VALUES, walk),
    }]),
  },
};
