// The form for a file that exists, in the page: a W-2 saved and opened again is saved once more, and the
// program's form asks what to do; the next sequence number makes a new file beside it, and a new name
// typed in its field is the name the file is saved under.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { fail, keepSavedFiles, runPageTest } = require("./serve_page");
const { nextSaved, openFile, saveSmallW2, saveAgain } = require("./saved_w2");

const screenshot = process.argv[3];
const inDialog = (key) => `#modal-fields [data-name="${key}"]`;

runPageTest(async (page) => {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lw-page-save-form-"));
  await keepSavedFiles(page);
  const first = await saveSmallW2(page, folder);
  if (!first) return fail("the W-2 was not saved");
  const file = first.file;

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
