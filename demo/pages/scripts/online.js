// The frame of the application: routes, who is signed in, and the talk with the desktop.

'use strict';

// The name of the page shown; the desktop application reloads by it.
var _currentPage = '';

// Each page registers itself: views[route] = { title, subtitle, actions(), load(), render(data) }.
const views = {};
let turn = 0; // Counts page changes, so that an answer for a page left behind is dropped.
let pageState = null;

const productTitle = 'Velmaro Online';
const channel = 'BroadcastChannel' in window ? new BroadcastChannel('velmaro') : null;

// Posts to the desktop application's handler of this name; false in a plain browser.
function postToDesktop(bridge, message) {
  try {
    const handler = window.webkit?.messageHandlers?.[bridge];
    if (!handler) return false;
    handler.postMessage(message);
    return true;
  } catch {
    return false;
  }
}

const isDesktop = () => window.__vlPlatform === 'desktop';

async function api(name, body) {
  const options = body === undefined ? {} : {
    method: 'POST', headers: { 'Content-Type': 'application/json' }, body: JSON.stringify(body),
  };
  const answer = await fetch(`/online/api/${name}`, options);
  const value = await answer.json().catch(() => ({}));
  if (!answer.ok) throw new Error(value.message || `The service answered ${answer.status}.`);
  return value;
}

function toast(text) {
  const note = document.createElement('p');
  note.textContent = text;
  element('toasts').append(note);
  setTimeout(() => note.remove(), 4000);
}

// ---- Routes -------------------------------------------------------------------------------

function addressRoute() {
  const text = location.hash.slice(1);
  try {
    return decodeURIComponent(text) || 'dashboard';
  } catch {
    return text;
  }
}

// Shows a page. The state tells what the page shows of itself, such as one drive.
function showPage(name, state = null) {
  const page = String(name ?? '') || 'dashboard';
  const isSame = page === _currentPage && JSON.stringify(state) === JSON.stringify(pageState);
  if (!isSame) history.pushState(state, '', `#${page}`);
  renderPage(page, state);
}

function showAddressedPage() {
  const page = addressRoute();
  if (page !== _currentPage || JSON.stringify(history.state) !== JSON.stringify(pageState)) renderPage(page, history.state);
}

function renderPage(page, state) {
  const isChange = page !== _currentPage;
  if (isChange) viewOf(_currentPage).leave?.();
  _currentPage = page;
  pageState = state;
  if (isChange) {
    postToDesktop('routeBridge', { page });
    scrollTo(0, 0);
  }
  refreshPage();
}

function viewOf(page) {
  if (!currentUser && page === 'dashboard') return views['sign-in'];
  return Object.hasOwn(views, page) ? views[page] : views['not-found'];
}

// Draws the current page: its heading at once, its content as soon as the data are there.
async function refreshPage() {
  const mine = ++turn;
  const view = viewOf(_currentPage);
  drawFrame(view);
  view.enter?.(pageState);
  if (!view.load) {
    drawContent(view, null);
    return;
  }
  element('content').setAttribute('aria-busy', 'true');
  if (view !== drawnView) element('content').innerHTML = markupText(waiting());
  try {
    const data = await view.load(pageState);
    if (mine === turn) drawContent(view, data);
  } catch (error) {
    if (mine === turn) drawContent({ render: () => failure(error) }, null);
  }
}
let drawnView = null;

function drawFrame(view) {
  const titles = view.heading?.(pageState) ?? view;
  const asksSignIn = view === views['sign-in'];
  document.body.classList.toggle('signing-in', asksSignIn);
  document.title = `${titles.title} — ${productTitle}`;
  element('title').textContent = titles.title;
  element('subtitle').textContent = titles.subtitle ?? '';
  element('actions').innerHTML = markupText(view.actions?.(pageState));
  element('account').innerHTML = markupText(accountControls());
  element('notice').innerHTML = markupText(!currentUser && !asksSignIn && demoNotice());
  for (const link of document.querySelectorAll('.side li a')) {
    if (link.hash === `#${_currentPage}`) link.setAttribute('aria-current', 'page');
    else link.removeAttribute('aria-current');
  }
}

function drawContent(view, data) {
  drawnView = view;
  element('content').innerHTML = markupText(view.render(data, pageState));
  element('content').removeAttribute('aria-busy');
  view.wire?.(element('content'), data);
}

const waiting = () => html`<div class="grid"><div class="card wait six"></div><div class="card wait six"></div><div class="card wait" style="min-height:320px"></div></div>`;

const failure = (error) => html`<div class="card empty"><div class="badge bad">${icon('traffic')}</div>
  <h2>This page could not be loaded</h2><p class="soft">${error.message}</p>
  <button class="primary" data-do="refresh">Try again</button></div>`;

// ---- Who is signed in ----------------------------------------------------------------------

const fullName = (user) => `${user.firstname ?? ''} ${user.lastname ?? ''}`.trim() || 'Somebody';
const initials = (user) => `${[...(user.firstname || '?')][0]}${[...(user.lastname || '')][0] ?? ''}`.toUpperCase();

const accountControls = () => html`
  <button class="plain compact" data-do="newTab" title="Open a new tab" aria-label="Open a new tab">${icon('newtab')}<span class="hint">New tab</span></button>
  ${currentUser
    ? html`<span class="badge" title="Signed in as ${fullName(currentUser)}">${initials(currentUser)}</span>
       <button class="plain compact" data-do="signOut" title="Sign out" aria-label="Sign out">${icon('out')}</button>`
    : html`<a class="button compact" href="#dashboard">Sign in</a>`}`;

const demoNotice = () => html`<p class="notice"><span><b>You are looking at the demo account.</b> Sign in to make it yours.</span>
  <button class="compact" data-do="signInDemo">Sign in as Robin Alder</button></p>`;

async function signIn(firstname, lastname) {
  setUser((await api('sign-in', { firstname, lastname })).user);
  toast(`Welcome, ${fullName(currentUser)}.`);
}

async function signOut() {
  await api('sign-out', {});
  setUser(null);
  postToDesktop('logoutBridge', {});
  showPage('dashboard');
}

function setUser(user, tellsOthers = true) {
  currentUser = user;
  if (tellsOthers) channel?.postMessage({ user });
  refreshPage();
}

channel?.addEventListener('message', ({ data }) => {
  if ('user' in data) setUser(data.user, false);
  if (data.changed && viewOf(_currentPage).load) refreshPage();
});

// ---- Controls ------------------------------------------------------------------------------

const commands = {
  refresh: () => refreshPage(),
  newTab: () => postToDesktop('tabBridge', {}) || window.open('/online#newtab', '_blank'),
  signInDemo: () => signIn('Robin', 'Alder'),
  signOut: () => signOut(),
  show: (data) => showPage(data.page),
};

document.addEventListener('click', async (event) => {
  const control = event.target.closest('[data-do]');
  if (control) {
    try {
      await commands[control.dataset.do]?.(control.dataset, control);
    } catch (error) {
      toast(error.message);
    }
    return;
  }
  const link = event.target.closest('a[href^="#"]');
  if (link && !event.ctrlKey && !event.metaKey && !event.shiftKey && event.button === 0) {
    event.preventDefault();
    showPage(link.hash.slice(1));
    element('title').focus({ preventScroll: true });
    return;
  }
  const row = event.target.closest('tr[data-drive]');
  if (row && !event.target.closest('a, button')) viewDriveDetail(row.dataset.drive);
});

// A page brought back whole may have missed a sign-in or a sign-out.
addEventListener('pageshow', async (event) => {
  if (event.persisted) setUser((await api('session')).user, false);
});
addEventListener('popstate', showAddressedPage);
addEventListener('hashchange', showAddressedPage);
