// The K-1 code list in the page: on the partner's K-1, F1 in a code of box 11 opens the list of valid
// entries as a dialog; Escape closes it and leaves the field as it was, and a click on a row puts its code
// in the field and moves the focus on to the amount.
"use strict";
const { fail, chooseMenu, turnToLowerHalf, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];
const field = (key) => `#fields [data-name="${key}"]`;

runPageTest(async (page) => {
  await chooseMenu(page, "mnuK11065");
  // Box 11 stands on the lower half of the form, behind its second tab.
  const lower = await turnToLowerHalf(page);
  if (lower < 0) return;
  const chosen = await page.$eval(`#fields [role=tab][data-entry="${lower}"]`, (tab) => tab.getAttribute("aria-selected"));
  if (chosen !== "true") return fail("the lower half's tab is not shown as chosen");
  await page.click(field("Text2(16)"));
  const hint = await page.$eval(field("labelMisc"), (label) => label.textContent);
  if (hint !== "Press ANY Function Key (F1 - F12) for list of valid entries.") return fail(`the form says "${hint}"`);
  // Escape closes the list as its close box does: the field keeps its box number and the focus.
  await page.keyboard.press("F1");
  await page.waitForSelector("#modal[open]", { timeout: 10000 }).catch(() => null);
  await page.keyboard.press("Escape");
  await page.waitForFunction(() => !document.getElementById("modal").open, { timeout: 10000 }).catch(() => null);
  const kept = await page.evaluate(() => [document.getElementById("modal").open,
    document.querySelector('#fields [data-name="Text2(16)"]').value, document.activeElement.getAttribute("data-name")]);
  if (kept.join(",") !== "false,11,Text2(16)") return fail("after Escape the list, field and focus are " + kept.join(","));
  await page.keyboard.press("F1");
  await page.waitForSelector("#modal[open]", { timeout: 10000 }).catch(() => null);
  const title = await page.evaluate(() => document.getElementById("modal").open &&
    document.getElementById("modal-title").textContent);
  if (title !== "Valid Entries for K1 1065 Box 11") return fail(`the dialog is "${title}"`);
  const rows = await page.$$eval("#modal-fields [role=option]", (all) => all.map((row) => row.getAttribute("aria-label")));
  const row = rows.findIndex((name) => name.startsWith("A Other portfolio income"));
  if (row < 0) return fail("no row for code A among " + rows.slice(0, 3).join(" | "));
  // The list comes first in the dialog's order: it starts on its first row.
  const start = await page.evaluate(() => document.activeElement.getAttribute("aria-label"));
  if (start !== rows[0]) return fail(`the dialog starts on "${start}"`);
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  await page.click(`#modal-fields [role=option][data-entry="${row + 1}"]`);
  await page.waitForFunction(() => !document.getElementById("modal").open, { timeout: 10000 });
  const code = await page.$eval(field("Text2(16)"), (input) => input.value);
  if (code !== "A") return fail(`the code field shows "${code}", not "A"`);
  const focus = await page.evaluate(() => document.activeElement.getAttribute("data-name"));
  if (focus !== "Text3(16)") return fail("after the choice the focus is on " + focus);
  return `code "${code}" chosen from "${title}"; the focus moved to the amount`;
});
