// Load TP in the page: the taxpayer sheet is filled and saved, which fills the store of the Load TP
// buttons; then Load TP 1 and Load TP 2 fill the W-2's employee block and number from it, and the focus
// goes back to the field the trainer left.
"use strict";
const { fail, chooseMenu, pressFrameButton, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];
const at = (key) => `#fields [data-name="${key}"]`;

async function typeInto(page, key, lines) {
  await page.click(at(key));
  for (let i = 0; i < lines.length; ++i) {
    if (i > 0) await page.keyboard.press("Enter");
    await page.keyboard.type(lines[i]);
  }
  await page.keyboard.press("Tab");
}

const values = (page, keys) => page.evaluate((keys) => keys.map((key) =>
  document.querySelector(`#fields [data-name="${key}"]`).value.replace(/\r?\n/g, "|")), keys);

runPageTest(async (page) => {
  // The sheet's file is kept where the browser's save picker puts it; only the store matters here.
  await page.evaluate(() => {
    window.showSaveFilePicker = async (options) => ({
      name: options.suggestedName,
      createWritable: async () => ({ write: async () => {}, close: async () => { window.sheetSaved = true; } }),
    });
  });
  await chooseMenu(page, "mnuIDFormsTP");
  await page.waitForSelector(at("Text1(0)"));
  await typeInto(page, "Text1(0)", ["JOHN Q DOE JR.", "12 MAIN ST", "ANYTOWN, OH 44000"]);
  await typeInto(page, "Text1(1)", ["123456789"]);
  await typeInto(page, "Text1(3)", ["MARY DOE", "12 MAIN ST", "ANYTOWN, OH 44000"]);
  await typeInto(page, "Text1(4)", ["234567890"]);
  const sheet = await values(page, ["Text1(0)", "Text1(1)", "Text1(3)", "Text1(4)"]);
  const expectedSheet = ["JOHN Q DOE JR|12 MAIN ST|ANYTOWN, OH 44000", "123-45-6789",
                         "MARY DOE|12 MAIN ST|ANYTOWN, OH 44000", "234-56-7890"];
  if (sheet.join("/") !== expectedSheet.join("/")) return fail("the sheet shows " + sheet.join(" / "));
  await pressFrameButton(page, "Save");
  await page.waitForFunction(() => window.sheetSaved === true, { timeout: 10000 }).catch(() => null);
  if (!(await page.evaluate(() => window.sheetSaved))) return fail("the sheet was not saved");

  await chooseMenu(page, "mnuW2");
  await page.waitForSelector(at("Text1(4)"));
  await page.click(at("Text1(4)"));
  await page.keyboard.type("ACME");
  await pressFrameButton(page, "Load TP 1");
  const first = await values(page, ["Text1(13)", "Text1(0)"]);
  if (first.join("/") !== "JOHN Q DOE JR|12 MAIN ST|ANYTOWN, OH 44000/123-45-6789")
    return fail("Load TP 1 filled " + first.join(" / "));
  const focus = await page.evaluate(() => document.activeElement.getAttribute("data-name"));
  if (focus !== "Text1(4)") return fail("after Load TP 1 the focus is on " + focus);
  await pressFrameButton(page, "Load TP 2");
  const second = await values(page, ["Text1(13)", "Text1(0)"]);
  if (second.join("/") !== "MARY DOE|12 MAIN ST|ANYTOWN, OH 44000/234-56-7890")
    return fail("Load TP 2 filled " + second.join(" / "));
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  return `Load TP 1 and 2 filled the W-2 with "${first[0]}" and "${second[0]}" from the sheet`;
});
