// Everything is registered: show the page that the address names.

'use strict';

if (isDesktop()) document.documentElement.dataset.platform = 'desktop';
renderPage(addressRoute(), history.state);
