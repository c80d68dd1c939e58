// The static server: what it sends, what it refuses, what it records.

import assert from 'node:assert/strict';
import { mkdir, mkdtemp, rm, symlink, writeFile } from 'node:fs/promises';
import { request } from 'node:http';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { start } from '../server.mjs';

let folder;
let server;

before(async () => {
  folder = await mkdtemp(join(tmpdir(), 'viewer-'));
  await mkdir(join(folder, 'site/sub folder'), { recursive: true });
  await mkdir(join(folder, 'site-secret'));
  await mkdir(join(folder, 'library'));
  await writeFile(join(folder, 'site/world.wrl'), '#VRML V2.0 utf8\n');
  await writeFile(join(folder, 'site/sub folder/index.html'), 'index');
  await writeFile(join(folder, 'site-secret/key.txt'), 'secret');
  await writeFile(join(folder, 'secret.txt'), 'secret');
  await writeFile(join(folder, 'library/code.mjs'), 'export {};');
  await symlink('../secret.txt', join(folder, 'site/link.txt'));
  await symlink('../site-secret', join(folder, 'site/linked'));
  await symlink('world.wrl', join(folder, 'site/same.wrl'));
  server = await start({
    root: join(folder, 'site'),
    mounts: { '/library/': join(folder, 'library'), '/page.html': join(folder, 'secret.txt') },
  });
});

after(async () => {
  await server?.close();
  await rm(folder, { recursive: true });
});

// Sends the path as it stands: fetch() would tidy up "..".
function ask(path, method = 'GET', host = new URL(server.url).host) {
  return new Promise((done, failed) => {
    const asked = request(server.url, { path, method, headers: { host } }, (response) => {
      let body = '';
      response.on('data', (part) => { body += part; });
      const { statusCode: status, headers } = response;
      response.on('end', () => done({ status, headers, body }));
    });
    asked.on('error', failed).end();
  });
}

const TEXT = 'text/plain; charset=utf-8';

const cases = [
  ['a world', '/world.wrl', 200, 'model/vrml', '#VRML V2.0 utf8\n'],
  ['a world, whatever the query', '/world.wrl?1', 200, 'model/vrml', '#VRML V2.0 utf8\n'],
  ['the index of a folder', '/sub%20folder/', 200, 'text/html; charset=utf-8', 'index'],
  ['a mounted folder', '/library/code.mjs', 200, 'text/javascript; charset=utf-8', 'export {};'],
  ['a mounted file', '/page.html', 200, TEXT, 'secret'],
  ['a path above the root', '/../secret.txt', 404],
  ['an encoded path above the root', '/%2e%2e%2fsecret.txt', 403],
  ['an encoded path above a mount', '/library/..%2fsecret.txt', 403],
  ['a neighbour whose name starts like the root', '/..%2fsite-secret/key.txt', 403],
  ['an absolute path', `/${encodeURIComponent('/etc/hostname')}`, 404],
  ['a folder without its last slash', '/sub%20folder', 301, '/sub%20folder/'],
  ['a missing file', '/other.wrl', 404],
  ['a folder without an index', '/', 404],
  ['a malformed escape', '/%zz', 400],
  ['a NUL in a name', '/world%00.wrl', 400],
  ['two slashes', '//', 400],
  ['half an address', 'http://[', 400],
  ['another site by its whole address', 'http://example.com/world.wrl', 421],
  ['a link that stays', '/same.wrl', 200, 'model/vrml', '#VRML V2.0 utf8\n'],
  ['a link out of the root', '/link.txt', 403],
  ['a file behind a link out of the root', '/linked/key.txt', 403],
];

for (const [name, path, status, header, body] of cases) {
  test(`answers ${status} to ${name}, and records it`, async () => {
    const answer = await ask(path);
    assert.equal(answer.status, status);
    const pathname = URL.canParse(path, server.url) ? new URL(path, server.url).pathname : path;
    assert.deepEqual(server.requests.at(-1), { path: pathname, status });
    assert.equal(answer.headers[status === 301 ? 'location' : 'content-type'], header ?? TEXT);
    if (status === 200) assert.equal(answer.body, body);
    else assert.doesNotMatch(answer.body, /secret/);
  });
}

test('answers HEAD without a body, and nothing but GET and HEAD', async () => {
  const head = await ask('/world.wrl', 'HEAD');
  assert.deepEqual([head.status, head.headers['content-length'], head.body], [200, '16', '']);
  assert.equal((await ask('/world.wrl', 'POST')).status, 405);
});

test('answers to its own names only', async () => {
  const { port } = new URL(server.url);
  for (const [host, status] of [[`localhost:${port}`, 200], [`rebound.example:${port}`, 421],
    [`127.0.0.1:${port - 1}`, 421], ['a b', 400]]) {
    assert.equal((await ask('/world.wrl', 'GET', host)).status, status, host);
  }
});

test('listens on the loopback address only', () => {
  assert.match(server.url, /^http:\/\/127\.0\.0\.1:\d+\/$/);
});
