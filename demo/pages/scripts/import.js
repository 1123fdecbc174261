// Import and export.

'use strict';

let importFile = null; // { name, text, rows } of the file taken last.
let importKind = 'fuel';

const importColumns = {
  drives: 'date, start, minutes, from, to, distance, vehicle, driver, purpose, cost',
  fuel: 'date, vehicle, station, litres, total, odometer',
  charging: 'date, vehicle, station, energy, minutes, total',
};

const exportsOffered = [
  ['Everything', 'velmaro_export.vlarchive', 'The whole account, to move it elsewhere'],
  ['Drives as table', 'velmaro_data.csv', 'For any spreadsheet'],
  ['All records as JSON', 'velmaro_data.json', 'For programs'],
  ['Tables and records', 'velmaro_archive.zip', 'All of them in one file'],
];

// The first lines of a text, without looking at the rest of a big file.
function firstLines(text, count) {
  const lines = [];
  for (let start = 0; lines.length < count && start < text.length;) {
    const end = text.indexOf('\n', start);
    lines.push(text.slice(start, end < 0 ? undefined : end).replace(/\r$/, '').slice(0, 400));
    start = end < 0 ? text.length : end + 1;
  }
  return lines;
}

// The cells of one line; quoted ones may hold separators.
function cells(line) {
  const found = line.match(/("([^"]|"")*"|[^;,])*([;,]|$)/g).slice(0, 12);
  return found.map((cell) => cell.replace(/[;,]$/, '').replace(/^"(.*)"$/, '$1').replaceAll('""', '"'));
}

function lineCount(text) {
  let count = text && !text.endsWith('\n') ? 1 : 0;
  for (let at = text.indexOf('\n'); at >= 0; at = text.indexOf('\n', at + 1)) count += 1;
  return count;
}

const importPreview = ({ name, text, rows }) => html`<section class="card"><header><h2>${name}</h2><span class="tag good">${amount(rows)} lines, ${amount(text.length)} characters</span></header>
  <p class="small soft">Checksum <code id="checksum">…</code></p>
  <div class="scroll"><table>${firstLines(text, 6).map((line, index) => html`<tr>${cells(line).map((cell) => (index ? html`<td>${cell}</td>` : html`<th>${cell}</th>`))}</tr>`)}</table></div>
  <p style="display:flex;gap:10px;padding-top:30px"><button class="primary" data-do="importNow" ${rows < 2 && new Markup('disabled')}>Import ${amount(Math.max(0, rows - 1))} rows</button><button data-do="dropImport">Choose another file</button></p></section>`;

views.import = {
  title: 'Import & export', subtitle: 'Bring your records along, or take them with you',
  // The desktop application hands over a dropped file only while this page is shown.
  enter: () => { window.impLoadTextFromNative = takeImport; },
  leave: () => {
    delete window.impLoadTextFromNative;
    importFile = null;
  },
  render: () => html`<div class="grid">
    ${importFile && importPreview(importFile)}
    <section class="card seven"><header><h2>Import</h2></header>
      <label>What does the file hold?<select data-import-kind>${Object.keys(importColumns).map((kind) => html`<option value="${kind}" ${kind === importKind && new Markup('selected')}>${viewOf(kind).title ?? 'Drives'}</option>`)}</select></label>
      <p class="small soft" style="margin:8px 0 14px">Columns are found by name: <span id="columns">${importColumns[importKind]}</span></p>
      <div class="drop" id="drop"><span class="badge">${icon('import')}</span><b>Drop a CSV or text file here</b>
        <label class="button">Choose a file<input class="hidden" type="file" accept=".csv,.txt,text/csv,text/plain"></label>
        <a class="small" href="/online/assets/template.csv" download="velmaro_template.csv">Template to fill in</a></div></section>
    <section class="card five"><header><h2>Export</h2></header><ul class="rows">${exportsOffered.map(([title, file, text]) => html`
      <li><span class="badge cool">${icon('save')}</span><div><a href="/online/exports/${file}">${title}</a><div class="small soft">${text}</div></div></li>`)}
      <li><span class="badge cool">${icon('save')}</span><div><button class="compact" data-do="blobExport">Vehicles from this page</button></div></li></ul></section></div>`,
  wire: (content) => {
    content.querySelector('[data-import-kind]').addEventListener('change', (event) => {
      importKind = event.target.value;
      element('columns').textContent = importColumns[importKind];
    });
    content.querySelector('input[type=file]').addEventListener('change', (event) => takeFile(event.target.files[0]));
    const drop = element('drop');
    drop.addEventListener('dragover', (event) => { event.preventDefault(); drop.classList.add('over'); });
    drop.addEventListener('dragleave', () => drop.classList.remove('over'));
    drop.addEventListener('drop', (event) => {
      event.preventDefault();
      drop.classList.remove('over');
      if (event.dataTransfer.files[0]) takeFile(event.dataTransfer.files[0]);
      else toast('The file could not be read. Please choose it with the button.');
    });
    showChecksum();
  },
};

async function takeFile(file) {
  if (!file) return;
  if (!/\.(csv|txt)$/i.test(file.name)) {
    toast(`${file.name} is neither a CSV nor a text file.`);
    return;
  }
  takeImport(file.name, await file.text());
}

function takeImport(name, text) {
  importFile = { name: String(name), text: String(text), rows: lineCount(String(text)) };
  refreshPage();
}

async function showChecksum() {
  if (!importFile || importFile.checksum) return;
  const file = importFile;
  const digest = await crypto.subtle.digest('SHA-256', new TextEncoder().encode(file.text));
  const sha256 = Array.from(new Uint8Array(digest), (byte) => byte.toString(16).padStart(2, '0')).join('');
  if (element('checksum')) element('checksum').textContent = sha256;
  await api('import-received', { name: file.name, characters: file.text.length, sha256 });
}

commands.importNow = async () => {
  const { imported, skipped } = await api('import', { kind: importKind, text: importFile.text });
  toast(`${amount(imported)} rows imported${skipped ? `, ${amount(skipped)} did not fit` : ''}.`);
  importFile = null;
  channel?.postMessage({ changed: true });
  refreshPage();
};
commands.dropImport = () => {
  importFile = null;
  refreshPage();
};
commands.blobExport = async () => {
  const { records } = await api('vehicles');
  const lines = records.map(({ name, model, plate, odometer }) => [name, model, plate, odometer].join(','));
  downloadText('velmaro_vehicles.csv', ['name,model,plate,odometer', ...lines, ''].join('\r\n'), 'text/csv');
};
