// Every key is shown to the program before the element it is pressed on takes it: the program answers
// whether the key is the menubar's (taken here), chooses the focused menu item, or is one of the frame's
// keys for the engine's focused field.
"use strict";
(function () {
  var PASSES = 0, CHOOSES_ITEM = 2, TO_ENGINE = 3;
  function shiftOf(event) {
    return (event.shiftKey ? 1 : 0) | (event.ctrlKey ? 2 : 0) | (event.altKey ? 4 : 0);
  }
  function seen(event, released) {
    if (!document.body.hasAttribute("data-ready") || event.isComposing) return;
    var shift = shiftOf(event);
    // Called directly: a call through ccall while a modal form waits would only give a promise.
    var kind = Module._lw_page_key_seen(event.keyCode, shift, released ? 1 : 0);
    if (kind === PASSES) return;
    event.preventDefault();
    event.stopPropagation();
    if (kind === CHOOSES_ITEM) document.activeElement.click();
    else if (kind === TO_ENGINE)
      Module.ccall("lw_page_key", null, ["number", "number", "string"], [event.keyCode, shift, event.key], { async: true });
  }
  window.addEventListener("keydown", function (event) { seen(event, false); }, true);
  window.addEventListener("keyup", function (event) { if (event.key === "Alt") seen(event, true); }, true);
})();
