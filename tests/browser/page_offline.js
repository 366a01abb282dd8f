// Once loaded, the page opens with no network: its service worker keeps every file, and the program
// starts from them and opens a form.
"use strict";
const path = require("path");
const { openPage } = require("./serve_page");

const folder = path.resolve(process.argv[2] || path.join(__dirname, "../../build-web/web"));

function fail(message) {
  console.error("FAIL: " + message);
  process.exitCode = 1;
}

(async () => {
  const { page, problems, close } = await openPage(folder);
  try {
    const listed = await page.evaluate(async () => (await (await fetch("files.json")).json()).files.length);
    await page.evaluate(async () => { await navigator.serviceWorker.ready; });
    await page.waitForFunction(async (count) => {
      const names = await caches.keys();
      return names.length === 1 && (await (await caches.open(names[0])).keys()).length === count;
    }, { timeout: 60000 }, listed);
    await page.setOfflineMode(true);
    await page.reload({ waitUntil: "load" });
    await page.waitForSelector("body[data-ready=true]", { timeout: 60000 });
    await page.evaluate(() =>
      document.querySelector('[data-menu="mnuW2"]').closest(".menu").querySelector(".menu-title").click());
    await page.click('[data-menu="mnuW2"]');
    await page.waitForSelector('input[aria-label^="Box 1,"]', { timeout: 10000 });
    if (problems.length) return fail("the page reported: " + problems.join("; "));
    console.log(`PASS: with no network the page started from its ${listed} kept files and opened the W-2`);
  } finally {
    await close();
  }
})().catch((error) => fail(error.stack || String(error)));
