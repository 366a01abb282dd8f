// A small W-2 (a name and a number) saved from the page and opened again, for the tests of the form the
// program shows when a file of that name exists. The page's saves are answered by keepSavedFiles.
"use strict";
const fs = require("fs");
const path = require("path");
const { chooseMenu, pressFrameButton } = require("./serve_page");

const at = (key) => `#fields [data-name="${key}"]`;

// The count-th file the page has saved, or undefined when it saved no more.
async function nextSaved(page, count) {
  await page.waitForFunction((count) => window.savedFiles.length >= count, { timeout: 10000 }, count).catch(() => null);
  return page.evaluate((count) => window.savedFiles[count - 1], count);
}

// Opens the file with the frame's Open and the browser's file chooser.
async function openFile(page, file) {
  const [chooser] = await Promise.all([page.waitForFileChooser({ timeout: 10000 }), pressFrameButton(page, "Open")]);
  await chooser.accept([file]);
  await page.waitForFunction(() => {
    const name = document.querySelector('#fields [data-name="Text1(13)"]');
    return name && name.value === "JOHN DOE";
  }, { timeout: 10000 }).catch(() => null);
}

// A W-2 of JOHN DOE filled, saved into the folder as the page proposed; the saved file's name and path,
// or null when nothing was saved.
async function saveSmallW2(page, folder) {
  await chooseMenu(page, "mnuW2");
  await page.waitForSelector(at("Text1(13)"));
  for (const [key, text] of [["Text1(13)", "JOHN DOE"], ["Text1(0)", "123456789"]]) {
    await page.click(at(key));
    await page.keyboard.type(text);
    await page.keyboard.press("Tab");
  }
  await pressFrameButton(page, "Save");
  const saved = await nextSaved(page, 1);
  if (!saved) return null;
  const file = path.join(folder, saved.name);
  fs.writeFileSync(file, Buffer.from(saved.bytes));
  return { name: saved.name, file };
}

// Save pressed again: the title of the modal form it shows, or false when it shows none.
async function saveAgain(page) {
  await pressFrameButton(page, "Save");
  await page.waitForFunction(() => document.getElementById("modal").open, { timeout: 10000 }).catch(() => null);
  return page.evaluate(() => document.getElementById("modal").open && document.getElementById("modal-title").textContent);
}

module.exports = { nextSaved, openFile, saveSmallW2, saveAgain };
