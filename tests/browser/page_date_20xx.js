// A date of 20XX typed into a date field of the 1099-A, in the page: the engine makes it a date of the
// form's own tax year, says so in its message 802 in a dialog, and the field shows the whole date.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];
const words = (text) => text.replace(/\s+/g, " ").trim();

runPageTest(async (page) => {
  await chooseMenu(page, "mnu1099A");
  const date = '#fields [data-name="Text1(5)"]';
  await page.waitForSelector(date);
  // The form shows its tax year as the two halves of the year printed on it.
  const year = await page.evaluate(() => ["TaxYear(0)", "TaxYear(1)"].map((key) =>
    document.querySelector(`#fields [data-name="${key}"]`).textContent).join(""));
  if (!/^20\d\d$/.test(year)) return fail(`the form shows the tax year "${year}"`);
  await page.click(date);
  await page.keyboard.type("12/31/20XX");
  await page.keyboard.press("Tab");
  await page.waitForSelector("#modal[open]", { timeout: 10000 }).catch(() => null);
  const told = await page.evaluate(() => document.getElementById("modal").open &&
    document.querySelector('#modal-fields [data-name="lblMessage"]').textContent);
  if (!told) return fail("no dialog after a date of 20XX");
  const expected = `Message Number: 802 Date 12/31/20XX Changed to 12/31/${year} --- Make sure it is correct ---`;
  if (words(told) !== expected) return fail(`the dialog says "${words(told)}", not "${expected}"`);
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  // The box starts on its button, which Enter presses.
  const start = await page.evaluate(() => document.activeElement.textContent);
  if (start !== "OK") return fail(`the dialog starts on "${start}", not on its OK button`);
  await page.keyboard.press("Enter");
  await page.waitForFunction(() => !document.getElementById("modal").open, { timeout: 10000 });
  const shown = await page.$eval(date, (input) => input.value);
  if (shown !== `12/31/${year}`) return fail(`the field shows "${shown}", not "12/31/${year}"`);
  return `12/31/20XX became "${shown}", told as message 802`;
});
