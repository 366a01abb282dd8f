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
    document.querySelectorAll(".menu.open").forEach(function (menu) { menu.classList.remove("open"); });
  }

  document.addEventListener("keydown", function (event) {
    if (document.getElementById("modal").open) return;  // the dialog's buttons take their keys
    if (fieldOf(event.target) < 0) return;
    if (event.isComposing || event.key === "Process" || event.key === "Dead") return;
    // Ctrl+V brings its text with the paste that follows.
    if (event.ctrlKey && !event.altKey && event.keyCode === 86) return;
    event.preventDefault();
    call("lw_page_key", ["number", "number", "string"], [event.keyCode, shiftOf(event), event.key]);
  }, true);

  document.addEventListener("paste", function (event) {
    if (fieldOf(event.target) < 0) return;
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

  document.addEventListener("mouseup", function (event) {
    var field = fieldOf(event.target);
    if (field >= 0)
      Module._lw_page_field_selected(field, event.target.selectionStart, event.target.selectionEnd);
  }, true);

  document.addEventListener("click", function (event) {
    var target = event.target;
    if (target.id === "face") {
      var box = target.getBoundingClientRect();
      call("lw_page_face_clicked", ["number", "number"],
           [Math.floor((event.clientX - box.left) * target.width / box.width),
            Math.floor((event.clientY - box.top) * target.height / box.height)]);
      return;
    }
    if (target.classList.contains("menu-title")) {
      var menu = target.parentElement, open = menu.classList.contains("open");
      closeMenus();
      if (!open) menu.classList.add("open");
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
    if (target.hasAttribute("data-button")) {
      call("lw_page_dialog_button", ["number"], [Number(target.getAttribute("data-button"))]);
      return;
    }
    if (!target.closest(".menu")) closeMenus();
  });

  // A box is answered by its buttons; Escape does not close it behind the engine's back.
  document.getElementById("modal").addEventListener("cancel", function (event) { event.preventDefault(); });

  if ("serviceWorker" in navigator && location.protocol !== "file:")
    navigator.serviceWorker.register("service-worker.js").catch(function (error) { console.warn(error); });
})();
