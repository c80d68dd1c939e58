// The data behind the chart as a table: sorted by a click on a header, copied, saved as CSV.

/** @param {HTMLElement} section  #data: the table and its tools
 *  @param {?string} csv  the whole data where the table has only its beginning */
export function tend(section, csv) {
  const table = section.querySelector('table');
  section.hidden = false;
  for (const [column, header] of [...table.tHead.rows[0].cells].entries()) {
    const button = document.createElement('button');
    button.type = 'button';
    button.textContent = header.textContent;
    button.addEventListener('click', () => sort(table, column));
    header.replaceChildren(button);
  }
  const tools = section.querySelector('.tools');
  const copy = add(tools, 'Copy table', async () => {
    await copyText(text(table, '\t', (cell) => cell.replace(/[\t\n\r]+/g, ' ')));
    copy.textContent = 'Copied';
    setTimeout(() => { copy.textContent = 'Copy table'; }, 2000);
  });
  add(tools, 'Save as CSV', () => save(new Blob([csv ?? text(table, ',', quoted)], { type: 'text/csv' }), 'csv'));
}

/** Offers a file to keep, named after the page. */
export function save(blob, suffix) {
  const link = document.createElement('a');
  const name = document.title.replace(/[^\p{L}\p{N} ._-]+/gu, ' ').trim().slice(0, 60);
  link.href = URL.createObjectURL(blob);
  link.download = `${name || 'chart'}.${suffix}`;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 60000);
}

/** A table of its own for a world that came without data: what its values say when they pop up. */
export function fill(table, header, rows) {
  const line = (cells, tag) => {
    const row = document.createElement('tr');
    for (const text of cells) {
      const cell = document.createElement(tag);
      cell.textContent = text;
      if (tag === 'th') cell.scope = 'col';
      row.append(cell);
    }
    return row;
  };
  table.createTHead().append(line(header, 'th'));
  table.createTBody().append(...rows.map((cells) => line(cells, 'td')));
}

function add(tools, label, act) {
  const button = document.createElement('button');
  button.type = 'button';
  button.textContent = label;
  button.addEventListener('click', act);
  tools.append(button);
  return button;
}

function sort(table, column) {
  const header = table.tHead.rows[0].cells[column];
  const down = header.getAttribute('aria-sort') === 'ascending';
  const compare = new Intl.Collator(undefined, { numeric: true }).compare;
  const key = (row) => row.cells[column].textContent;
  const number = (text) => (text.trim() === '' ? NaN : Number(text));
  const rows = [...table.tBodies[0].rows].sort((a, b) => {
    const [x, y] = [key(a), key(b)], [m, n] = [number(x), number(y)];
    return Number.isNaN(m) || Number.isNaN(n) ? compare(x, y) : m - n;
  });
  table.tBodies[0].append(...(down ? rows.reverse() : rows));
  for (const other of table.tHead.rows[0].cells) other.removeAttribute('aria-sort');
  header.setAttribute('aria-sort', down ? 'descending' : 'ascending');
}

function text(table, comma, written) {
  return [...table.rows].map((row) => [...row.cells].map((cell) => written(cell.textContent)).join(comma))
    .join('\r\n');
}

function quoted(cell) {
  return /[",\r\n]/.test(cell) ? `"${cell.replaceAll('"', '""')}"` : cell;
}

async function copyText(text) {
  try {
    await navigator.clipboard.writeText(text);
  } catch { // where there is no clipboard for pages from files
    const area = document.createElement('textarea');
    area.value = text;
    document.body.append(area);
    area.select();
    document.execCommand('copy');
    area.remove();
  }
}
