// Pastes a trainer may make by mistake, in the page: ten thousand characters into the W-2's name block
// are kept as the native runner keeps them; Save then proposes a name longer than any disk keeps, and
// the page, as the native runner, says the file was not saved and hands the browser nothing; a text with
// characters outside the code page is refused in the status line, and the field keeps what it had.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { fail, chooseMenu, keepSavedFiles, pressFrameButton, runPageTest } = require("./serve_page");
const { nativeRunner, runNative } = require("./native_runner");

const longText = "A".repeat(10000);
const notSaved = "The file was NOT saved; a file of that name is";
const refusal = "The clipboard text cannot be pasted: it holds characters outside the Windows-1252 code page.";
const nameBlock = '#fields [data-name="Text1(13)"]';

// Pastes the text into the focused field as the browser's paste does.
function paste(page, text) {
  return page.evaluate((text) => {
    const carrier = new DataTransfer();
    carrier.setData("text/plain", text);
    document.activeElement.dispatchEvent(new ClipboardEvent("paste", { clipboardData: carrier, bubbles: true,
                                                                       cancelable: true }));
  }, text);
}

runPageTest(async (page) => {
  if (!fs.existsSync(nativeRunner)) return fail("no native runner at " + nativeRunner + " (LW_NATIVE_SCRIPT)");
  await keepSavedFiles(page);
  await chooseMenu(page, "mnuW2");
  await page.waitForSelector(nameBlock);
  // A file is saved only with the employee's number.
  await page.click('#fields [data-name="Text1(0)"]');
  await page.keyboard.type("123456789");
  await page.keyboard.press("Tab");
  await page.click(nameBlock);
  await paste(page, longText);
  await page.keyboard.press("Tab");
  const kept = await page.$eval(nameBlock, (field) => field.value);

  // Refused: the field keeps its text and the status line tells why.
  await page.click(nameBlock);
  await paste(page, "ZO\u00cb \u03a9MEGA");
  const told = await page.$eval("#status", (line) => line.textContent);
  if (told !== refusal) return fail(`after a paste outside the code page the status line says "${told}"`);
  if ((await page.$eval(nameBlock, (field) => field.value)) !== kept) return fail("the refused paste changed the field");

  await pressFrameButton(page, "Save");
  await page.waitForSelector("#modal[open]", { timeout: 10000 }).catch(() => null);
  const box = await page.evaluate(() => document.getElementById("modal").open &&
    document.querySelector('#modal-fields [data-name="lblMessage"]').textContent.replace(/\s+/g, " "));
  if (!box || !box.startsWith(notSaved)) return fail(`Save of the over-long name showed ${JSON.stringify(box)}`);
  await page.click("#modal-fields button[data-name=cmd1]");
  const saved = await page.evaluate(() => window.savedFiles.length);
  if (saved) return fail("the page handed the browser a file the program did not save");

  // The native runner, given the same keys, keeps the same text and tells the same.
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lw-page-paste-"));
  const output = runNative(folder, ["menu mnuW2", "focus Text1(0)", 'type "123456789"', "key Tab",
                                    "focus Text1(13)", `paste "${longText}"`, "key Tab",
                                    `expect Text1(13) ${JSON.stringify(kept)}`,
                                    `file proposed ${JSON.stringify(folder)}`, "button Save",
                                    `expect message "${notSaved}"`]);
  fs.rmSync(folder, { recursive: true, force: true });
  if (!/2 passed, 0 failed/.test(output)) return fail("the native runner differs:\n" + output.slice(-600));
  return `a paste of ${longText.length} characters kept ${kept.length} of them as the native runner does; ` +
         "Save told the file was not saved and handed out nothing; a paste outside the code page was refused";
});
