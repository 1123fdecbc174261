// The finders: gas stations, charging stations and traffic alerts around a place.

'use strict';

const cityCentre = { lat: 47.31, lng: -31.42, label: 'Ellery' };

// The place that the desktop application has set, or the middle of the city.
function finderPlace() {
  const place = window.__vlOverrideLocation;
  const isPlace = Number.isFinite(place?.lat) && Number.isFinite(place?.lng);
  return isPlace ? { lat: place.lat, lng: place.lng, label: String(place.label || 'the place you picked') } : cityCentre;
}

const finder = ({ title, nothing, heads, row }) => ({
  title,
  heading: () => ({ title, subtitle: `Near ${finderPlace().label}` }),
  load: async () => {
    const here = finderPlace();
    const { stations } = await api(`stations?kind=${_currentPage}&lat=${here.lat}&lng=${here.lng}&near=${encodeURIComponent(here.label)}`);
    return { here, stations: stations.slice(0, 12) };
  },
  render: ({ here, stations }) => {
    if (stations.length === 0) return html`<div class="card empty"><h2>${nothing}</h2></div>`;
    const isFar = stations[0].distance > 60;
    return html`<div class="grid"><section class="card six" style="padding:12px">${pinMap(here, isFar ? [] : stations, `Map around ${here.label}`)}
        ${isFar && html`<p class="soft" style="padding:10px 6px 4px">${nothing} The nearest ones are far away.</p>`}</section>
      <section class="card six"><ul class="rows">${stations.slice(0, 4).map((station, index) => html`<li><span class="badge">${index + 1}</span><div><b>${station.name}</b>
        <div class="small soft">${station.street}, ${station.district}</div></div><span class="number">${kilometres(station.distance)}</span></li>`)}</ul></section>
      <section class="card">${table([['#'], ['Name'], ...heads, ['Distance', 'number']], stations.map((station, index) => html`<tr><td class="soft">${index + 1}</td>
        <td><b>${station.name}</b><div class="small soft">${station.street}</div></td>${row(station)}<td class="number">${kilometres(station.distance)}</td></tr>`))}</section></div>`;
  },
});

views.gas = finder({
  title: 'Gas stations', nothing: 'No gas station is known here.',
  heads: [['Open', 'optional'], ['Petrol', 'number'], ['Diesel', 'number']],
  row: (station) => html`<td class="optional">${station.hours}</td><td class="number">€${amount(station.petrol, 3)}</td><td class="number">€${amount(station.diesel, 3)}</td>`,
});

views.evstations = finder({
  title: 'Charging stations', nothing: 'No charging station is known here.',
  heads: [['Free'], ['Power', 'number'], ['Price per kWh', 'number optional']],
  row: (station) => html`<td><span class="tag ${station.free ? 'good' : 'bad'}">${station.free} of ${station.plugs}</span></td><td class="number">${station.power} kW</td><td class="number optional">${money(station.price)}</td>`,
});

views.traffic = finder({
  title: 'Traffic alerts', nothing: 'All roads are clear here.',
  heads: [['Severity'], ['Since', 'optional'], ['Delay', 'number']],
  row: (alert) => html`<td><span class="tag ${{ High: 'bad', Medium: 'warm' }[alert.severity] ?? 'cool'}">${alert.severity}</span></td><td class="optional">${alert.since}</td><td class="number">${alert.delay} min</td>`,
});
