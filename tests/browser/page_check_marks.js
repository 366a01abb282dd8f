// Check boxes in the page: the beneficiary's K-1 marks a domestic or a foreign beneficiary, one
// excluding the other, and a second click leaves both empty; a mark is clicked or toggled with Space,
// and the page shows each mark as the engine holds it; the browser's Tab goes on to the next field.
"use strict";
const { fail, chooseMenu, turnToLowerHalf, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];
const at = (key) => `#fields [data-name="${key}"]`;

const marks = (page) => page.evaluate(() => ["Check(4)", "Check(5)"].map((key) =>
  document.querySelector(`#fields [data-name="${key}"]`).checked ? "X" : "").join(","));

runPageTest(async (page) => {
  await chooseMenu(page, "mnuK11041");
  if ((await turnToLowerHalf(page)) < 0) return;
  const names = await page.$$eval(`${at("Check(4)")}, ${at("Check(5)")}`, (all) =>
    all.map((box) => box.type + ":" + box.getAttribute("aria-label")));
  if (names.some((name) => !name.startsWith("checkbox:") || name.endsWith(":null")))
    return fail("the marks are " + names.join(", "));
  if ((await marks(page)) !== ",") return fail("the marks start as " + await marks(page));
  await page.click(at("Check(4)"));
  if ((await marks(page)) !== "X,") return fail("after a click on the first the marks are " + await marks(page));
  await page.click(at("Check(5)"));
  if ((await marks(page)) !== ",X") return fail("after a click on the second the marks are " + await marks(page));
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  // Space on the focused mark is a click, as on any check box of a page.
  await page.focus(at("Check(5)"));
  await page.keyboard.press("Space");
  if ((await marks(page)) !== ",") return fail("after Space on the second the marks are " + await marks(page));
  // The browser's own Tab goes on from the mark to the next field, which the engine then types into.
  await page.keyboard.press("Tab");
  const next = await page.evaluate(() => document.activeElement.getAttribute("data-name"));
  if (!next || !next.startsWith("Text")) return fail("Tab from the mark went to " + next);
  await page.keyboard.type("123");
  const typed = await page.$eval(at(next), (field) => field.value);
  if (typed !== "123") return fail(`the field after the mark shows "${typed}"`);
  return `the marks went X then the other X then none (${names.map((name) => name.split(":")[1]).join(" / ")}); ` +
         `Tab went on to ${next}`;
});
