// The page's first script: takes what the page carries out of its wrapping, then runs the page's own
// script, which the policy of the page knows by its hash.
globalThis.orvaneUnpack = async (id) => {
  const packed = atob(document.getElementById(id).textContent);
  const bytes = Uint8Array.from(packed, (char) => char.charCodeAt(0));
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('deflate-raw'));
  return new Response(stream).text();
};
globalThis.orvaneUnpack('script').then((text) => {
  const script = document.createElement('script');
  script.textContent = text;
  document.head.append(script);
}, (error) => { document.getElementById('state').textContent = `This browser cannot show the chart: ${error.message}`; });
