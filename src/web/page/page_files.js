// The page's side of files, paper and clipboard: what only the browser can do (pick a file, save one
// where the trainer says, print, put a picture on the clipboard, open the guide). The engine asks, and
// waits for the answer in LwFiles.answer where a question takes the trainer's time.
"use strict";
var LwFiles = (function () {
  var files = {
    // The answer to the question asked last: undefined while the trainer has not answered.
    answer: undefined,
    // Where the next saved file goes: a file the trainer chose, or a download.
    saveHandle: null,
  };

  var largestFile = 16 * 1024 * 1024;

  function answerWith(value) { files.answer = value; }
  // Tells the trainer in the status line, as the program tells its own words.
  function tell(message) { Module.ccall("lw_page_status", null, ["string"], [message]); }

  // Open: the browser's file picker; the chosen file's name and bytes, or null when none is chosen.
  files.pick = function (accept) {
    files.answer = undefined;
    var input = document.createElement("input");
    input.type = "file";
    input.accept = accept;
    input.addEventListener("change", function () {
      var file = input.files && input.files[0];
      if (!file) return answerWith(null);
      // A form file is a line; a file of many megabytes is none, and is not copied into the program.
      if (file.size > largestFile) {
        tell("The file " + file.name + " is too large to be a form file: it was not opened.");
        return answerWith(null);
      }
      file.arrayBuffer().then(function (bytes) {
        answerWith({ name: file.name, bytes: new Uint8Array(bytes) });
      }, function () { answerWith(null); });
    });
    input.addEventListener("cancel", function () { answerWith(null); });
    input.click();
  };

  // Save: the browser's save picker with the proposed name where it has one (its answer is the name
  // chosen, or null for Cancel); elsewhere the file goes to the downloads under the proposed name.
  files.chooseSave = function (proposed, description, pattern) {
    files.answer = undefined;
    files.saveHandle = null;
    if (typeof window.showSaveFilePicker !== "function") return answerWith(proposed);
    var extension = pattern.replace(/^\*/, "");
    var options = { suggestedName: proposed };
    if (/^\.[A-Za-z0-9]+$/.test(extension)) {
      var accept = {};
      accept["application/octet-stream"] = [extension];
      options.types = [{ description: description, accept: accept }];
    }
    window.showSaveFilePicker(options).then(function (handle) {
      files.saveHandle = handle;
      answerWith(handle.name);
    }, function (error) {
      if (error && error.name !== "AbortError") console.warn(error);
      answerWith(null);
    });
  };

  function writeTo(handle, name, blob) {
    return handle.createWritable().then(function (writable) {
      return writable.write(blob).then(function () { return writable.close(); });
    }).catch(function (error) {
      tell("The file " + name + " could not be written: " + error.message);
    });
  }

  function download(name, blob) {
    var link = document.createElement("a");
    link.href = URL.createObjectURL(blob);
    link.download = name;
    document.body.appendChild(link);
    link.click();
    link.remove();
    setTimeout(function () { URL.revokeObjectURL(link.href); }, 60000);
  }

  // The bytes the engine wrote go to the file the trainer chose; a file opened from the browser and saved
  // again is offered under its own name; without a save picker it is a download.
  files.deliver = function (name, bytes) {
    var handle = files.saveHandle;
    files.saveHandle = null;
    var blob = new Blob([bytes], { type: "application/octet-stream" });
    if (handle) return writeTo(handle, name, blob);
    if (typeof window.showSaveFilePicker !== "function") return download(name, blob);
    window.showSaveFilePicker({ suggestedName: name }).then(function (chosen) {
      return writeTo(chosen, name, blob);
    }, function (error) {
      if (error && error.name !== "AbortError") console.warn(error);
    });
  };

  // Print: the drawing on a page of its own, turned where the form is wider than tall, through the
  // browser's print dialog.
  files.print = function (svg, landscape) {
    var sheet = document.getElementById("print-sheet");
    sheet.innerHTML = svg;
    document.getElementById("print-page").textContent =
      "@page { size: letter " + (landscape ? "landscape" : "portrait") + "; margin: 0.25in; }";
    // The page's fonts are loaded before the paper takes the text.
    document.fonts.ready.then(function () { window.print(); });
  };

  // Clip: the picture's PNG on the clipboard.
  files.clip = function (bytes) {
    var blob = new Blob([bytes], { type: "image/png" });
    if (!navigator.clipboard || typeof ClipboardItem !== "function") {
      tell("This browser gives the page no clipboard for pictures.");
      return;
    }
    navigator.clipboard.write([new ClipboardItem({ "image/png": blob })]).catch(function (error) {
      tell("The picture could not be put on the clipboard: " + error.message);
    });
  };

  // The guide in a new tab.
  files.openTab = function (address) { window.open(address, "_blank", "noopener"); };

  return files;
})();

// The edition's user guide stands in the page's folder; the program finds it in its own folder too, as
// the desktop finds it beside itself, and shows its Guide command only then.
Module.preRun.push(function () {
  var named = new URLSearchParams(location.search).get("edition") || "";
  var edition = /^[A-Za-z0-9]{1,31}$/.test(named) ? named : "Venturo";
  Module.addRunDependency("guide");
  var done = function () { Module.removeRunDependency("guide"); };
  fetch("files.json").then(function (answer) { return answer.ok ? answer.json() : { files: [] }; })
    .then(function (list) {
      var guide = list.files.filter(function (name) {
        return name.indexOf("/") < 0 && name.slice(-(edition.length + 15)) === "_" + edition + "_UserGuide.pdf";
      })[0];
      if (!guide) return done();
      return fetch(guide).then(function (answer) {
        if (!answer.ok) return done();
        return answer.arrayBuffer().then(function (bytes) {
          Module.FS_createPath("/", "app", true, true);
          Module.FS_createDataFile("/app", guide, new Uint8Array(bytes), true, false, false);
          done();
        });
      });
    })
    .catch(function (error) { console.warn("The user guide could not be loaded: " + error); done(); });
});
