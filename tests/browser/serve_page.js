// Serves the page's folder as any static host would, with Python's own server, on a free port of this
// machine, and opens it in Debian's Chromium, headless, driven through its DevTools protocol.
"use strict";
const path = require("path");
const { spawn } = require("child_process");
const net = require("net");
const puppeteer = require("puppeteer-core");

function freePort() {
  return new Promise((resolve, reject) => {
    const probe = net.createServer();
    probe.once("error", reject);
    probe.listen(0, "127.0.0.1", () => {
      const { port } = probe.address();
      probe.close(() => resolve(port));
    });
  });
}

async function waitForServer(port, server) {
  for (let tries = 0; tries < 100; ++tries) {
    if (server.exitCode !== null) throw new Error("the web server ended at once");
    const answered = await new Promise((resolve) => {
      const socket = net.connect(port, "127.0.0.1", () => { socket.end(); resolve(true); });
      socket.once("error", () => resolve(false));
    });
    if (answered) return;
    await new Promise((resolve) => setTimeout(resolve, 100));
  }
  throw new Error("the web server did not answer on port " + port);
}

async function openPage(folder, query = "") {
  const port = await freePort();
  let browser = null;
  const server = spawn("python3", ["-m", "http.server", String(port), "--bind", "127.0.0.1"],
                       { cwd: folder, stdio: "ignore" });
  try {
    await waitForServer(port, server);
    browser = await puppeteer.launch({
      executablePath: process.env.LW_CHROMIUM || "/usr/bin/chromium",
      headless: true,
      // The test machine runs as root in a container: Chromium's sandbox needs what it has not.
      args: ["--no-sandbox", "--disable-gpu", "--window-size=1400,1000"],
      defaultViewport: { width: 1400, height: 1000 },
    });
    const page = await browser.newPage();
    const problems = [];
    page.on("pageerror", (error) => problems.push(String(error)));
    page.on("console", (message) => {
      if (message.type() === "error") problems.push(message.text());
    });
    await page.goto(`http://127.0.0.1:${port}/index.html${query}`, { waitUntil: "load" });
    await page.waitForSelector("body[data-ready=true]", { timeout: 60000 });
    const close = async () => {
      await browser.close();
      server.kill();
    };
    return { page, problems, close };
  } catch (error) {
    if (browser) await browser.close();
    server.kill();
    throw error;
  }
}

// A failed check is told and gives exit status 1; the test's body returns after it.
function fail(message) {
  console.error("FAIL: " + message);
  process.exitCode = 1;
}

// Opens a menu of the page and chooses one of its items, as the operator clicks them.
async function chooseMenu(page, itemName) {
  await page.evaluate((name) =>
    document.querySelector(`[data-menu="${name}"]`).closest(".menu").querySelector(".menu-title").click(), itemName);
  await page.click(`[data-menu="${itemName}"]`);
}

// Presses one of the frame's buttons by its caption, as the operator clicks it.
async function pressFrameButton(page, caption) {
  for (const button of await page.$$("[data-frame-button]"))
    if ((await button.evaluate((b) => b.textContent)) === caption) return button.click();
  throw new Error("no frame button " + caption);
}

// A save picker answered with the name the page proposes, as a trainer who presses Save in it: what the
// page writes to the chosen file is kept in window.savedFiles, one { name, bytes } for each file.
async function keepSavedFiles(page) {
  await page.evaluate(() => {
    window.savedFiles = [];
    window.showSaveFilePicker = async (options) => ({
      name: options.suggestedName,
      createWritable: async () => {
        const parts = [];
        return {
          write: async (data) => { parts.push(data); },
          close: async () => {
            const bytes = new Uint8Array(await new Blob(parts).arrayBuffer());
            window.savedFiles.push({ name: options.suggestedName, bytes: Array.from(bytes) });
          },
        };
      },
    });
  });
}

// Turns the K-1 on the page to its lower half by its tab; the tab's index, or -1 after a fail().
async function turnToLowerHalf(page) {
  await page.waitForSelector("#fields [role=tab]");
  const tabs = await page.$$eval("#fields [role=tab]", (all) => all.map((tab) => tab.getAttribute("aria-label")));
  const lower = tabs.findIndex((name) => name.endsWith("Bottom"));
  if (lower < 0) {
    fail("no tab for the lower half among " + tabs.join(", "));
    return -1;
  }
  await page.click(`#fields [role=tab][data-entry="${lower}"]`);
  return lower;
}

// Runs one browser test on the page served from the folder named first on the command line (the web
// build's page by default), at the address's query when one is given. The body gets the page and returns what passed, or nothing after a fail();
// anything the page reported as an error fails the test too.
function runPageTest(body, query = "") {
  const folder = path.resolve(process.argv[2] || path.join(__dirname, "../../build-web/web"));
  (async () => {
    const { page, problems, close } = await openPage(folder, query);
    try {
      const passed = await body(page);
      if (problems.length) return fail("the page reported: " + problems.join("; "));
      if (passed && !process.exitCode) console.log("PASS: " + passed);
    } finally {
      await close();
    }
  })().catch((error) => fail(error.stack || String(error)));
}

module.exports = { openPage, fail, chooseMenu, pressFrameButton, keepSavedFiles, turnToLowerHalf, runPageTest };
