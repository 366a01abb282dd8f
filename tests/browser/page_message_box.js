// A message box in the page is a modal dialog that waits for its answer while the engine waits with it:
// a date of 20XX in the 1099-A is made whole and told in box 802; OK closes it and the focus moves on.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

runPageTest(async (page) => {
  await chooseMenu(page, "mnu1099A");
  const date = 'input[aria-label^="Box 1,"]';
  await page.waitForSelector(date);
  await page.click(date);
  await page.keyboard.type("12/31/20XX");
  await page.keyboard.press("Tab");
  await page.waitForSelector("#modal[open]", { timeout: 10000 }).catch(() => null);
  const shown = await page.evaluate(() => ({
    open: document.getElementById("modal").open,
    title: document.getElementById("modal-title").textContent,
    buttons: [...document.querySelectorAll("#modal-fields button")].filter((button) => button.style.display !== "none")
      .map((button) => button.textContent),
  }));
  if (!shown.open) return fail("no dialog after a date of 20XX");
  if (shown.title !== "M7_Edits:EditCtl_Date") return fail(`the dialog is titled "${shown.title}"`);
  if (shown.buttons.join(",") !== "OK") return fail("the dialog's buttons are " + shown.buttons.join(","));
  // While the box is open the form takes no keys.
  await page.keyboard.type("9");
  // The year is the tax year in force, which the clock decides.
  const held = await page.$eval(date, (input) => input.value);
  if (!/^12\/31\/20\d\d$/.test(held)) return fail(`box 1 shows "${held}" while the box is open`);
  await page.click("#modal-fields button[data-name=cmd1]");
  await page.waitForFunction(() => !document.getElementById("modal").open, { timeout: 10000 });
  const next = await page.evaluate(() => document.activeElement.getAttribute("aria-label"));
  if (!next || !next.startsWith("Box 2,")) return fail("after OK the focus is on " + next);
  return `the 1099-A's date became "${held}", told in a dialog; OK moved the focus to "${next}"`;
});
