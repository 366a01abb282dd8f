// The taxpayer store outlives the page: a taxpayer sheet opened in the page writes its taxpayers into the
// store (the user INF file), which the browser keeps; after a reload, Load TP 1 on a W-2 fills the first
// taxpayer from it. On a fresh profile the same button finds nobody.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { fail, chooseMenu, pressFrameButton, runPageTest } = require("./serve_page");

async function loadTpOnW2(page) {
  await chooseMenu(page, "mnuW2");
  await page.waitForSelector('[aria-label^="Box a,"]');
  await pressFrameButton(page, "Load TP 1");
  await new Promise((resolve) => setTimeout(resolve, 300));
  return page.$eval('[aria-label^="Box a,"]', (box) => box.value);
}

async function ready(page) {
  await page.waitForSelector("body[data-ready=true]", { timeout: 60000 });
}

runPageTest(async (page) => {
  const before = await loadTpOnW2(page);
  if (before !== "") return fail(`a fresh page's Load TP 1 filled box a with "${before}"`);

  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lw-page-store-"));
  const sheet = path.join(folder, "sheet.venturo");
  fs.writeFileSync(sheet, Buffer.from(
    "TPINFO\xB72025\xB7TXT0=ANN LEE\xBB5 OAK AVE\xBBSPRINGFIELD, IL 62701\xB7TXT1=345-67-8901\xB7TXT2=02/03/1975\r\n",
    "latin1"));
  const [chooser] = await Promise.all([page.waitForFileChooser({ timeout: 10000 }), pressFrameButton(page, "Open")]);
  await chooser.accept([sheet]);
  await page.waitForFunction(() => !/W-?2/.test(document.getElementById("form-title").textContent), { timeout: 10000 });
  // The browser's storage has taken what changed before the page goes.
  await page.waitForFunction(() => Module.lwKeeping !== true, { timeout: 10000 });

  await page.reload({ waitUntil: "load" });
  await ready(page);
  const after = await loadTpOnW2(page);
  const name = await page.$eval('[aria-label^="Box e,"]', (box) => box.value);
  fs.rmSync(folder, { recursive: true, force: true });
  if (after !== "345-67-8901") return fail(`after a reload Load TP 1 filled box a with "${after}"`);
  if (!name.includes("ANN")) return fail(`after a reload Load TP 1 filled box e with "${name}"`);
  return `the taxpayer of an opened sheet (${after}, ${name}) is still in the store after a reload`;
});
