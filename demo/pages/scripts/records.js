// The pages that list records: drives, vehicles, drivers, account groups, fuel and charging.

'use strict';

const table = (heads, rows) => html`<div class="scroll"><table><thead><tr>${heads.map(([title, kind]) => html`<th class="${kind}">${title}</th>`)}</tr></thead><tbody>${rows}</tbody></table></div>`;

let shownDrives = 40;

const driveList = {
  title: 'Drives', subtitle: 'Everything that was driven, newest first',
  actions: () => addButton('drives', 'New drive'),
  load: () => api(`drives?limit=${shownDrives}`),
  render: ({ total, records }) => html`<section class="card"><header><h2>${amount(total)} drives</h2></header>${table(
    [['Drive'], ['Vehicle', 'optional'], ['Driver', 'optional'], ['Purpose'], ['Time', 'number optional'], ['Distance', 'number'], ['Cost', 'number']],
    records.map((drive) => html`<tr class="open" data-drive="${drive.id}"><td><a href="#drives" data-do="drive" data-drive="${drive.id}">${drive.from} → ${drive.to}</a><div class="small soft">${dayText(drive.date)}, ${drive.start}</div></td>
      <td class="optional">${drive.vehicle}</td><td class="optional">${drive.driver}</td><td>${purposeTag(drive.purpose)}</td><td class="number optional">${duration(drive.minutes)}</td><td class="number">${kilometres(drive.distance)}</td><td class="number">${money(drive.cost)}</td></tr>`))}
    ${records.length < total && html`<p style="text-align:center;padding-top:30px"><button data-do="moreDrives">Show more</button></p>`}</section>`,
};
commands.moreDrives = () => {
  shownDrives += 120;
  refreshPage();
};

const driveDetail = {
  render: (drive) => html`<div class="grid"><section class="card eight">${drive.way.length > 1
      ? wayMap(drive.way, `The way from ${drive.from} to ${drive.to}`) : html`<p class="empty soft">The way of this drive was not recorded.</p>`}</section>
    <section class="card four"><header><h2>${dayText(drive.date)}, ${drive.start}</h2>${purposeTag(drive.purpose)}</header><dl class="facts">
      ${[['Distance', kilometres(drive.distance)], ['Time', duration(drive.minutes)], ['Cost', money(drive.cost)], ['Average', `${amount(drive.minutes ? drive.distance / drive.minutes * 60 : 0)} km/h`],
        ['Vehicle', drive.vehicle], ['Driver', drive.driver || '–'], ['Smoothness', drive.score ? `${drive.score} of 100` : '–'], ['Number', drive.id]]
        .map(([name, value]) => html`<div><dt>${name}</dt><dd>${value}</dd></div>`)}</dl></section>
    <p><button data-do="show" data-page="drives">All drives</button></p></div>`,
};

views.drives = {
  heading: (state) => (state?.drive ? { title: `Drive ${state.drive}`, subtitle: 'One drive in detail' } : driveList),
  actions: (state) => (state?.drive ? null : driveList.actions()),
  load: (state) => (state?.drive ? api(`drives/${encodeURIComponent(state.drive)}`) : driveList.load()),
  render: (data, state) => {
    if (!state?.drive) return driveList.render(data);
    element('title').textContent = `${data.from} → ${data.to}`;
    return driveDetail.render(data);
  },
};

// Called by the desktop application with the number of a drive.
function viewDriveDetail(id) { showPage('drives', { drive: String(id) }); }

views.vehicles = {
  title: 'Vehicles', subtitle: 'Your garage', actions: () => addButton('vehicles', 'New vehicle'),
  load: () => api('vehicles'),
  render: ({ records }) => html`<div class="grid">${records.map((vehicle) => html`<section class="card six"><header>
      <span class="badge">${icon('vehicles')}</span><div style="flex:1"><h2>${vehicle.name}</h2><p class="soft">${vehicle.model}</p></div>${energyTag(vehicle.energy)}</header>
      <dl class="facts"><div><dt>Plate</dt><dd>${vehicle.plate || '–'}</dd></div><div><dt>Year</dt><dd>${vehicle.year || '–'}</dd></div><div><dt>Odometer</dt><dd>${amount(vehicle.odometer)} km</dd></div></dl>
      <p style="display:flex;align-items:center;gap:12px;margin-top:14px"><span class="soft" style="flex:1">Next service ${dayText(vehicle.nextService)}</span>
      <button class="compact" data-do="remind" data-vehicle="${vehicle.name}" data-date="${vehicle.nextService}">${icon('bell')}Remind me</button></p></section>`)}</div>`,
};

views.drivers = {
  title: 'Drivers', subtitle: 'Who is behind the wheel', actions: () => addButton('drivers', 'New driver'),
  load: () => api('drivers'),
  render: ({ records }) => html`<section class="card">${table([['Name'], ['Account group'], ['Licence', 'optional'], ['Since', 'optional'], ['Smoothness', 'number']],
    records.map((driver) => html`<tr><td><span style="display:flex;align-items:center;gap:12px"><span class="badge cool">${initials(driver)}</span><b>${fullName(driver)}</b></span></td>
      <td>${driver.group}</td><td class="optional">${driver.licence}</td><td class="optional">${dayText(driver.since)}</td><td class="number">${driver.score ? html`<span class="tag ${driver.score > 89 ? 'good' : 'cool'}">${driver.score}</span>` : '–'}</td></tr>`))}</section>`,
};

views['account-groups'] = {
  title: 'Account groups', subtitle: 'Who shares vehicles with you',
  load: () => api('account-groups'),
  render: ({ records }) => html`<div class="grid">${records.map((group) => html`<section class="card four"><header><span class="badge">${icon('account-groups')}</span><h2>${group.name}</h2><span class="tag ${group.role === 'Owner' ? 'good' : ''}">${group.role}</span></header>
      <dl class="facts" style="grid-template-columns:1fr"><div><dt>Members</dt><dd class="small">${group.members}</dd></div><div><dt>Vehicles</dt><dd class="small">${group.vehicles}</dd></div></dl></section>`)}
    <section class="card"><header><h2>Room for ten drivers</h2><a class="button primary" href="https://pay.localhost:${location.port}/checkout?plan=team">Extend the plan</a></header>
      <p class="soft">Your plan has five of ten places taken. <a href="/online/exports/invoice.pdf">Latest invoice (PDF)</a></p></section></div>`,
};

// Fuel and charging are alike but for their units.
const energyLog = ({ title, subtitle, form, button, field, unit, unitPrice, symbol }) => ({
  title, subtitle, actions: () => addButton(form, button),
  load: () => api(form),
  render: ({ total, records }) => {
    const sum = (list, name) => list.reduce((result, record) => result + record[name], 0);
    const months = [...new Set(records.map((record) => record.date.slice(0, 7)))].sort().slice(-7);
    const bars = months.map((month) => {
      const cost = sum(records.filter((record) => record.date.startsWith(month)), 'total');
      return { label: monthText(month), title: `${monthText(month, 'long')}: ${money(cost)}`, parts: form === 'fuel' ? [0, cost] : [cost] };
    });
    return html`<div class="grid"><section class="card five"><header><span class="badge ${form === 'fuel' ? 'warm' : ''}">${icon(symbol)}</span><h2>${total} entries</h2></header><dl class="facts">
        <div><dt>Amount</dt><dd>${amount(sum(records, field))} ${unit}</dd></div><div><dt>Cost</dt><dd>${money(sum(records, 'total'))}</dd></div><div><dt>Average</dt><dd>${money(sum(records, 'total') / (sum(records, field) || 1))} per ${unit}</dd></div></dl></section>
      <section class="card seven"><header><h2>Cost by month</h2></header>${barChart(bars, { height: 150, label: 'Cost by month' })}</section>
      <section class="card">${table([['Date'], ['Vehicle'], ['Station', 'optional'], [unitPrice, 'number optional'], ['Amount', 'number'], ['Total', 'number']],
        records.map((record) => html`<tr><td>${dayText(record.date)}</td><td><b>${record.vehicle}</b></td><td class="optional">${record.station || '–'}</td><td class="number optional">${money(record.total / (record[field] || 1))}</td><td class="number">${amount(record[field], 1)} ${unit}</td><td class="number">${money(record.total)}</td></tr>`))}</section></div>`;
  },
});

views.fuel = energyLog({ title: 'Fuel', subtitle: 'Every litre, and what it cost', form: 'fuel', button: 'Log fuel', field: 'litres', unit: 'l', unitPrice: 'Per litre', symbol: 'fuel' });
views.charging = energyLog({ title: 'Charging', subtitle: 'Every session, at home and on the road', form: 'charging', button: 'Log charging', field: 'energy', unit: 'kWh', unitPrice: 'Per kWh', symbol: 'charging' });
