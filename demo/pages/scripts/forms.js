// Dialogs that add a record.

'use strict';

const today = '2026-10-31'; // The demo account's present day.

// Fields by the page that they belong to: name, label, type and what else the input needs.
const forms = {
  drives: {
    title: 'New drive', done: 'Drive saved.',
    fields: [
      { name: 'date', label: 'Date', type: 'date', value: today },
      { name: 'start', label: 'Start', type: 'time', value: '08:30' },
      { name: 'from', label: 'From', required: true, places: true },
      { name: 'to', label: 'To', required: true, places: true },
      { name: 'distance', label: 'Distance in km', type: 'number', required: true },
      { name: 'minutes', label: 'Minutes', type: 'number' },
      { name: 'vehicle', label: 'Vehicle', required: true, vehicles: true },
      { name: 'purpose', label: 'Purpose', options: ['Business', 'Commute', 'Personal', 'Delivery'] },
    ],
  },
  vehicles: {
    title: 'New vehicle', done: 'Vehicle added to the garage.',
    fields: [
      { name: 'name', label: 'Name', required: true },
      { name: 'model', label: 'Make and model' },
      { name: 'plate', label: 'Plate' },
      { name: 'energy', label: 'Energy', options: ['Petrol', 'Diesel', 'Hybrid', 'Electric'] },
      { name: 'year', label: 'Year', type: 'number', step: 1 },
      { name: 'odometer', label: 'Odometer in km', type: 'number', step: 1 },
      { name: 'nextService', label: 'Next service', type: 'date', value: '2027-04-30' },
    ],
  },
  drivers: {
    title: 'New driver', done: 'Driver added.',
    fields: [
      { name: 'firstname', label: 'First name', required: true },
      { name: 'lastname', label: 'Last name', required: true },
      { name: 'licence', label: 'Licence' },
      { name: 'group', label: 'Account group', options: ['Household', 'Field team', 'Weekend club'] },
      { name: 'since', label: 'Driving since', type: 'date', value: today },
    ],
  },
  fuel: {
    title: 'Log fuel', done: 'Fuel logged.',
    fields: [
      { name: 'date', label: 'Date', type: 'date', value: today },
      { name: 'vehicle', label: 'Vehicle', required: true, vehicles: true },
      { name: 'station', label: 'Station', wide: true, places: true },
      { name: 'litres', label: 'Litres', type: 'number', required: true },
      { name: 'total', label: 'Total in €', type: 'number', required: true },
      { name: 'odometer', label: 'Odometer in km', type: 'number' },
    ],
  },
  charging: {
    title: 'Log charging session', done: 'Charging session logged.',
    fields: [
      { name: 'date', label: 'Date', type: 'date', value: today },
      { name: 'vehicle', label: 'Vehicle', required: true, vehicles: true },
      { name: 'station', label: 'Station', wide: true, places: true },
      { name: 'energy', label: 'Energy in kWh', type: 'number', required: true },
      { name: 'minutes', label: 'Minutes', type: 'number' },
      { name: 'total', label: 'Total in €', type: 'number', required: true },
    ],
  },
  tickets: {
    title: 'New ticket', done: 'Ticket sent. We answer within a day.',
    fields: [
      { name: 'subject', label: 'Subject', required: true, wide: true },
      { name: 'message', label: 'What happened?', long: true, wide: true },
    ],
  },
};

function control(field) {
  if (field.options) return html`<select name="${field.name}">${field.options.map((option) => html`<option>${option}</option>`)}</select>`;
  if (field.vehicles) return html`<select name="${field.name}" required></select>`;
  if (field.long) return html`<textarea name="${field.name}" rows="5" maxlength="1800"></textarea>`;
  const step = field.type === 'number' && html` step="${field.step ?? 'any'}" min="0"`;
  return html`<input name="${field.name}" type="${field.type ?? 'text'}" value="${field.value ?? ''}" maxlength="200"${step}
    ${field.required && new Markup('required')} ${field.places && new Markup('list="places" autocomplete="off"')}>`;
}

function openForm(name) {
  const form = forms[name];
  document.querySelector('dialog')?.remove();
  const dialog = document.createElement('dialog');
  dialog.setAttribute('aria-label', form.title);
  dialog.innerHTML = markupText(html`<form method="dialog">
    <h2>${form.title}</h2>
    <div class="fields">${form.fields.map((field) => html`<label class="${field.wide && 'wide'}">${field.label}${control(field)}</label>`)}</div>
    <datalist id="places"></datalist>
    <p class="problem" role="alert"></p>
    <footer><button type="button" data-do="closeForm">Cancel</button><button class="primary">Save</button></footer></form>`);
  dialog.addEventListener('close', () => dialog.remove());
  dialog.addEventListener('submit', (event) => save(event, name, dialog));
  document.body.append(dialog);
  dialog.showModal();
  offerVehicles(dialog, name);
  offerPlaces(dialog);
}

async function save(event, name, dialog) {
  event.preventDefault();
  const driver = currentUser && name === 'drives' ? { driver: fullName(currentUser), score: 90 } : {};
  try {
    await api(name, { ...Object.fromEntries(new FormData(event.target)), ...driver, ...(name === 'tickets' && { state: 'Open' }) });
    dialog.close();
    toast(forms[name].done);
    channel?.postMessage({ changed: true });
    refreshPage();
  } catch (error) {
    dialog.querySelector('.problem').textContent = error.message;
  }
}

async function offerVehicles(dialog, name) {
  const select = dialog.querySelector('select[name=vehicle]');
  if (!select) return;
  const { records } = await api('vehicles');
  const fits = { fuel: (vehicle) => vehicle.energy !== 'Electric', charging: (vehicle) => /Electric|Hybrid/.test(vehicle.energy) }[name];
  select.innerHTML = markupText(records.filter(fits ?? Boolean).map((vehicle) => html`<option>${vehicle.name}</option>`));
}

// Suggests places as the user types; a slow answer for an earlier text is dropped.
function offerPlaces(dialog) {
  let latest = '';
  dialog.addEventListener('input', async (event) => {
    if (event.target.getAttribute('list') !== 'places') return;
    const text = latest = event.target.value.trim();
    if (!text) return;
    const answer = await fetch(`/api?limit=6&q=${encodeURIComponent(text)}`).then((response) => response.json()).catch(() => ({}));
    if (text !== latest) return;
    const names = (answer.features ?? []).map(({ properties }) => properties.name ?? `${properties.street} ${properties.housenumber}`);
    dialog.querySelector('#places').innerHTML = markupText(names.map((place) => html`<option value="${place}">`));
  });
}

commands.closeForm = (data, button) => button.closest('dialog').close();
commands.add = (data) => openForm(data.form);

// Called by the desktop application's menu and by its links.
function addDrive() { openForm('drives'); }
function addVehicle() { openForm('vehicles'); }
function addDriver() { openForm('drivers'); }
function addFuel() { openForm('fuel'); }
function addCharging() { openForm('charging'); }

const addButton = (form, label) => html`<button class="primary" data-do="add" data-form="${form}">${icon('newtab')}${label}</button>`;
