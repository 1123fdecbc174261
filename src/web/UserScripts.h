#pragma once

namespace velmaro {

// The scripts that run in every page of a tab.
namespace UserScripts {

// Tells pages where they run. For the start of the document.
inline constexpr auto platformMarker = "window.__vlPlatform = 'desktop';";

// Reports who is signed in to "authBridge", at once and then whenever it changes. For the end of
// the document.
inline constexpr auto signInWatcher = R"js((function(){
  if (window.__vlAuthBridgeInstalled) return;
  window.__vlAuthBridgeInstalled = true;
  let last = '__uninit__';
  function tick(){
    try {
      const u = window.currentUser;
      const payload = u ? { firstname: u.firstname || '', lastname: u.lastname || '' } : null;
      const sig = payload ? ('u\x1f' + payload.firstname + '\x1f' + payload.lastname) : 'nil';
      if (sig !== last) {
        last = sig;
        window.webkit.messageHandlers.authBridge.postMessage(payload);
      }
    } catch (_) {}
  }
  setInterval(tick, 1000);
  tick();
})();)js";

} // namespace UserScripts

} // namespace velmaro
