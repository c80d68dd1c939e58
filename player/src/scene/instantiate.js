// Makes nodes of what a text declares.

import { Node } from './Node.js';

/** Makes the nodes of a body and the ROUTEs between them: {nodes, names}. In the body of a PROTO, instance
 *  is the node that it is the body of. */
export function instantiate(body, scene, instance = null) {
  const names = new Map();
  const nodes = body.nodes.map((declaration) => makeNode(declaration, scene, names, instance));
  for (const [from, output, to, input] of body.routes) {
    names.get(from).field(output).addRoute(names.get(to).field(input));
  }
  return { nodes, names };
}

function makeNode(declaration, scene, names, instance) {
  if (declaration.use !== undefined) return names.get(declaration.use);
  const { type, def = '', fields, is } = declaration;
  const node = new Node(type, def, scene);
  if (def !== '') names.set(def, node);
  for (const name of Object.keys(fields)) {
    const declared = type.fields.get(name);
    node.setField(declared, valueOf(declared.type, fields[name], scene, names, instance));
  }
  if (is !== undefined) join(node, is, instance);
  if (type.body !== undefined) addBody(node, scene);
  scene.added(node);
  return node;
}

function valueOf(type, value, scene, names, instance) {
  if (value === null || value === undefined) return value;
  if (type === 'SFNode') return makeNode(value, scene, names, instance);
  return type === 'MFNode' ? value.map((part) => makeNode(part, scene, names, instance)) : value;
}

/** What IS a field of the PROTO is the instance's own Field. */
function join(node, is, instance) {
  for (const name of Object.keys(is)) {
    const field = instance.field(is[name]), input = node.type.inputs?.[name];
    if (input !== undefined) field.listen((event) => input(node, event));
    node.fields[name] = field;
  }
}

function addBody(node, scene) {
  for (const declared of node.type.fields.values()) {
    const { type, value } = declared;
    const isNode = type === 'SFNode' ? value !== null : type === 'MFNode' && value.length > 0;
    if (isNode && node.fields[declared.name] === undefined) {
      node.setField(declared, valueOf(type, value, scene, new Map(), null));
    }
  }
  const { nodes, names } = instantiate(node.type.body, scene, node);
  node.body = nodes;
  node.names = names;
}
