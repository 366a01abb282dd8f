// A W-2 saved from the page and opened again: the file has the name the engine proposes and the very
// bytes the native runner writes for the same document, through the browser's save picker and through
// a download alike; Open reads it back from the browser's file picker, and the opened file, changed and
// saved again, goes through the program's "file exists" form and out as the native runner writes it.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { fail, chooseMenu, keepSavedFiles, pressFrameButton, runPageTest } = require("./serve_page");
const { nativeRunner, runNative, nativeSave } = require("./native_runner");


// What the trainer types: the page's field, the native runner's name of the same field, the text.
const typed = [
  ["Box e,", "Text1(13)", "JOHN Q DOE JR."],
  ["Box a,", "Text1(0)", "123456789"],
  ["Box c,", "Text1(4)", "ABC PLUMBING"],
  ["Box 1,", "Text1(2)", "12345"],
];

// The same document saved by the native runner: its proposed name and its bytes.
function nativeSaveOfTyped(folder) {
  const commands = [];
  for (const [, control, text] of typed) commands.push(`focus ${control}`, `type ${JSON.stringify(text)}`, "key Tab");
  return nativeSave(folder, ["menu mnuW2", ...commands]);
}

async function fillW2(page) {
  await chooseMenu(page, "mnuW2");
  await page.waitForSelector('[aria-label^="Box 1,"]');
  for (const [label, , text] of typed) {
    await page.click(`[aria-label^="${label}"]`);
    await page.keyboard.type(text);
    await page.keyboard.press("Tab");
  }
}

// The native runner opens its file, types into box d and saves it over itself.
function nativeResave(folder, name) {
  const file = path.join(folder, name);
  runNative(folder, [`file ${JSON.stringify(file)}`, "button Open", "focus Text1(11)", 'type "CN77"', "key Tab",
                     "filesave save", "button Save"], "resave.lws");
  return fs.readFileSync(file);
}

function sameBytes(a, b) {
  return Buffer.compare(Buffer.from(a), Buffer.from(b)) === 0;
}

function shown(bytes) {
  return JSON.stringify(Buffer.from(bytes).toString("latin1"));
}

runPageTest(async (page) => {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lw-page-save-"));
  if (!fs.existsSync(nativeRunner)) return fail("no native runner at " + nativeRunner + " (LW_NATIVE_SCRIPT)");
  const native = nativeSaveOfTyped(folder);

  // A browser with a save picker, answered with the name it proposes.
  await keepSavedFiles(page);
  await fillW2(page);
  await pressFrameButton(page, "Save");
  await page.waitForFunction(() => window.savedFiles.length === 1, { timeout: 10000 });
  const picked = (await page.evaluate(() => window.savedFiles))[0];
  if (picked.name !== native.name)
    return fail(`the save picker proposed "${picked.name}", the native runner "${native.name}"`);
  if (!sameBytes(picked.bytes, native.bytes))
    return fail(`the page saved ${shown(picked.bytes)}, the native runner ${shown(native.bytes)}`);

  // A browser without one: the file is a download of that name.
  const downloads = path.join(folder, "downloads");
  fs.mkdirSync(downloads);
  const cdp = await page.createCDPSession();
  await cdp.send("Browser.setDownloadBehavior", { behavior: "allow", downloadPath: downloads });
  await page.evaluate(() => { delete window.showSaveFilePicker; });
  await pressFrameButton(page, "Save");
  const downloaded = path.join(downloads, native.name);
  for (let tries = 0; tries < 100 && !fs.existsSync(downloaded); ++tries) await new Promise((r) => setTimeout(r, 100));
  if (!fs.existsSync(downloaded)) return fail("no download " + native.name + " in " + fs.readdirSync(downloads));
  if (!sameBytes(fs.readFileSync(downloaded), native.bytes))
    return fail(`the download holds ${shown(fs.readFileSync(downloaded))}, the native runner wrote ${shown(native.bytes)}`);

  // Open, from another form: the native runner's file, picked in the browser's file picker.
  await chooseMenu(page, "mnu1099Int");
  await page.waitForFunction(() => !document.getElementById("form-title").textContent.includes("W-2"));
  const [chooser] = await Promise.all([page.waitForFileChooser({ timeout: 10000 }), pressFrameButton(page, "Open")]);
  await chooser.accept([path.join(folder, native.name)]);
  await page.waitForFunction(() => {
    const box = document.querySelector('[aria-label^="Box 1,"]');
    return box && box.value === "$12,345.00";
  }, { timeout: 10000 });
  const values = await page.evaluate((labels) => labels.map((label) =>
    document.querySelector(`[aria-label^="${label}"]`).value), typed.map((row) => row[0]));
  const expected = ["JOHN Q DOE JR", "123-45-6789", "ABC PLUMBING", "$12,345.00"];
  if (JSON.stringify(values) !== JSON.stringify(expected))
    return fail(`the opened W-2 shows ${JSON.stringify(values)}, not ${JSON.stringify(expected)}`);

  // Saved again: the program's form for a file that exists is answered with its Save button, and the
  // changed file is a download once more.
  await page.click('[aria-label^="Box d,"]');
  await page.keyboard.type("CN77");
  await page.keyboard.press("Tab");
  for (const name of fs.readdirSync(downloads)) fs.rmSync(path.join(downloads, name));
  await pressFrameButton(page, "Save");
  await page.waitForFunction(() => document.getElementById("modal").open, { timeout: 10000 });
  const keep = await page.$$eval("#modal-fields button", (buttons) =>
    buttons.some((button) => button.textContent.startsWith("SAVE")));
  if (!keep) return fail("the form for a file that exists has no Save button");
  await page.click('#modal-fields button[data-name="cmdSave"]');
  let again = null;
  for (let tries = 0; tries < 100 && !again; ++tries) {
    again = fs.readdirSync(downloads).find((name) => !name.endsWith(".crdownload"));
    if (!again) await new Promise((r) => setTimeout(r, 100));
  }
  if (!again) return fail("the opened file saved again gave no download");
  const resaved = nativeResave(folder, native.name);
  if (!sameBytes(fs.readFileSync(path.join(downloads, again)), resaved))
    return fail(`the page saved the opened file as ${shown(fs.readFileSync(path.join(downloads, again)))}, ` +
                `the native runner as ${shown(resaved)}`);
  fs.rmSync(folder, { recursive: true, force: true });
  return `saved "${native.name}" (${native.bytes.length} bytes, as the native runner writes it) by the picker and ` +
         "as a download, opened it again and saved it over itself";
});
