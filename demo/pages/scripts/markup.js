// Markup from templates: everything spliced in is escaped, unless it is markup itself.

'use strict';

class Markup {
  constructor(text) { this.text = text; }
}

function escaped(value) {
  const names = { '&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;', "'": '&#39;' };
  return String(value).replace(/[&<>"']/g, (character) => names[character]);
}

function markupText(value) {
  if (value instanceof Markup) return value.text;
  if (Array.isArray(value)) return value.map(markupText).join('');
  return value === null || value === undefined || value === false ? '' : escaped(value);
}

function html(texts, ...values) {
  return new Markup(texts.map((text, index) => (index ? markupText(values[index - 1]) : '') + text).join(''));
}

function icon(name) {
  return html`<svg class="icon" aria-hidden="true"><use href="#i-${name}"/></svg>`;
}

const element = (id) => document.getElementById(id);

// Figures and dates as people of the demo account read them, whatever the system's language.

const amount = (value, digits = 0) => Number(value || 0)
  .toLocaleString('en', { minimumFractionDigits: digits, maximumFractionDigits: digits });
const money = (value) => `€${amount(value, 2)}`;
const kilometres = (value) => `${amount(value, 1)} km`;
const duration = (minutes) => (minutes >= 60 ? `${Math.floor(minutes / 60)} h ` : '') + `${Math.round(minutes % 60)} min`;
const dayText = (date, options = { day: 'numeric', month: 'short', year: 'numeric' }) => {
  const day = new Date(`${date}T12:00:00`);
  return Number.isNaN(day.getTime()) ? String(date ?? '') : day.toLocaleDateString('en', options);
};
const monthText = (month, style = 'short') => dayText(`${month}-01`, { month: style });
const energyTag = (energy) => html`<span class="tag ${{ Electric: 'good', Hybrid: 'cool' }[energy] ?? 'warm'}">${energy || 'Other'}</span>`;
const purposeTag = (purpose) => html`<span class="tag ${{ Business: 'cool', Commute: 'good', Delivery: 'warm' }[purpose] ?? ''}">${purpose || 'Other'}</span>`;
