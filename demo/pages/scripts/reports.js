// The reports page, and the report as a document of its own for PDF and paper.

'use strict';

let report = null; // The data that the page shows.

const reportTable = (data) => table([['Vehicle'], ['Drives', 'number'], ['Distance', 'number'], ['Fuel', 'number optional'], ['Charging', 'number optional'], ['Costs', 'number']],
  data.vehicles.map((row) => html`<tr><td><b>${row.vehicle}</b><div class="small soft">${row.model}</div></td><td class="number">${row.drives}</td><td class="number">${kilometres(row.distance)}</td>
    <td class="number optional">${money(row.fuelCost)}</td><td class="number optional">${money(row.chargingCost)}</td><td class="number">${money(row.fuelCost + row.chargingCost)}</td></tr>`));

const costBars = (data) => data.months.map((month) => ({
  label: monthText(month.month),
  title: `${monthText(month.month, 'long')}: ${money(month.fuelCost + month.chargingCost)}`,
  parts: [month.chargingCost, month.fuelCost],
}));
const distanceBars = (data) => data.months.map((month) => ({
  label: monthText(month.month), title: `${monthText(month.month, 'long')}: ${kilometres(month.distance)}`, parts: [month.distance],
}));

const total = (data, field) => data.months.reduce((sum, month) => sum + month[field], 0);

views.reports = {
  title: 'Reports', subtitle: 'May to October 2026',
  actions: () => html`<button data-do="printReport" accesskey="p">${icon('print')}Print</button><button class="primary" data-do="saveReport" accesskey="s">${icon('save')}Save as PDF</button>`,
  load: () => api('reports'),
  render: (data) => {
    report = data;
    return html`<div class="grid">
      <section class="card six"><header><h2>Energy costs by month</h2>${legend(['Charging', 'Fuel'])}</header>${barChart(costBars(data), { width: 460, label: 'Energy costs by month' })}</section>
      <section class="card six"><header><h2>Distance by month</h2></header>${barChart(distanceBars(data), { width: 460, label: 'Distance by month' })}</section>
      <section class="card"><header><h2>By vehicle</h2></header>${reportTable(data)}</section></div>`;
  },
};

// Called by the desktop application: shows the reports anew.
function loadReports() { showPage('reports'); }

// The whole report as one document that needs nothing else: style, table and chart are in it.
function reportDocument(data) {
  const style = `body{font:13px/1.5 Cantarell,"Segoe UI",Roboto,"Noto Sans",sans-serif;color:#16242b;margin:40px}
    h1{font-size:26px;margin:0}h2{font-size:16px;margin:28px 0 8px}p{margin:4px 0}a{color:#0e6f63}.head{border-top:5px solid #0e6f63;padding-top:16px}
    dl{display:flex;gap:40px;margin:20px 0}dt{color:#5a6a70;font-size:12px}dd{margin:0;font-size:19px;font-weight:700}
    table{border-collapse:collapse;width:100%}th{text-align:left;color:#5a6a70;font-size:12px}th,td{padding:7px 10px 7px 0;border-bottom:1px solid #e2e0d8}
    .number{text-align:right;font-variant-numeric:tabular-nums}.small{font-size:12px}.soft{color:#5a6a70}
    .chart{width:100%;height:auto}.chart text{fill:#5a6a70;font-size:11.5px}.grid-line{stroke:#e2e0d8}.s0{fill:#0e6f63}.s1{fill:#e39a35}
    footer{margin-top:30px;color:#5a6a70;font-size:12px}`;
  return markupText(html`<!doctype html><html lang="en"><head><meta charset="utf-8"><title>Velmaro report</title><style>${new Markup(style)}</style></head><body>
    <div class="head"><h1>Velmaro report</h1><p class="soft">May to October 2026${currentUser && `, for ${fullName(currentUser)}`}</p></div>
    <dl>${[['Distance', kilometres(total(data, 'distance'))], ['Drives', amount(total(data, 'drives'))], ['Fuel', money(total(data, 'fuelCost'))], ['Charging', money(total(data, 'chargingCost'))]]
      .map(([name, value]) => html`<div><dt>${name}</dt><dd>${value}</dd></div>`)}</dl>
    <h2>Energy costs by month</h2>${barChart(costBars(data), { label: 'Energy costs by month' })}
    <h2>Distance by month</h2>${barChart(distanceBars(data), { label: 'Distance by month' })}
    <h2>By vehicle</h2>${reportTable(data)}
    <footer><p>Made with <a href="${location.origin}/online#reports">Velmaro Online</a>. Questions? <a href="${location.origin}/help">Handbook</a> or <a href="mailto:support@velmaro.example">support@velmaro.example</a></p></footer></body></html>`);
}

async function reportMessage() {
  report ??= await api('reports');
  return { html: reportDocument(report), title: 'Velmaro report May to October 2026', filename: 'Velmaro report 2026-10' };
}

commands.saveReport = async () => {
  const message = await reportMessage();
  if (!postToDesktop('reportBridge', message)) downloadText(`${message.filename}.html`, message.html, 'text/html');
};

commands.printReport = async () => {
  const { html: text, title } = await reportMessage();
  if (postToDesktop('printBridge', { html: text, title })) return;
  const frame = document.createElement('iframe');
  frame.style.cssText = 'position:fixed;width:0;height:0;border:0';
  frame.srcdoc = text;
  frame.onload = () => frame.contentWindow.print();
  document.body.append(frame);
};

// Saves text that was made in the page.
function downloadText(name, text, type) {
  const link = document.createElement('a');
  link.href = URL.createObjectURL(new Blob([text], { type }));
  link.download = name;
  document.body.append(link);
  link.click();
  link.remove();
  setTimeout(() => URL.revokeObjectURL(link.href), 10000);
}
