// A box opened from a box, in the page: the form for a file that exists, its name field emptied, says
// so in a message box of its own, and the form stays on the screen beneath that box, as in the window;
// once the box is answered only the form is left, with its name put back.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { fail, keepSavedFiles, runPageTest } = require("./serve_page");
const { openFile, saveSmallW2, saveAgain } = require("./saved_w2");

const screenshot = process.argv[3];
const inDialog = (key) => `#modal-fields [data-name="${key}"]`;

// The dialogs on the screen, the innermost (the page's own dialog) last: each one's title and whether
// its face is painted.
function openDialogs(page) {
  return page.evaluate(() => [...document.querySelectorAll("dialog[open]:not(#modal)"),
                              ...document.querySelectorAll("#modal[open]")].map((dialog) => {
    const canvas = dialog.querySelector("canvas");
    return { title: dialog.getAttribute("aria-label"), painted: !!canvas && canvas.width > 0 && canvas.height > 0,
             box: dialog.getBoundingClientRect().toJSON() };
  }));
}

runPageTest(async (page) => {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lw-page-stacked-"));
  await keepSavedFiles(page);
  const saved = await saveSmallW2(page, folder);
  if (!saved) return fail("the W-2 was not saved");
  await openFile(page, saved.file);
  const form = await saveAgain(page);
  if (form !== "File Already Exists") return fail(`Save of the opened file showed "${form}"`);
  const proposed = await page.$eval(inDialog("Text1"), (field) => field.value);

  // The name emptied and Save pressed: the form's message box opens over it.
  await page.click(inDialog("Text1"));
  await page.keyboard.press("End");
  for (let i = 0; i < proposed.length; ++i) await page.keyboard.press("Backspace");
  await page.click(inDialog("cmdSave"));
  await page.waitForFunction(() => document.querySelectorAll("dialog[open]").length >= 2, { timeout: 10000 }).catch(() => null);
  const stacked = await openDialogs(page);
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  const box = await page.$eval("#modal-fields", (layer) => layer.textContent);
  if (!box.includes("File Name BLANK")) return fail(`the inner box says "${box}"`);
  if (stacked.length !== 2) return fail(`${stacked.length} dialog(s) on the screen: ${stacked.map((d) => d.title).join(", ")}`);
  if (stacked[0].title !== "File Already Exists" || !stacked[0].painted)
    return fail(`beneath the box stands "${stacked[0].title}"${stacked[0].painted ? "" : ", its face not painted"}`);
  // The box stands over the form: the element at its centre is the box's own.
  const { x, y, width, height } = stacked[1].box;
  const onTop = await page.evaluate((x, y) => !!document.elementFromPoint(x, y).closest("#modal"), x + width / 2, y + height / 2);
  if (!onTop) return fail("the message box is not on top of the form it came from");

  await page.keyboard.press("Enter");
  await page.waitForFunction(() => document.querySelectorAll("dialog[open]").length === 1, { timeout: 10000 }).catch(() => null);
  const left = await openDialogs(page);
  if (left.length !== 1 || left[0].title !== "File Already Exists") return fail("after the answer the page shows " + JSON.stringify(left.map((d) => d.title)));
  const restored = await page.$eval(inDialog("Text1"), (field) => field.value);
  if (restored !== proposed) return fail(`the form's name field shows "${restored}", not "${proposed}"`);
  fs.rmSync(folder, { recursive: true, force: true });
  return `the box "File Name BLANK" stood over "${stacked[0].title}", which stayed on the screen; answered, the form came back with "${restored}"`;
});
