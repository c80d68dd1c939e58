// What scripts can ask of the browser (ISO/IEC 14772-1, annex C.4.4 and 4.12.10).

export class Browser {
  constructor(scene) { this.scene = scene; }

  getName() { return 'Orvane'; }
  getVersion() { return '0.1.0'; }
  getCurrentSpeed() { return 0; }
  getCurrentFrameRate() { return 0; }
  getWorldURL() { return this.scene.url; }

  createVrmlFromString(text) {
    const { scene } = this;
    return scene.values.toScript('MFNode', scene.create(text));
  }

  loadURL(urls, parameters) {
    this.scene.notify('link', { urls: Array.from(urls, String), parameters: Array.from(parameters, String) });
  }

  setDescription(text) { this.scene.notify('description', String(text)); }

  print(text) { this.scene.notify('print', String(text)); }
}
