// A second tab of the page with the same edition is a second start of the program while the first runs:
// it shows box 800, "The Ledgerwick is already running.", and ends at OK, so that two tabs never keep
// one edition's settings over each other. A tab of the other edition starts as any first start does.
"use strict";
const { fail, runPageTest } = require("./serve_page");

// Opens the address in a tab of its own; the title and lines of the box it shows at start, if any.
async function startInNewTab(page, address) {
  const tab = await page.browser().newPage();
  await tab.goto(address, { waitUntil: "load" });
  await tab.waitForFunction(() => document.getElementById("modal").open || document.body.dataset.ready === "true",
                            { timeout: 60000 });
  const box = await tab.evaluate(() => document.getElementById("modal").open && {
    title: document.getElementById("modal-title").textContent,
    message: document.querySelector('#modal-fields [data-name="lblMessage"]').textContent,
  });
  return { tab, box };
}

runPageTest(async (page) => {
  const address = new URL(page.url());
  const second = await startInNewTab(page, address.href);
  if (!second.box) return fail("a second tab of the same edition started as a first does");
  if (second.box.title !== "F0_MDI:FormLoad" || !second.box.message.includes("The Ledgerwick is already running."))
    return fail(`the second tab showed "${second.box.title}": ${second.box.message}`);
  await second.tab.click("#modal-fields button[data-name=cmd1]");
  await second.tab.waitForSelector("body[data-ready=true]", { timeout: 10000 });
  const ended = await second.tab.$eval("#status", (line) => line.textContent);
  if (!ended.includes("The program has ended")) return fail(`after OK the second tab's status line says "${ended}"`);
  const menus = await second.tab.$$("[data-menu]");
  if (menus.length) return fail("the second tab still offers its menus after the program ended");

  address.search = "?edition=OthAgcy";
  const other = await startInNewTab(page, address.href);
  if (other.box) return fail(`a tab of the other edition showed "${other.box.title}": ${other.box.message}`);
  const stillThere = await page.$$("[data-menu]");
  if (!stillThere.length) return fail("the first tab lost its menus");
  return `a second tab showed "${second.box.message.split("\n")[0]}" and ended at OK; a tab of the other edition started`;
});
