// F12 in a month of the 1095-A, in the page: the month's amount, as its edit leaves it, is copied to the
// months below it in the same column and the column's total is worked out again; the focus stays.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];
const field = (key) => `#fields [data-name="${key}"]`;

runPageTest(async (page) => {
  await chooseMenu(page, "mnu1095A");
  await page.waitForSelector(field("Text1(40)"));
  await page.click(field("Text1(40)"));
  await page.keyboard.type("250");
  await page.keyboard.press("F12");
  const values = await page.evaluate((keys) => keys.map((key) =>
    document.querySelector(`#fields [data-name="${key}"]`).value),
    ["Text1(38)", "Text1(39)", "Text1(40)", "Text1(41)", "Text1(45)", "Text1(49)", "Text1(50)", "Text1(53)"]);
  const [above1, above2, month, next, later, last, total, otherColumn] = values;
  if (month !== "$250.00") return fail(`the month shows "${month}" after F12`);
  if (above1 !== "" || above2 !== "") return fail(`the months above were filled: "${above1}", "${above2}"`);
  for (const copied of [next, later, last])
    if (copied !== "$250.00") return fail(`a month below shows "${copied}", not "$250.00"`);
  if (total !== "$2,500.00") return fail(`the column's total is "${total}", not "$2,500.00"`);
  if (otherColumn !== "") return fail(`the next column was filled with "${otherColumn}"`);
  const focus = await page.evaluate(() => document.activeElement.getAttribute("data-name"));
  if (focus !== "Text1(40)") return fail("after F12 the focus is on " + focus);
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  return `F12 copied "${month}" down the column to its last month; the total is "${total}"`;
});
