// Small charts as inline SVG.

'use strict';

// The next number at or above the value whose quarters are round as well.
function roundUp(value) {
  const power = 10 ** Math.floor(Math.log10(Math.max(value, 1)));
  return [1, 1.2, 1.6, 2, 2.4, 3, 4, 6, 8, 10].map((step) => step * power).find((step) => step >= value) ?? value;
}

// Bars side by side, each stacked from its parts: [{ label, title, parts: [number, …] }, …].
function barChart(bars, { width = 620, height = 220, label }) {
  const left = 44, bottom = 26, top = 10;
  const sum = (bar) => bar.parts.reduce((total, part) => total + part, 0);
  const most = roundUp(Math.max(1, ...bars.map(sum)));
  const y = (value) => top + (height - top - bottom) * (1 - value / most);
  const step = (width - left) / bars.length;
  const lines = [0, 0.25, 0.5, 0.75, 1].map((share) => html`
    <line class="grid-line" x1="${left}" x2="${width}" y1="${y(most * share)}" y2="${y(most * share)}"/>
    <text x="${left - 8}" y="${y(most * share) + 4}" text-anchor="end">${amount(most * share)}</text>`);
  const columns = bars.map((bar, index) => {
    let reached = 0;
    const x = left + step * index + step * 0.2;
    const pieces = bar.parts.map((part, kind) => {
      reached += part;
      const size = y(reached - part) - y(reached);
      return size > 0 && html`<rect class="s${kind}" x="${x}" y="${y(reached)}" width="${step * 0.6}" height="${size}" rx="2"/>`;
    });
    return html`<g><title>${bar.title}</title>${pieces}
      <text x="${x + step * 0.3}" y="${height - 8}" text-anchor="middle">${bar.label}</text></g>`;
  });
  return html`<svg class="chart" viewBox="0 0 ${width} ${height}" role="img" aria-label="${label}">${lines}${columns}</svg>`;
}

// A ring of parts with a text in the middle: [{ name, value }, …].
function ringChart(parts, { label, text }) {
  const total = parts.reduce((sum, part) => sum + part.value, 0) || 1;
  const around = 2 * Math.PI * 42;
  let reached = 0;
  const arcs = parts.map((part, kind) => {
    const share = part.value / total;
    const arc = html`<circle cx="60" cy="60" r="42" fill="none" stroke-width="17" style="stroke:var(${['--accent', '--amber-fill', '--blue', '--rose'][kind]})"
      stroke-dasharray="${Math.max(0, share * around - 2)} ${around}" stroke-dashoffset="${-reached * around}" transform="rotate(-90 60 60)"><title>${part.name}</title></circle>`;
    reached += share;
    return arc;
  });
  return html`<svg class="chart" style="max-width:190px;margin:auto" viewBox="0 0 120 120" role="img" aria-label="${label}">
    <circle cx="60" cy="60" r="42" fill="none" stroke-width="17" style="stroke:var(--line)"/>${arcs}
    <text x="60" y="64" text-anchor="middle" style="font-size:15px;font-weight:700;fill:var(--ink)">${text}</text></svg>`;
}

function sparkline(values, color = 'var(--accent)') {
  const most = Math.max(1, ...values);
  const points = values.map((value, index) => `${(index / Math.max(1, values.length - 1)) * 100},${27 - (value / most) * 24}`).join(' ');
  return html`<svg viewBox="0 0 100 30" preserveAspectRatio="none" width="100%" height="30" aria-hidden="true">
    <polyline points="${points}" fill="none" stroke="${new Markup(color)}" stroke-width="2" vector-effect="non-scaling-stroke" stroke-linejoin="round"/></svg>`;
}

function legend(names) {
  return html`<ul class="legend">${names.map((name, kind) => html`<li><i class="s${kind}"></i>${name}</li>`)}</ul>`;
}

// Fits coordinates ([latitude, longitude]) into a picture, north up, with a margin.
function projection(points, width, height, margin = 36) {
  const latitudes = points.map((point) => point[0]), longitudes = points.map((point) => point[1]);
  const middle = [(Math.min(...latitudes) + Math.max(...latitudes)) / 2, (Math.min(...longitudes) + Math.max(...longitudes)) / 2];
  const narrowing = Math.cos((middle[0] * Math.PI) / 180);
  const high = Math.max(...latitudes) - Math.min(...latitudes), wide = (Math.max(...longitudes) - Math.min(...longitudes)) * narrowing;
  const scale = Math.min((height - 2 * margin) / Math.max(high, 1e-4), (width - 2 * margin) / Math.max(wide, 1e-4));
  return ([latitude, longitude]) => [
    Math.round((width / 2 + (longitude - middle[1]) * narrowing * scale) * 10) / 10,
    Math.round((height / 2 - (latitude - middle[0]) * scale) * 10) / 10];
}

// A sketched ground for maps: land with a few roads on it, always the same.
function ground(width, height) {
  const roads = [0.18, 0.42, 0.63, 0.85].map((share, index) => html`
    <path class="road" d="M${-10} ${height * share}C${width * 0.3} ${height * (share + (index % 2 ? 0.16 : -0.14))} ${width * 0.6} ${height * (share + (index % 2 ? -0.12 : 0.1))} ${width + 10} ${height * (share + 0.05)}"/>
    <path class="road" d="M${width * share} -10C${width * (share + 0.07)} ${height * 0.4} ${width * (share - 0.09)} ${height * 0.7} ${width * (share + 0.02)} ${height + 10}"/>`);
  return html`<path class="land" d="M0 0H${width}V${height * 0.8}C${width * 0.8} ${height * 0.74} ${width * 0.72} ${height * 0.98} ${width * 0.5} ${height}H0Z"/>${roads}`;
}

function wayMap(way, label) {
  const width = 720, height = 300, place = projection(way, width, height, 44);
  const points = way.map(place), [first] = points, last = points[points.length - 1];
  return html`<svg class="map" viewBox="0 0 ${width} ${height}" role="img" aria-label="${label}">${ground(width, height)}
    <polyline class="way" points="${points.join(' ')}"/>
    <circle class="here" cx="${first[0]}" cy="${first[1]}" r="9"/><circle class="pin" cx="${last[0]}" cy="${last[1]}" r="9"/></svg>`;
}

// Numbered pins around a place.
function pinMap(here, stations, label) {
  const width = 620, height = 400;
  const place = projection([[here.lat, here.lng], ...stations.map((station) => [station.lat, station.lng])], width, height);
  const [x, y] = place([here.lat, here.lng]);
  const pins = stations.map((station, index) => {
    const [left, top] = place([station.lat, station.lng]);
    return html`<g><title>${station.name}</title><circle class="pin" cx="${left}" cy="${top}" r="12"/><text x="${left}" y="${top}">${index + 1}</text></g>`;
  });
  return html`<svg class="map" viewBox="0 0 ${width} ${height}" role="img" aria-label="${label}">${ground(width, height)}
    <circle class="here" cx="${x}" cy="${y}" r="9"/>${pins.reverse()}</svg>`;
}
