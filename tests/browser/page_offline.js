// Once loaded, the page opens with no network: its service worker keeps every file, and the program
// starts from them and opens a form.
"use strict";
const { chooseMenu, runPageTest } = require("./serve_page");

runPageTest(async (page) => {
  const listed = await page.evaluate(async () => (await (await fetch("files.json")).json()).files.length);
  await page.evaluate(async () => { await navigator.serviceWorker.ready; });
  await page.waitForFunction(async (count) => {
    const names = await caches.keys();
    return names.length === 1 && (await (await caches.open(names[0])).keys()).length === count;
  }, { timeout: 60000 }, listed);
  await page.setOfflineMode(true);
  await page.reload({ waitUntil: "load" });
  await page.waitForSelector("body[data-ready=true]", { timeout: 60000 });
  await chooseMenu(page, "mnuW2");
  await page.waitForSelector('input[aria-label^="Box 1,"]', { timeout: 10000 });
  return `with no network the page started from its ${listed} kept files and opened the W-2`;
});
