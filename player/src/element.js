// <orvane-chart src="sales.wrl">: the player as an element. Events of the player come as events "chart-" +
// name, with what they tell in detail; "chart-load" comes when a world is there, "chart-error" when not.

import { Player } from './player.js';

const EVENTS = ['value', 'toggle', 'link', 'viewpoint', 'progress', 'warning'];
const STYLE = ':host { display: block; aspect-ratio: 16 / 10 } div { width: 100%; height: 100% }';

export class ChartElement extends HTMLElement {
  static observedAttributes = ['src'];

  #player = null;

  /** The Player while the element is in a document, else null. */
  get player() { return this.#player; }

  get src() { return this.getAttribute('src') ?? ''; }
  set src(url) { this.setAttribute('src', url); }

  connectedCallback() {
    const root = this.shadowRoot ?? this.attachShadow({ mode: 'open' });
    const sheet = new CSSStyleSheet(), place = document.createElement('div');
    sheet.replaceSync(STYLE);
    root.adoptedStyleSheets = [sheet];
    root.replaceChildren(place);
    this.#player = new Player(place);
    for (const event of EVENTS) this.#player.listen(event, (detail) => this.#tell(event, detail));
    this.#load();
  }

  disconnectedCallback() {
    this.#player.dispose();
    this.#player = null;
    this.shadowRoot.replaceChildren();
  }

  attributeChangedCallback() { if (this.#player !== null) this.#load(); }

  async #load() {
    if (this.src === '') return;
    const player = this.#player, { src } = this;
    try {
      const url = new URL(src, document.baseURI).href;
      const answer = await fetch(url);
      if (!answer.ok) throw new Error(`${url}: ${answer.status} ${answer.statusText}`);
      const text = await answer.text();
      if (player !== this.#player || src !== this.src) return;
      await player.load(text, { url });
      if (player === this.#player) this.#tell('load', null);
    } catch (error) {
      if (player === this.#player && error.name !== 'AbortError') this.#tell('error', error);
    }
  }

  #tell(event, detail) { this.dispatchEvent(new CustomEvent(`chart-${event}`, { detail, bubbles: true })); }
}

customElements.define('orvane-chart', ChartElement);
