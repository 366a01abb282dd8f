// The halves of every K-1 in the page: a click on the painted tab of the lower half turns the form to it
// (the face painted anew, the tab chosen), and each field of that half then takes a click and the keys
// typed into it; the upper half's tab turns it back.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

const k1s = ["mnuK11065", "mnuK11041", "mnuK11120S"];

const chosenTabs = (page) => page.$$eval("#fields [role=tab]", (all) => all.map((tab) => tab.getAttribute("aria-selected")).join(","));
const facePixels = (page) => page.evaluate(() => document.getElementById("face").toDataURL());

// A click with the mouse at the middle of a tab as the face shows it: whatever element lies there takes it.
async function clickTab(page, entry) {
  const box = await page.$eval(`#fields [role=tab][data-entry="${entry}"]`, (tab) => tab.getBoundingClientRect().toJSON());
  await page.mouse.click(box.x + box.width / 2, box.y + box.height / 2);
}

runPageTest(async (page) => {
  const told = [];
  for (const item of k1s) {
    await chooseMenu(page, item);
    await page.waitForSelector("#fields [role=tab]");
    if ((await chosenTabs(page)) !== "true,false") return fail(`${item} opens with its tabs ${await chosenTabs(page)}`);
    const upper = await facePixels(page);
    await clickTab(page, 1);
    await page.waitForFunction(() => document.querySelector('#fields [role=tab][data-entry="1"]').getAttribute("aria-selected") === "true",
                               { timeout: 5000 }).catch(() => null);
    if ((await chosenTabs(page)) !== "false,true") return fail(`${item}: the lower tab clicked, the tabs are ${await chosenTabs(page)}`);
    if ((await facePixels(page)) === upper) return fail(`${item}: the face still shows its upper half`);
    const fields = await page.$$eval("#fields > input:not([type]), #fields > textarea", (all) =>
      all.filter((field) => field.style.display !== "none" && !field.readOnly && !field.disabled)
        .map((field) => field.getAttribute("data-name")));
    if (fields.length < 5) return fail(`${item}: its lower half shows ${fields.length} fields`);
    for (const name of fields) {
      await page.click(`#fields [data-name="${name}"]`);
      const focus = await page.evaluate(() => document.activeElement.getAttribute("data-name"));
      if (focus !== name) return fail(`${item}: a click on ${name} of the lower half left the focus on ${focus}`);
    }
    // The last field clicked takes what is typed.
    const last = fields[fields.length - 1];
    await page.keyboard.type("7");
    const value = await page.$eval(`#fields [data-name="${last}"]`, (field) => field.value);
    if (!value.includes("7")) return fail(`${item}: ${last} of the lower half shows "${value}" after a key`);
    if (await page.evaluate(() => document.getElementById("modal").open)) await page.keyboard.press("Enter");
    await clickTab(page, 0);
    await page.waitForFunction(() => document.querySelector('#fields [role=tab][data-entry="0"]').getAttribute("aria-selected") === "true",
                               { timeout: 5000 }).catch(() => null);
    if ((await chosenTabs(page)) !== "true,false") return fail(`${item}: the upper tab clicked, the tabs are ${await chosenTabs(page)}`);
    told.push(`${item} ${fields.length}`);
  }
  return "each K-1 turned to its lower half by its tab, every field there took a click (" + told.join(", ") +
    "), and turned back";
});
