// The page's glue: it hands every input to the engine and lets the engine decide what the page shows.
"use strict";
var Module = {
  print: function (text) { console.log(text); },
  printErr: function (text) { console.warn(text); },
  // The engine measures and draws text with the same font files the page's fields show: it finds them
  // where a Debian machine keeps them.
  preRun: [function () {
    var places = {
      "/usr/share/wine/fonts": ["tahoma.ttf"],
      "/usr/share/fonts/truetype/liberation": ["Mono", "Sans", "SansNarrow", "Serif"].reduce(function (all, family) {
        return all.concat(["Regular", "Bold", "Italic", "BoldItalic"].map(function (style) {
          return "Liberation" + family + "-" + style + ".ttf";
        }));
      }, []),
      "/usr/share/fonts/truetype/dejavu": ["DejaVuSans.ttf", "DejaVuSans-Bold.ttf", "DejaVuSans-Oblique.ttf",
                                            "DejaVuSans-BoldOblique.ttf"],
    };
    Module.addRunDependency("fonts");
    var loads = [];
    Object.keys(places).forEach(function (folder) {
      Module.FS_createPath("/", folder.slice(1), true, true);
      places[folder].forEach(function (name) {
        loads.push(fetch("fonts/" + name).then(function (answer) {
          if (!answer.ok) throw new Error("fonts/" + name + ": " + answer.status);
          return answer.arrayBuffer();
        }).then(function (bytes) {
          Module.FS_createDataFile(folder, name, new Uint8Array(bytes), true, true, true);
        }));
      });
    });
    // The page's fields measure their lines with the web fonts: all of them are ready before the program.
    if (document.fonts) document.fonts.forEach(function (face) { loads.push(face.load()); });
    Promise.all(loads).then(function () { Module.removeRunDependency("fonts"); }, function (error) {
      document.getElementById("status").textContent = "The page could not load its fonts: " + error.message;
    });
  }],
};

(function () {
  function call(name, types, values) {
    return Module.ccall(name, null, types, values, { async: true });
  }
  function shiftOf(event) {
    return (event.shiftKey ? 1 : 0) | (event.ctrlKey ? 2 : 0) | (event.altKey ? 4 : 0);
  }
  function fieldOf(target) {
    return target && target.hasAttribute && target.hasAttribute("data-field") ? Number(target.getAttribute("data-field")) : -1;
  }
  function closeMenus() {
    document.querySelectorAll(".menu.open").forEach(function (menu) {
      menu.classList.remove("open");
      menu.firstElementChild.setAttribute("aria-expanded", "false");
    });
  }

  document.addEventListener("keydown", function (event) {
    if (fieldOf(event.target) < 0) return;  // a button, a check box, a list take their keys as clicks
    if (reached === event.target) handOverReached();
    if (released === event.target) handOverSelection();
    if (event.isComposing || event.key === "Process" || event.key === "Dead") return;
    // Ctrl+V brings its text with the paste that follows.
    if (event.ctrlKey && !event.altKey && event.keyCode === 86) return;
    event.preventDefault();
    call("lw_page_key", ["number", "number", "string"], [event.keyCode, shiftOf(event), event.key]);
  }, true);

  document.addEventListener("paste", function (event) {
    if (fieldOf(event.target) < 0) return;
    if (released === event.target) handOverSelection();
    event.preventDefault();
    call("lw_page_paste", ["string"], [event.clipboardData.getData("text")]);
  }, true);

  // Text the page did not see as keys (an input method's) is put back as the engine has it.
  document.addEventListener("input", function (event) {
    if (fieldOf(event.target) >= 0) call("lw_page_key", ["number", "number", "string"], [0, 0, ""]);
  }, true);

  document.addEventListener("mousedown", function (event) {
    var field = fieldOf(event.target);
    if (field >= 0 && !Module._lw_page_field_pressed(field)) event.preventDefault();
  }, true);

  // A field the browser's own Tab reached (from a button or a check box) becomes the engine's focus, as a
  // click makes it; once the focus has settled, so that the engine's own moves of the focus pass by.
  // A key typed before then hands the field over first.
  var reached = null;
  function handOverReached() {
    var target = reached;
    reached = null;
    if (target && document.activeElement === target) call("lw_page_field_pressed", ["number"], [fieldOf(target)]);
  }
  document.addEventListener("focusin", function (event) {
    if (fieldOf(event.target) < 0) return;
    reached = event.target;
    setTimeout(handOverReached, 0);
  });

  // A click into selected text puts the caret only once the button is up, after the handlers of
  // mouseup: the selection goes to the engine once it has settled, or before a key typed first.
  var released = null;
  function handOverSelection() {
    var target = released;
    released = null;
    if (target && document.activeElement === target)
      Module._lw_page_field_selected(fieldOf(target), target.selectionStart, target.selectionEnd);
  }
  document.addEventListener("mouseup", function (event) {
    if (fieldOf(event.target) < 0) return;
    released = event.target;
    setTimeout(handOverSelection, 0);
  }, true);

  // A click on the face, with the button pressed: a license takes a portrait on the left or right.
  function faceClicked(event) {
    var face = event.target, box = face.getBoundingClientRect();
    call("lw_page_face_clicked", ["number", "number", "number"],
         [Math.floor((event.clientX - box.left) * face.width / box.width),
          Math.floor((event.clientY - box.top) * face.height / box.height), event.button]);
  }
  ["contextmenu", "auxclick"].forEach(function (kind) {
    document.addEventListener(kind, function (event) {
      if (event.target.id !== "face" || (kind === "auxclick" && event.button !== 1)) return;
      event.preventDefault();
      faceClicked(event);
    });
  });

  document.addEventListener("click", function (event) {
    var target = event.target;
    if (target.id === "face") {
      faceClicked(event);
      return;
    }
    if (target.classList.contains("menu-title")) {
      var menu = target.parentElement, open = menu.classList.contains("open");
      closeMenus();
      if (!open) menu.classList.add("open");
      target.setAttribute("aria-expanded", String(!open));
      return;
    }
    if (target.hasAttribute("data-menu") && !target.disabled) {
      closeMenus();
      call("lw_page_menu", ["string"], [target.getAttribute("data-menu")]);
      return;
    }
    if (target.hasAttribute("data-frame-button")) {
      closeMenus();
      call("lw_page_frame_button", ["number"], [Number(target.getAttribute("data-frame-button"))]);
      return;
    }
    if (target.hasAttribute("data-control")) {
      // A select is used when its choice changes; a list or a strip of tabs through its entries.
      var role = target.getAttribute("role");
      if (target.tagName === "SELECT" || role === "tablist" || role === "listbox") return;
      // A check or option shows what the engine makes of the click, set before the click ends.
      call("lw_page_control", ["number", "number"], [Number(target.getAttribute("data-control")),
        target.hasAttribute("data-entry") ? Number(target.getAttribute("data-entry")) : -1]);
      return;
    }
    if (!target.closest(".menu")) closeMenus();
  });

  document.addEventListener("change", function (event) {
    var target = event.target;
    if (target.tagName === "SELECT" && target.hasAttribute("data-control"))
      call("lw_page_control", ["number", "number"], [Number(target.getAttribute("data-control")), target.selectedIndex]);
  });

  // A row of a list is chosen with Enter or Space too, as a click chooses it; the arrows go from row to row.
  document.addEventListener("keydown", function (event) {
    var target = event.target;
    if (!target.getAttribute || target.getAttribute("role") !== "option" || !target.hasAttribute("data-entry")) return;
    var next = event.key === "ArrowDown" ? target.nextElementSibling : event.key === "ArrowUp" ? target.previousElementSibling : null;
    if (event.key === "Enter" || event.key === " ") {
      event.preventDefault();
      target.click();
    } else if (next) {
      event.preventDefault();
      target.tabIndex = -1;
      next.tabIndex = 0;
      next.focus();
    }
  });

  // Escape and the close box ask the engine to close the form, which may refuse: the dialog closes only
  // once the engine has unloaded it.
  document.getElementById("modal").addEventListener("cancel", function (event) {
    event.preventDefault();
    call("lw_page_dialog_close", [], []);
  });
  document.getElementById("modal-close").addEventListener("click", function () {
    call("lw_page_dialog_close", [], []);
  });

  if ("serviceWorker" in navigator && location.protocol !== "file:")
    navigator.serviceWorker.register("service-worker.js").catch(function (error) { console.warn(error); });
})();
