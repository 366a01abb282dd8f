// The form for a file that exists, in the page: a W-2 saved and opened again is saved once more, and the
// program's form asks what to do; the next sequence number makes a new file beside it, and a new name
// typed in its field is the name the file is saved under.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { fail, chooseMenu, keepSavedFiles, pressFrameButton, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];
const at = (key) => `#fields [data-name="${key}"]`;
const inDialog = (key) => `#modal-fields [data-name="${key}"]`;

async function nextSaved(page, count) {
  await page.waitForFunction((count) => window.savedFiles.length >= count, { timeout: 10000 }, count).catch(() => null);
  return page.evaluate((count) => window.savedFiles[count - 1], count);
}

async function openFile(page, file) {
  const [chooser] = await Promise.all([page.waitForFileChooser({ timeout: 10000 }), pressFrameButton(page, "Open")]);
  await chooser.accept([file]);
  await page.waitForFunction(() => {
    const name = document.querySelector('#fields [data-name="Text1(13)"]');
    return name && name.value === "JOHN DOE";
  }, { timeout: 10000 }).catch(() => null);
}

async function saveAgain(page) {
  await pressFrameButton(page, "Save");
  await page.waitForFunction(() => document.getElementById("modal").open, { timeout: 10000 }).catch(() => null);
  return page.evaluate(() => document.getElementById("modal").open && document.getElementById("modal-title").textContent);
}

runPageTest(async (page) => {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lw-page-save-form-"));
  await keepSavedFiles(page);
  await chooseMenu(page, "mnuW2");
  await page.waitForSelector(at("Text1(13)"));
  for (const [key, text] of [["Text1(13)", "JOHN DOE"], ["Text1(0)", "123456789"]]) {
    await page.click(at(key));
    await page.keyboard.type(text);
    await page.keyboard.press("Tab");
  }
  await pressFrameButton(page, "Save");
  const first = await nextSaved(page, 1);
  if (!first) return fail("the W-2 was not saved");
  const file = path.join(folder, first.name);
  fs.writeFileSync(file, Buffer.from(first.bytes));

  // The next sequence number: the opened file stands alone in its folder, so 001 follows 000.
  await openFile(page, file);
  if ((await saveAgain(page)) !== "File Already Exists") return fail("Save of the opened file showed no form");
  await page.click(inDialog("cmdNewSequence"));
  const second = await nextSaved(page, 2);
  const sequenced = first.name.replace(/_000\.venturo$/, "_001.venturo");
  if (!second || second.name !== sequenced) return fail(`the next sequence number saved "${second && second.name}", not "${sequenced}"`);

  // A new name typed in the form's field, for the file opened again.
  await openFile(page, file);
  const title = await saveAgain(page);
  if (title !== "File Already Exists") return fail(`Save of the opened file showed "${title}"`);
  const proposed = await page.$eval(inDialog("Text1"), (field) => field.value);
  if (`${proposed}.venturo` !== first.name) return fail(`the form proposes "${proposed}" for "${first.name}"`);
  const focus = await page.evaluate(() => document.activeElement.getAttribute("data-name"));
  if (focus !== "Text1") return fail("the form starts on " + focus);
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  const renamed = proposed.replace(/_000$/, "_RENAMED_000");
  await page.keyboard.press("End");
  for (let i = 0; i < 4; ++i) await page.keyboard.press("Backspace");
  await page.keyboard.type("_RENAMED_000");
  await page.waitForFunction((text) => {
    const name = document.querySelector('#modal-fields [data-name="Text1"]');
    return name && name.value === text;
  }, { timeout: 10000 }, renamed).catch(() => null);
  await page.click(inDialog("cmdSave"));
  const third = await nextSaved(page, 3);
  if (!third || third.name !== `${renamed}.venturo`) return fail("the renamed file was saved as " + (third && third.name));
  if (await page.evaluate(() => document.getElementById("modal").open)) return fail("the form stayed open after Save");
  fs.rmSync(folder, { recursive: true, force: true });
  return `saved "${first.name}", then "${second.name}" by the next number, and "${third.name}" renamed on the form`;
});
