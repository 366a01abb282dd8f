// The error report in the page: a fault of the engine shows it as a dialog with its description field;
// copying it without a description asks for one in a second dialog over the first, and once that is
// answered the description is typed and Exit closes the report.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];
const words = (text) => text.replace(/\s+/g, " ").trim();

function dialog(page) {
  return page.evaluate(() => {
    const at = (key) => document.querySelector(`#modal-fields [data-name="${key}"]`);
    return {
      open: document.getElementById("modal").open,
      title: document.getElementById("modal-title").textContent,
      message: at("lblMessage") ? at("lblMessage").textContent : "",
      module: at("Label2(1)") ? at("Label2(1)").textContent : "",
      focus: document.activeElement.getAttribute("data-name"),
    };
  });
}

runPageTest(async (page) => {
  // F12 copies a month of the 1095-A as an amount: a text that is none faults in the key's handler.
  await chooseMenu(page, "mnu1095A");
  await page.click('#fields [data-name="Text1(40)"]');
  await page.keyboard.type("1.2.3");
  await page.keyboard.press("F12");
  await page.waitForSelector("#modal[open]", { timeout: 10000 }).catch(() => null);
  const report = await dialog(page);
  if (!report.open || !report.title.startsWith("Error in ")) return fail(`no error report, the dialog is "${report.title}"`);
  if (report.module !== "TF_1095A:Text1_KeyPress") return fail(`the report names the module "${report.module}"`);
  // The description comes first in the report's order: the dialog starts there.
  if (report.focus !== "Text1") return fail("the report starts on " + report.focus);
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });

  await page.click('#modal-fields [data-name="cmdClip"]');
  await page.waitForFunction(() => document.getElementById("modal-title").textContent === "Provide Description",
                             { timeout: 10000 }).catch(() => null);
  const asked = await dialog(page);
  if (asked.title !== "Provide Description") return fail(`copying without a description showed "${asked.title}"`);
  if (words(asked.message) !== "Please describe what you were doing just before the error.")
    return fail(`the second dialog says "${words(asked.message)}"`);
  await page.keyboard.press("Enter");
  await page.waitForFunction((title) => document.getElementById("modal-title").textContent === title,
                             { timeout: 10000 }, report.title).catch(() => null);
  const back = await dialog(page);
  if (!back.open || back.title !== report.title) return fail(`after OK the dialog is "${back.title}"`);
  if (back.focus !== "Text1") return fail("after OK the focus is on " + back.focus);

  // Keys typed while a box waits reach the engine when its wait next wakes: the field catches up.
  await page.keyboard.type("copied a month down");
  await page.waitForFunction(() => document.querySelector('#modal-fields [data-name="Text1"]').value.length >= 19,
                             { timeout: 10000 }).catch(() => null);
  const described = await page.$eval('#modal-fields [data-name="Text1"]', (field) => field.value);
  if (described !== "COPIED A MONTH DOWN") return fail(`the description field shows "${described}"`);
  await page.click('#modal-fields [data-name="cmdExit"]');
  await page.waitForFunction(() => !document.getElementById("modal").open, { timeout: 10000 }).catch(() => null);
  if ((await dialog(page)).open) return fail("Exit left the report open");
  // The page goes on: the month keeps the focus its edit holds, and takes an amount in place of the text.
  const focus = await page.evaluate(() => document.activeElement.getAttribute("data-name"));
  if (focus !== "Text1(40)") return fail("after the report the focus is on " + focus);
  await page.keyboard.press("Home");
  await page.keyboard.down("Shift");
  await page.keyboard.press("End");
  await page.keyboard.up("Shift");
  await page.keyboard.type("7");
  await page.keyboard.press("Tab");
  const amount = await page.$eval('#fields [data-name="Text1(40)"]', (field) => field.value);
  if (amount !== "$7.00") return fail(`after the report the month shows "${amount}"`);
  return `the report of ${report.module} asked for a description, took "${described}" and closed`;
});
