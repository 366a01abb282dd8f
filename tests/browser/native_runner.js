// The native runner of a build of this tree, which the page's tests hold the page to: it plays a script
// of runner commands for a trainer named as the page names its own, in a root folder of its own.
"use strict";
const fs = require("fs");
const path = require("path");
const { execFileSync } = require("child_process");

const nativeRunner = process.env.LW_NATIVE_SCRIPT || path.join(__dirname, "../../build/bin/ledgerwick-script");

// Plays the commands after the program's start in the folder (its root is folder/root); the runner's output.
function runNative(folder, commands, scriptName = "native.lws") {
  const script = [`root ${JSON.stringify(path.join(folder, "root"))}`, "user Trainer", "start", ...commands];
  const scriptFile = path.join(folder, scriptName);
  fs.writeFileSync(scriptFile, script.join("\n") + "\n");
  return execFileSync(nativeRunner, [scriptFile], {
    encoding: "utf8", env: { ...process.env, ASAN_OPTIONS: "detect_leaks=0", QT_QPA_PLATFORM: "offscreen" },
  });
}

// Saves with Save into the folder, as the program proposes; the proposed name and the bytes written.
function nativeSave(folder, commands) {
  const output = runNative(folder, [...commands, `file proposed ${JSON.stringify(folder)}`, "button Save"], "save.lws");
  const proposed = /proposing "([^"]+)"/.exec(output);
  if (!proposed) throw new Error("the native runner proposed no name:\n" + output);
  return { name: proposed[1], bytes: fs.readFileSync(path.join(folder, proposed[1])) };
}

module.exports = { nativeRunner, runNative, nativeSave };
