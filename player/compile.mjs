// Compiles the PROTO files into a module: the structure of each PROTO as text, its scripts as functions.
//
// usage: node compile.mjs [FOLDER]   FOLDER has VR_GRAPH.wrl, VR_NAV.wrl and VR_UI.wrl; by default it is
//                                    where scripts/build assembles them
//
// The module is src/scene/protos.js. A PROTO in protos/ beside this file stands for the one of its name.

import { readdirSync, readFileSync, writeFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { parse } from 'acorn';
import { nodeTypes } from './src/scene/nodeTypes.js';
import { Parser } from './src/vrml/Parser.js';

const HERE = new URL('./', import.meta.url);
const FILES = ['VR_UI.wrl', 'VR_NAV.wrl', 'VR_GRAPH.wrl'];
const LISTS = ['MFColor', 'MFFloat', 'MFInt32', 'MFNode', 'MFRotation', 'MFString', 'MFTime', 'MFVec2f', 'MFVec3f'];
const SINGLES = ['SFColor', 'SFRotation', 'SFVec2f', 'SFVec3f'];

/** Writes src/scene/protos.js. */
export function compile(folder = fileURLToPath(new URL('../build/release/protos', HERE))) {
  const protos = new Map();
  for (const file of FILES) readProtos(`${folder}/${file}`, protos);
  const own = fileURLToPath(new URL('protos/', HERE));
  for (const file of readdirSync(own)) {
    const mine = readProtos(`${own}${file}`, new Map(protos));
    for (const [name, proto] of mine) {
      requireSameFields(protos.get(name), proto);
      protos.set(name, proto);
    }
  }
  writeFileSync(new URL('src/scene/protos.js', HERE), moduleOf(protos));
}

/** Adds the PROTOs of a file to those known; returns the file's own. Each gets its text. */
function readProtos(path, known) {
  const text = readFileSync(path, 'utf8'), own = new Map();
  class Reader extends Parser {
    proto() {
      const name = this.lexer.name('The name of a PROTO'), start = this.lexer.at;
      this.scriptNodes = [];
      const proto = this.definition(name);
      proto.text = text.slice(start, this.lexer.at);
      proto.scripts = this.scriptNodes;
      this.scope.protos.set(name, proto);
      own.set(name, proto);
    }

    node() {
      const node = super.node();
      if (node?.type?.name === 'Script') this.scriptNodes.push(node);
      return node;
    }
  }
  const fail = (message) => { throw new Error(`${path}: ${message}`); };
  try {
    new Reader(text, nodeTypes, known, fail).world();
  } catch (error) {
    throw new Error(`${path}: ${error.message}`);
  }
  for (const [name, proto] of own) known.set(name, proto);
  return own;
}

function requireSameFields(theirs, mine) {
  const show = ({ fields }) => [...fields.values()].map(({ name, access, type }) => `${access} ${type} ${name}`).join();
  if (theirs === undefined || show(theirs) !== show(mine)) {
    throw new Error(`The interface of ${mine.name} in player/protos is not that of the PROTO files`);
  }
}

function moduleOf(protos) {
  const texts = [], scripts = [];
  for (const [name, proto] of protos) {
    let n = 0;
    const text = withoutSpace(proto.text).replace(/ url "javascript:(?:[^"\\]|\\.)*"/g, () => {
      const key = `${name} ${n}`;
      scripts.push(`${JSON.stringify(key)}: ${functionOf(proto.scripts[n++], key)}`);
      return ` url ${JSON.stringify(key)}`;
    });
    if (n !== proto.scripts.length) throw new Error(`${name}: not every Script was found in the text`);
    texts.push(`${name}: ${JSON.stringify(text)}`);
  }
  return `// Made by compile.mjs from the PROTO files.
import { ${LISTS.join(', ')}, putPoint } from './lists.js';
import { ${SINGLES.join(', ')} } from './singles.js';
import { Library } from './Library.js';

const TRUE = true, FALSE = false;

export const library = new Library({
${texts.join(',\n')}
}, {
${scripts.join(',\n')}
});
`;
}

/** One space between words, none at brackets, no comments; what is in quotes stays. */
function withoutSpace(text) {
  return text.replace(/"(?:[^"\\]|\\.)*"|#[^\n]*|[\s,]+/g, (part) => (part.startsWith('"') ? part : ' '))
    .replace(/"(?:[^"\\]|\\.)*"| +/g, (part) => (part.startsWith('"') ? part : ' '))
    .trim();
}

/** The source of a function (host, Browser) that gives the functions of a Script by name. */
function functionOf(node, key) {
  const code = node.fields.url[0].replace(/^javascript:/, '');
  const program = parse(code, { ecmaVersion: 5, allowReturnOutsideFunction: true });
  const fields = [...node.type.fields.values()];
  const outputs = new Set(fields.filter(({ access }) => access === 'eventOut').map(({ name }) => name));
  const kept = new Set(fields.filter(({ access, name }) => access === 'field' && !nodeTypes.get('Script').fields.has(name))
    .map(({ name }) => name));
  const edits = [];
  new Rewriter(outputs, kept, edits, key).walk(program, []);
  const called = new Set(['initialize', 'eventsProcessed',
    ...fields.filter(({ access }) => access === 'eventIn').map(({ name }) => name)]);
  const names = program.body.filter(({ type }) => type === 'FunctionDeclaration').map(({ id }) => id.name)
    .filter((name) => called.has(name));
  const variables = [...kept].map((name) => `${name} = $host.get('${name}')`);
  return `function ($host, Browser) {
${variables.length > 0 ? `var ${variables.join(', ')};` : ''}
${edited(code, edits)}
return { ${names.map((name) => `${name}: ${name}`).join(', ')} };
}`;
}

function edited(code, edits) {
  let text = '', at = 0;
  for (const { start, end, put } of edits.sort((a, b) => a.start - b.start || a.end - b.end)) {
    text += code.slice(at, start) + put;
    at = Math.max(at, end);
  }
  return text + code.slice(at);
}

/** Finds where a script reads and sets the fields of its node: eventOuts are read and set through the host,
 *  fields are variables of which the host is told when they are set. */
class Rewriter {
  constructor(outputs, kept, edits, key) {
    Object.assign(this, { outputs, kept, edits, key });
  }

  fail(what) { throw new Error(`${this.key}: ${what}`); }

  isOwn(set, name, scopes) { return set.has(name) && !scopes.some((scope) => scope.has(name)); }

  walk(node, scopes) {
    if (node === null || typeof node !== 'object') return;
    if (Array.isArray(node)) {
      for (const part of node) this.walk(part, scopes);
      return;
    }
    if (typeof node.type !== 'string') return;
    const visit = this[node.type];
    if (visit !== undefined) visit.call(this, node, scopes);
    else this.walkParts(node, scopes);
  }

  walkParts(node, scopes) {
    for (const [name, part] of Object.entries(node)) if (name !== 'type') this.walk(part, scopes);
  }

  FunctionDeclaration(node, scopes) {
    const names = new Set(node.params.map(({ name }) => name));
    names.vectors = new Set();
    collectVariables(node.body, names);
    this.walk(node.body, [...scopes, names]);
  }

  FunctionExpression(node, scopes) { this.FunctionDeclaration(node, scopes); }

  MemberExpression(node, scopes) {
    this.walk(node.object, scopes);
    if (node.computed) this.walk(node.property, scopes);
  }

  Property(node, scopes) { this.walk(node.value, scopes); }

  VariableDeclarator(node, scopes) { this.walk(node.init, scopes); }

  ExpressionStatement(node, scopes) {
    const { left, right, operator } = node.expression;
    const isPoint = operator === '=' && left.computed && right.type === 'NewExpression'
      && right.arguments.length === 3 && this.isVector(right.callee.name, scopes);
    if (isPoint) this.putPoint(left, right.arguments, scopes);
    else this.walk(node.expression, scopes);
  }

  isVector(name, scopes) {
    const scope = scopes.findLast((names) => names.has(name));
    return scope === undefined ? name === 'SFVec3f' : scope.vectors.has(name);
  }

  /** list[n] = new SFVec3f(x, y, z) becomes putPoint(list, n, x, y, z). */
  putPoint({ start, object, property }, values, scopes) {
    this.edits.push({ start, end: start, put: 'putPoint(' });
    this.edits.push({ start: object.end, end: property.start, put: ', ' });
    this.edits.push({ start: property.end, end: values[0].start, put: ', ' });
    this.walk([object, property, ...values], scopes);
  }

  UpdateExpression(node, scopes) {
    const { name } = node.argument;
    if (this.isOwn(this.outputs, name, scopes) || this.isOwn(this.kept, name, scopes)) {
      this.fail(`"${node.operator}" on the field ${name} is not provided for: write ${name} = ${name} + 1`);
    }
    this.walk(node.argument, scopes);
  }

  AssignmentExpression(node, scopes) {
    const { left, right, operator } = node;
    const isOutput = left.type === 'Identifier' && this.isOwn(this.outputs, left.name, scopes);
    const isKept = left.type === 'Identifier' && this.isOwn(this.kept, left.name, scopes);
    if (!isOutput && !isKept) {
      this.walk(left, scopes);
      this.walk(right, scopes);
      return;
    }
    if (operator !== '=') this.fail(`"${operator}" on the field ${left.name} is not provided for`);
    const put = isOutput ? `$host.send('${left.name}', ` : `${left.name} = $host.keep('${left.name}', `;
    this.edits.push({ start: left.start, end: right.start, put });
    this.walk(right, scopes);
    this.edits.push({ start: right.end, end: right.end, put: ')' });
  }

  Identifier(node, scopes) {
    if (!this.isOwn(this.outputs, node.name, scopes)) return;
    this.edits.push({ start: node.start, end: node.end, put: `$host.get('${node.name}')` });
  }
}

function collectVariables(node, names) {
  if (node === null || typeof node !== 'object') return;
  if (Array.isArray(node)) {
    for (const part of node) collectVariables(part, names);
    return;
  }
  if (node.type === 'VariableDeclarator') {
    names.add(node.id.name);
    if (node.init?.name === 'SFVec3f') names.vectors.add(node.id.name);
  }
  if (node.type === 'FunctionDeclaration') names.add(node.id.name);
  if (/^Function/.test(node.type)) return;
  for (const part of Object.values(node)) collectVariables(part, names);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) compile(process.argv[2]);
