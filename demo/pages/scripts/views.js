// The pages that are not lists: dashboard, sign-in, new tab, news, help and support.

'use strict';

const purposes = ['Business', 'Commute', 'Delivery', 'Personal'];

const tile = ({ symbol, name, value, unit, before, values, color }) => {
  const change = before > 0 ? Math.round((value / before - 1) * 100) : 0;
  return html`<div class="card three tile"><span class="name">${icon(symbol)}${name}</span>
    <span class="value">${value < 100 && unit !== 'drives' ? amount(value, 1) : amount(value)} <small>${unit}</small></span>
    <span class="small soft">${change > 0 ? '+' : ''}${change} % against last month</span>${sparkline(values, color)}</div>`;
};

const weekSum = (week) => Object.values(week.distance).reduce((sum, value) => sum + value, 0);

const driveRows = (drives) => drives.map((drive) => html`<tr class="open" data-drive="${drive.id}">
  <td><a href="#drives" data-do="drive" data-drive="${drive.id}">${drive.from} → ${drive.to}</a><div class="small soft">${dayText(drive.date)}, ${drive.start}</div></td>
  <td class="optional">${drive.vehicle}</td><td>${purposeTag(drive.purpose)}</td><td class="number">${kilometres(drive.distance)}</td></tr>`);

const reminder = ({ vehicle, date }) => html`<li><span class="badge warm">${icon('vehicles')}</span>
  <div><b>${vehicle}</b><div class="small soft">Service ${dayText(date, { day: 'numeric', month: 'short' })}</div></div>
  <button class="compact" data-do="remind" data-vehicle="${vehicle}" data-date="${date}">${icon('bell')}Remind me</button></li>`;

views.dashboard = {
  title: 'Dashboard',
  heading: () => ({ title: 'Dashboard', subtitle: `Welcome back${currentUser?.firstname ? `, ${currentUser.firstname}` : ''}. Here is your October.` }),
  actions: () => html`<button data-do="add" data-form="fuel">${icon('fuel')}Log fuel</button>
    <button data-do="add" data-form="charging">${icon('charging')}Log charging</button>${addButton('drives', 'New drive')}`,
  load: () => api('dashboard'),
  render: ({ thisMonth, lastMonth, weeks, drives, due }) => {
    const distances = weeks.map(weekSum);
    const costs = [
      { name: `Charging ${money(thisMonth.chargingCost)}`, value: thisMonth.chargingCost },
      { name: `Fuel ${money(thisMonth.fuelCost)}`, value: thisMonth.fuelCost }];
    const bars = weeks.map((week) => ({
      label: dayText(week.to, { day: 'numeric', month: 'short' }),
      title: `${dayText(week.from)} to ${dayText(week.to)}: ${kilometres(weekSum(week))}`,
      parts: purposes.map((purpose) => week.distance[purpose] ?? 0),
    }));
    return html`<div class="grid">
      ${tile({ symbol: 'drives', name: 'Distance', value: thisMonth.distance, unit: 'km', before: lastMonth.distance, values: distances })}
      ${tile({ symbol: 'dashboard', name: 'Drives', value: thisMonth.drives, unit: 'drives', before: lastMonth.drives, values: weeks.map((week) => week.drives), color: 'var(--blue)' })}
      ${tile({ symbol: 'fuel', name: 'Fuel', value: thisMonth.litres, unit: 'l', before: lastMonth.litres, values: weeks.map((week) => week.litres), color: 'var(--amber-fill)' })}
      ${tile({ symbol: 'charging', name: 'Charging', value: thisMonth.energy, unit: 'kWh', before: lastMonth.energy, values: weeks.map((week) => week.energy) })}
      <section class="card eight"><header><h2>Distance by week</h2>${legend(purposes)}</header>${barChart(bars, { height: 250, label: 'Distance of the last twelve weeks by purpose' })}</section>
      <section class="card four"><header><h2>Energy costs in October</h2></header>
        ${ringChart(costs, { label: 'Energy costs', text: money(thisMonth.fuelCost + thisMonth.chargingCost) })}
        <div style="display:grid;justify-content:center;margin-top:14px">${legend(costs.map((cost) => cost.name))}</div></section>
      <section class="card eight"><header><h2>Latest drives</h2><a href="#drives">All drives</a></header>
        <div class="scroll"><table><thead><tr><th>Drive</th><th class="optional">Vehicle</th><th>Purpose</th><th class="number">Distance</th></tr></thead>
        <tbody>${driveRows(drives)}</tbody></table></div></section>
      <section class="card four"><header><h2>Due soon</h2></header><ul class="rows">${due.map(reminder)}</ul></section>
    </div>`;
  },
};

commands.drive = (data) => viewDriveDetail(data.drive);
commands.remind = ({ vehicle, date }) => {
  const message = {
    title: `Service for ${vehicle}`, body: `Due on ${dayText(date)}. Book a visit in time.`,
    url: 'velmaro://page/vehicles', id: `service-${vehicle}`,
  };
  if (!postToDesktop('notifyBridge', message)) toast(`We will remind you of ${vehicle} in time.`);
};

views['sign-in'] = {
  title: 'Sign in',
  render: () => html`<div class="sign-in">
    <div class="picture">
      <svg viewBox="0 0 400 240" preserveAspectRatio="none" aria-hidden="true"><path d="M0 120C90 70 150 110 230 80s110-50 170-30v190H0z" fill="#0a4f48"/>
        <path d="M0 170c80-40 160 0 240-30s110-30 160-20v120H0z" fill="#083f3a"/><path d="M150 240c10-60 120-50 110-100-8-40-70-30-60-62" fill="none" stroke="#e9b25c" stroke-width="3" stroke-dasharray="9 8"/></svg>
      <img src="/online/assets/mark.svg" alt="" width="44" height="44"><h2>Every drive, every charge, every cost. In one place.</h2>
      <p>Velmaro keeps the logbook while you keep your eyes on the road.</p></div>
    <form class="form" data-form="sign-in"><h1>Sign in</h1>
      <button type="button" class="primary" data-do="signInDemo">Sign in as Robin Alder</button><p class="or">or with another name</p>
      <label>First name<input name="firstname" autocomplete="given-name" maxlength="60"></label>
      <label>Last name<input name="lastname" autocomplete="family-name" maxlength="60"></label>
      <p class="problem" role="alert" style="margin:0"></p><button>Sign in</button>
      <p class="small soft">This is a demo: any name will do, no password is needed. Or <a href="#drives">look around first</a>.
      <a href="/legal/privacy">Privacy</a></p></form></div>`,
  wire: (content) => content.querySelector('form').addEventListener('submit', async (event) => {
    event.preventDefault();
    const { firstname, lastname } = Object.fromEntries(new FormData(event.target));
    try {
      await signIn(firstname.trim(), lastname.trim());
    } catch (error) {
      content.querySelector('.problem').textContent = error.message;
    }
  }),
};

const launcher = [
  ['Log fuel', 'fuel', 'addFuel'], ['Log charging', 'charging', 'addCharging'], ['New drive', 'drives', 'addDrive'],
  ['Dashboard', 'dashboard'], ['Drives', 'drives'], ['Reports', 'reports'], ['Vehicles', 'vehicles'], ['Account groups', 'account-groups'],
  ['Gas stations', 'gas'], ['Charging stations', 'evstations'], ['Traffic alerts', 'traffic'], ['Import & export', 'import'],
];

views.newtab = {
  title: 'New tab', subtitle: 'Where would you like to go?',
  render: () => html`<div class="links">${launcher.map(([label, route, call]) => html`
    <a href="#${route}" ${call && new Markup(`data-do="call" data-call="${call}"`)} data-page="${route}"><span class="badge ${call && 'warm'}">${icon(route)}</span>${label}</a>`)}</div>`,
};
commands.call = ({ page, call }) => {
  showPage(page);
  ({ addFuel, addCharging, addDrive })[call]();
};

const news = [
  ['October 2026', 'Finders around any place', 'Gas stations, charging stations and traffic alerts now start from the place that you pick, not only from where you are.'],
  ['September 2026', 'Reports on paper', 'A report can be saved as PDF or printed with one click. Charts stay sharp at every size.'],
  ['August 2026', 'Drop a file to import', 'Drop a CSV file onto the import page. Columns are found by their names, in any order.'],
  ['June 2026', 'Account groups', 'Share vehicles with your household or your team, and keep your own drives to yourself.'],
];

views.whatsnew = {
  title: 'What’s new', subtitle: 'The latest in Velmaro Online',
  render: () => html`<div class="card"><ul class="rows">${news.map(([date, title, text]) => html`
    <li><span class="badge cool">${icon('whatsnew')}</span><div><h2>${title}</h2><p>${text}</p><p class="small soft">${date}</p></div></li>`)}</ul></div>`,
};

const questions = [
  ['How do I add a drive?', 'With “New drive” on the page of the drives. Many at once come in as a CSV file on the import page.'],
  ['Where do exports go?', 'Into the Downloads folder of your computer, under a name that begins with velmaro_.'],
  ['What counts as a business drive?', 'Whatever you mark as one. Reports keep the four purposes apart.'],
  ['Can two people share a vehicle?', 'Yes. Put both into an account group and add the vehicle to it.'],
  ['Does Velmaro need my position?', 'Only for the finders, and only when you ask for it. Any address will do as well.'],
];

const elsewhere = (path) => `https://elsewhere.localhost:${location.port}${path}`;

views.help = {
  title: 'Help center', subtitle: 'Short answers to frequent questions',
  render: () => html`<div class="grid"><section class="card eight"><ul class="rows">${questions.map(([question, answer]) => html`
    <li><div><h2>${question}</h2><p>${answer}</p></div></li>`)}</ul></section>
    <section class="card four"><header><h2>More help</h2></header><ul class="rows">
      <li><a href="/help">Printable handbook</a></li><li><a href="${elsewhere('/elsewhere')}">Community forum</a></li>
      <li><a href="${elsewhere('/elsewhere')}" target="_blank">Road rules of the island</a></li>
      <li><a href="/help" target="_blank">Handbook in a new window</a></li>
      <li><a href="mailto:support@velmaro.example">Write to us</a></li><li><a href="tel:+0005550142">Call us</a></li><li><a href="#support">Support tickets</a></li></ul></section></div>`,
};

views.support = {
  title: 'Support', subtitle: 'Your tickets', actions: () => addButton('tickets', 'New ticket'),
  load: () => api('tickets'),
  render: ({ records }) => html`<div class="card"><ul class="rows">${records.map((ticket) => html`
    <li><span class="badge">${icon('support')}</span><div><h2>${ticket.subject}</h2><p>${ticket.message}</p><p class="small soft">Ticket ${ticket.id}, ${dayText(ticket.date)}</p></div>
    <span class="tag ${{ Open: 'warm', Answered: 'cool' }[ticket.state] ?? 'good'}">${ticket.state || 'Open'}</span></li>`)}</ul></div>`,
};

views['not-found'] = {
  title: 'Page not found',
  render: () => html`<div class="card empty"><span class="badge bad">${icon('help')}</span><h2>There is no page “${_currentPage.slice(0, 80)}”</h2>
    <p class="soft">It may have been renamed, or the address has a slip in it.</p><a class="button primary" href="#dashboard">Go to the dashboard</a></div>`,
};
