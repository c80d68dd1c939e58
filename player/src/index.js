// All that the player offers to a page.

export { ChartElement } from './element.js';
export { Player } from './player.js';
export { WorldError } from './vrml/Lexer.js';
