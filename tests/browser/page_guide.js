// Guide in the page: "Display User Guide" opens the edition's user guide, a PDF of the page's folder, in a
// tab of its own. The edition is the address's: `node page_guide.js PAGE_FOLDER OthAgcy` opens the page
// at ?edition=OthAgcy, and its guide is that edition's.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

const edition = process.argv[3] || "";
const guideName = new RegExp(`_${edition || "Venturo"}_UserGuide\\.pdf$`);

runPageTest(async (page) => {
  const item = await page.$('[data-menu="mnuControlGuide"]');
  if (!item) return fail("the page shows no Guide command: the guide is not in the page's folder");
  const opened = page.browser().waitForTarget((target) => guideName.test(target.url()),
                                              { timeout: 10000 });
  await chooseMenu(page, "mnuControlGuide");
  const tab = await opened;
  const answer = await fetch(tab.url());
  const head = Buffer.from(await answer.arrayBuffer()).subarray(0, 5).toString("latin1");
  if (!answer.ok || head !== "%PDF-") return fail(`the guide's tab shows ${tab.url()}: ${answer.status} ${head}`);
  const status = await page.$eval("#status", (line) => line.textContent);
  if (status) return fail("the page's status line says: " + status);
  return "the guide opened in a new tab: " + tab.url();
}, edition ? `?edition=${edition}` : "");
