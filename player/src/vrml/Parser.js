// Reads a VRML97 text into a tree of what it declares, of which scenes are made (ISO/IEC 14772-1, annex A).
//
// A body is {nodes, routes, protos}: nodes as below; routes as [from, event, to, event] with DEF names; and
// the PROTOs that were declared, by name, each {name, fields, body}.
// A node is {type, def, fields, is}: type a node type or PROTO; fields by name, an SFNode as a node or {use}
// and an MFNode as an array of those; is: the names of the PROTO's fields that stand for one of its own, by
// field. A type is {name, fields}, fields: name -> {name, access, type, value}; a Script has one of its own.

import { Lexer } from './Lexer.js';
import { isType, noValue, readValue } from './values.js';

const ACCESS = ['field', 'exposedField', 'eventIn', 'eventOut'];

/** A field of a type under any of its names ("x", "set_x", "x_changed"), or undefined. */
export function declaredField({ fields }, name) {
  const own = fields.get(name);
  if (own !== undefined) return own;
  const plain = name.startsWith('set_') ? name.slice(4)
    : name.endsWith('_changed') ? name.slice(0, -8) : '';
  const exposed = fields.get(plain);
  return exposed?.access === 'exposedField' ? exposed : undefined;
}

export class Parser {
  /** @param {Map} types  the node types that are known, name -> {name, fields}
   *  @param {Map} library  bodies of PROTOs, name -> {name, fields, body}: they stand for EXTERNPROTOs and for
   *    PROTOs of these names. What else the text asks for and gets not is told to warn. */
  constructor(text, types, library = new Map(), warn = () => {}) {
    this.lexer = new Lexer(text);
    this.types = types;
    this.library = library;
    this.warn = (message, at) => {
      const { line, column } = this.lexer.place(at);
      warn(`Line ${line}, column ${column}: ${message}`);
    };
    this.missing = new Set(); // types that were left out
  }

  /** A whole world, or the file of a PROTO. */
  world() {
    const { lexer } = this;
    if (!/^\uFEFF?#VRML V2\.0 utf8[ \t\r\n]/.test(`${lexer.text.slice(0, 20)}\n`)) {
      lexer.fail('This is not VRML97: the text does not begin with "#VRML V2.0 utf8"');
    }
    return this.statements();
  }

  /** Statements without a header, up to the end. */
  statements() {
    this.openScope(null);
    const nodes = [];
    while (this.lexer.skip() >= 0) this.statement(nodes);
    return this.closeScope(nodes);
  }

  openScope(proto) {
    this.scope = {
      outer: this.scope, proto, names: new Map(), routes: [], lost: new Set(),
      protos: new Map(this.scope?.protos),
    };
  }

  closeScope(nodes) {
    const { routes, protos, outer } = this.scope;
    this.scope = outer;
    return { nodes, routes, protos };
  }

  statement(nodes) {
    const { lexer } = this;
    const at = lexer.at, word = lexer.word();
    if (word === 'PROTO') this.proto();
    else if (word === 'EXTERNPROTO') this.externproto();
    else if (word === 'ROUTE') this.route();
    else if (word === '') lexer.fail(`A node is expected, not ${lexer.next()}`);
    else {
      lexer.at = at;
      const node = this.node();
      if (node !== null) nodes.push(node);
    }
  }

  proto() {
    const name = this.lexer.name('The name of a PROTO');
    if (!this.library.has(name)) {
      this.scope.protos.set(name, this.definition(name));
      return;
    }
    this.interface(true);
    this.lexer.skipBraces(() => {});
  }

  /** What follows the name of a PROTO: its interface and body. */
  definition(name) {
    const { lexer } = this;
    if (this.scope === undefined) this.openScope(null);
    const proto = { name, fields: this.interface(true), body: null }, nodes = [];
    this.openScope(proto);
    lexer.expect('{', 'before the body of a PROTO');
    while (!lexer.take('}')) this.statement(nodes);
    proto.body = this.closeScope(nodes);
    return proto;
  }

  externproto() {
    const { lexer } = this;
    const at = lexer.at, name = lexer.name('The name of an EXTERNPROTO');
    this.interface(false);
    const urls = readValue(lexer, 'MFString');
    const known = urls.map((url) => url.split('#')[1] ?? name).find((part) => this.library.has(part));
    if (known === undefined) {
      this.warn(`The PROTO ${name} is not known here, and not fetched from ${urls.join(' or ')}`, at);
      this.scope.protos.set(name, null);
    } else if (known !== name) {
      this.scope.protos.set(name, this.library.get(known));
    }
  }

  interface(hasValues) {
    const { lexer } = this;
    const fields = new Map();
    lexer.expect('[', 'before an interface');
    while (!lexer.take(']')) {
      const field = this.declaration(lexer.name('A kind of field'), hasValues);
      fields.set(field.name, field);
    }
    return fields;
  }

  /** "eventIn SFBool set_bind" and its like; access has been read. */
  declaration(access, hasValues) {
    const { lexer } = this;
    if (!ACCESS.includes(access)) lexer.fail(`"${access}" is not one of ${ACCESS.join(', ')}`);
    const type = lexer.name('The type of a field');
    if (!isType(type)) lexer.fail(`"${type}" is not a type of field`);
    const name = lexer.name('The name of a field');
    const isValued = hasValues && !access.startsWith('event');
    return { name, access, type, value: isValued ? this.value(type) : noValue(type) };
  }

  route() {
    const { lexer, scope } = this;
    const at = lexer.at, from = this.routeEnd('eventIn');
    if (lexer.word() !== 'TO') lexer.fail('"TO" is expected in a ROUTE');
    const to = this.routeEnd('eventOut');
    if (from === null || to === null) return;
    if (from.field.type !== to.field.type) {
      lexer.fail(`This ROUTE goes from an ${from.field.type} to an ${to.field.type}`, at);
    }
    scope.routes.push([from.name, from.field.name, to.name, to.field.name]);
  }

  /** One end of a ROUTE; null where its node was left out. */
  routeEnd(wrongAccess) {
    const { lexer, scope } = this;
    lexer.skip();
    const start = lexer.at, name = lexer.name('The name of a node');
    lexer.expect('.', 'between the names of node and field in a ROUTE');
    const field = lexer.name('The name of a field'), node = scope.names.get(name);
    if (scope.lost.has(name)) return null;
    if (node === undefined) lexer.fail(`No node is called "${name}"`, start);
    const declared = declaredField(node.type, field);
    if (declared === undefined) lexer.fail(`${node.type.name} has no field "${field}"`, start);
    if (declared.access === wrongAccess || declared.access === 'field') {
      lexer.fail(`A ROUTE cannot ${wrongAccess === 'eventIn' ? 'start' : 'end'} at ${name}.${field}`, start);
    }
    return { name, field: declared };
  }

  typeNamed(name) {
    const { protos } = this.scope;
    return protos.has(name) ? protos.get(name) : this.library.get(name) ?? this.types.get(name) ?? null;
  }

  /** A node, {use}, or null where the node was left out; the word NULL is left to value(). */
  node() {
    const { lexer, scope } = this;
    lexer.skip();
    const at = lexer.at, word = lexer.name('The type of a node');
    if (word === 'USE') {
      const name = lexer.name('The name of a node');
      if (scope.lost.has(name)) return null;
      if (!scope.names.has(name)) lexer.fail(`No node before this one is called "${name}"`, at);
      return { use: name };
    }
    const def = word === 'DEF' ? lexer.name('A name') : undefined;
    const typeName = word === 'DEF' ? lexer.name('The type of a node') : word;
    const type = this.typeNamed(typeName);
    if (type === null) return this.leaveOut(typeName, def, at);
    const node = { type, def, fields: {}, is: undefined };
    if (typeName === 'Script') node.type = { name: typeName, fields: new Map(type.fields) };
    if (def !== undefined) scope.names.set(def, node);
    lexer.expect('{', 'after the type of a node');
    while (!lexer.take('}')) this.nodePart(node);
    return node;
  }

  leaveOut(typeName, def, at) {
    const { lexer, scope } = this;
    if (lexer.skip() !== 123) lexer.fail(`"{" is expected after the type of a node, not ${lexer.next()}`);
    if (!this.missing.has(typeName)) this.warn(`Nodes of type ${typeName} are left out`, at);
    this.missing.add(typeName);
    if (def !== undefined) scope.lost.add(def);
    lexer.skipBraces((name) => scope.lost.add(name));
    return null;
  }

  nodePart(node) {
    const { lexer } = this;
    const word = lexer.name('A field or "}"');
    if (word === 'ROUTE') this.route();
    else if (word === 'PROTO') this.proto();
    else if (word === 'EXTERNPROTO') this.externproto();
    else if (node.type.name === 'Script' && ACCESS.includes(word)) this.scriptField(node, word);
    else this.field(node, word);
  }

  scriptField(node, access) {
    const { lexer } = this;
    const field = this.declaration(access, false);
    node.type.fields.set(field.name, field);
    const start = lexer.at;
    if (lexer.word() === 'IS') {
      this.is(node, field);
      return;
    }
    lexer.at = start;
    if (access === 'field') node.fields[field.name] = this.value(field.type);
    else if (access === 'exposedField') lexer.fail('A Script has no exposedField');
  }

  field(node, name) {
    const { lexer } = this;
    const start = lexer.at - name.length, declared = declaredField(node.type, name);
    if (declared === undefined) lexer.fail(`${node.type.name} has no field "${name}"`, start);
    if (this.scope.proto !== null) {
      const at = lexer.at;
      if (lexer.word() === 'IS') {
        this.is(node, declared);
        return;
      }
      lexer.at = at;
    }
    if (declared.access.startsWith('event')) lexer.fail(`${node.type.name}.${name} is an event and has no value`, start);
    node.fields[declared.name] = this.value(declared.type);
  }

  is(node, declared) {
    const { lexer, scope } = this;
    const at = lexer.at, name = lexer.name('The name of a field'), outer = scope.proto?.fields.get(name);
    if (outer === undefined) lexer.fail(`The PROTO has no field "${name}"`, at);
    if (outer.type !== declared.type) {
      lexer.fail(`${name} is of type ${outer.type}, but ${declared.name} of ${declared.type}`, at);
    }
    (node.is ??= {})[declared.name] = name;
  }

  value(type) {
    const { lexer } = this;
    if (type === 'SFNode') return this.nodeOrNull();
    if (type !== 'MFNode') return readValue(lexer, type);
    const nodes = [];
    if (!lexer.take('[')) {
      nodes.push(this.nodeOrNull());
    } else {
      while (!lexer.take(']')) nodes.push(this.nodeOrNull());
    }
    return nodes.filter((node) => node !== null);
  }

  nodeOrNull() {
    const start = this.lexer.at;
    if (this.lexer.word() === 'NULL') return null;
    this.lexer.at = start;
    return this.node();
  }
}
