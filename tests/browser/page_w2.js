// The W-2 in the page, as a trainer fills it: chosen from the menu, 12345 typed into box 1 and Tab; the
// engine's edit shows "$12,345.00" in that field and the focus moves on to the next field.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];

runPageTest(async (page) => {
  // The menus are the page's own elements, made from the frame's menus.
  const itemCaption = await page.$eval('[data-menu="mnuW2"]', (item) => item.textContent).catch(() => null);
  if (itemCaption !== "W2 (Wages)") return fail("no W-2 item in the menus, found " + itemCaption);
  await chooseMenu(page, "mnuW2");
  await page.waitForFunction(() => document.getElementById("form-title").textContent.includes("W-2") ||
                                   document.getElementById("form-title").textContent.includes("W2"));

  const boxOne = 'input[aria-label^="Box 1,"]';
  if (!(await page.$(boxOne))) return fail("no field is named Box 1");
  await page.click(boxOne);
  const focused = await page.evaluate(() => document.activeElement.getAttribute("aria-label"));
  if (!focused || !focused.startsWith("Box 1,")) return fail("box 1 did not take the focus: " + focused);
  await page.keyboard.type("12345");
  const typed = await page.$eval(boxOne, (input) => input.value);
  if (typed !== "12345") return fail(`box 1 shows "${typed}" after typing`);
  await page.keyboard.press("Tab");
  const edited = await page.$eval(boxOne, (input) => input.value);
  if (edited !== "$12,345.00") return fail(`box 1 shows "${edited}" after Tab, not "$12,345.00"`);
  const next = await page.evaluate(() => document.activeElement.getAttribute("aria-label"));
  if (!next || next.startsWith("Box 1,")) return fail("Tab left the focus in box 1");
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  return `W-2 box 1 shows "${edited}"; the focus moved to "${next}"`;
});
