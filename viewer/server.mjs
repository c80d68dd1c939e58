// A small static file server, on this machine's loopback address only, for the viewer page.
//
// As a program: node viewer/server.mjs DIR [PORT]

import { createReadStream } from 'node:fs';
import { realpath, stat } from 'node:fs/promises';
import { createServer } from 'node:http';
import { dirname, extname, join, resolve, sep } from 'node:path';
import { pipeline } from 'node:stream';
import { fileURLToPath } from 'node:url';

const CONTENT_TYPES = {
  '.css': 'text/css; charset=utf-8',
  '.html': 'text/html; charset=utf-8',
  '.jpg': 'image/jpeg',
  '.js': 'text/javascript; charset=utf-8',
  '.json': 'application/json; charset=utf-8',
  '.mjs': 'text/javascript; charset=utf-8',
  '.png': 'image/png',
  '.svg': 'image/svg+xml; charset=utf-8',
  '.txt': 'text/plain; charset=utf-8',
  '.wasm': 'application/wasm',
  '.woff2': 'font/woff2',
  '.wrl': 'model/vrml',
};

// Starts a server for the folder `root`. `mounts` puts more into its tree: an object of URL path to
// folder ("/x_ite/", with both slashes) or to file ("/index.html"); the longest path that fits
// wins. Links that lead out of a folder are not followed. Port 0 takes any free port. Returns the
// server's `url`, its `requests` ({ path, status }, in order of their answers) and `close`.
export async function start({ root, mounts = {}, port = 0 }) {
  const places = Object.entries({ '/': root, ...mounts })
    .map(([at, target]) => ({ at, target: resolve(target) }))
    .sort((a, b) => b.at.length - a.at.length);
  const requests = [];
  const hosts = [];  // The names that the server goes by, each with the port.

  const server = createServer(async (request, response) => {
    const asked = `http://${request.headers.host}`;
    const url = URL.canParse(request.url, asked) ? new URL(request.url, asked) : null;
    const answer = await find(places, hosts, request.method, url);
    requests.push({ path: url?.pathname ?? request.url, status: answer.status });
    send(request, response, answer);
  });
  await new Promise((done, failed) => {
    server.once('error', failed);
    server.listen(port, '127.0.0.1', done);
  });
  for (const name of ['127.0.0.1', 'localhost']) {
    hosts.push(new URL(`http://${name}:${server.address().port}`).host);
  }

  return {
    url: `http://${hosts[0]}/`,
    requests,
    close() {
      server.closeAllConnections();
      return new Promise((done) => server.close(done));
    },
  };
}

// Serves the viewer page at the root of a folder of worlds, as if it were installed there.
export function startViewer(root) {
  const here = dirname(fileURLToPath(import.meta.url));
  const page = ['index.html', 'viewer.css', 'viewer.js'];
  return start({
    root,
    mounts: {
      ...Object.fromEntries(page.map((file) => [`/${file}`, join(here, file)])),
      '/x_ite/': join(here, 'node_modules/x_ite/dist'),
    },
  });
}

// The answer to a request: { status, file, size } for a file, { status, location } for a folder
// named without its last slash, { status } for anything else. `url` is null for a malformed one.
async function find(places, hosts, method, url) {
  if (!url) return { status: 400 };
  // A name that another site lets point here (DNS rebinding) would make its pages ours.
  if (!hosts.includes(url.host)) return { status: 421 };
  if (method !== 'GET' && method !== 'HEAD') return { status: 405 };

  let path;
  try {
    path = decodeURIComponent(url.pathname);
  } catch {
    return { status: 400 };
  }
  if (path.includes('\0')) return { status: 400 };

  const { at, target } = places.find((place) => (
    place.at.endsWith('/') ? path.startsWith(place.at) : path === place.at));
  const named = resolve(target, path.slice(at.length).replace(/^\/+/, ''));
  if (!isWithin(named, target)) return { status: 403 };

  try {
    const isFolder = (await stat(named)).isDirectory();
    // One slash in front: two would begin the name of a site.
    if (isFolder && !path.endsWith('/')) {
      return { status: 301, location: `${url.pathname.replace(/^\/+/, '/')}/` };
    }
    const file = await realpath(isFolder ? join(named, 'index.html') : named);
    if (!isWithin(file, await realpath(target))) return { status: 403 };
    const found = await stat(file);
    return found.isFile() ? { status: 200, file, size: found.size } : { status: 404 };
  } catch {
    return { status: 404 };
  }
}

const isWithin = (file, folder) => (
  file === folder || file.startsWith(folder.endsWith(sep) ? folder : folder + sep));

function send(request, response, { status, file, size, location }) {
  // A world that was exported again must be seen at once, so nothing is kept unasked.
  const headers = { 'Cache-Control': 'no-cache', 'X-Content-Type-Options': 'nosniff' };
  if (location) headers.Location = location;
  if (!file) {
    response.writeHead(status, { ...headers, 'Content-Type': CONTENT_TYPES['.txt'] });
    response.end(`${status}\n`);
    return;
  }

  const type = CONTENT_TYPES[extname(file).toLowerCase()];
  headers['Content-Type'] = type ?? 'application/octet-stream';
  headers['Content-Length'] = size;
  response.writeHead(status, headers);
  if (request.method === 'HEAD') response.end();
  else pipeline(createReadStream(file), response, () => {});
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [root, port = '8080'] = process.argv.slice(2);
  if (!root || !/^\d+$/.test(port)) {
    console.error('usage: node viewer/server.mjs DIR [PORT]');
    process.exit(2);
  }
  try {
    const { url } = await start({ root, port: Number(port) });
    console.log(`Serving ${root} at ${url} (stop with Ctrl+C)`);
  } catch (error) {
    console.error(`The server could not start: ${error.message}`);
    process.exit(1);
  }
}
