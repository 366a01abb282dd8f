// How fast the page is, from Python's web server on this machine in Debian's headless Chromium:
//   start   from the navigation to the frame being usable (its menus there, a form can be chosen), on a
//           fresh profile each time (nothing cached) and on a profile that has loaded the page before;
//   key     from a key's event to the next frame painted after the engine's update, for many keys typed
//           into box 1 of the W-2, and the part of it the page's own handling of the key took.
// Prints "page NAME median MS p90 MS" lines, as the window bench prints its own.
//   node page_speed.js [PAGE_FOLDER] [--runs N] [--keys N]
"use strict";
const path = require("path");
const { openPage, fail } = require("./serve_page");

function option(name, fallback) {
  const at = process.argv.indexOf(name);
  return at > 0 && at + 1 < process.argv.length ? Number(process.argv[at + 1]) : fallback;
}
const runs = option("--runs", 7);
const keyCount = option("--keys", 120);
const folderArgument = process.argv.slice(2).find((arg, i, all) => !arg.startsWith("--") &&
  !(i > 0 && all[i - 1].startsWith("--")));
const folder = path.resolve(folderArgument || path.join(__dirname, "../../build-web/web"));

function percentile(values, share) {
  const sorted = [...values].sort((a, b) => a - b);
  return sorted[Math.min(sorted.length - 1, Math.ceil(share * sorted.length) - 1)];
}

function report(name, values) {
  const line = `page ${name} median ${percentile(values, 0.5).toFixed(2)} MS p90 ${percentile(values, 0.9).toFixed(2)} MS`;
  console.log(line);
  return { median: percentile(values, 0.5), p90: percentile(values, 0.9) };
}

// Notes the moment the page calls itself ready, measured from the start of its navigation.
function noteReady() {
  new MutationObserver((changes, observer) => {
    if (document.body && document.body.getAttribute("data-ready") === "true" &&
        document.querySelector("[data-menu]")) {
      window.lwReadyAt = performance.now();
      observer.disconnect();
    }
  }).observe(document, { subtree: true, attributes: true, attributeFilter: ["data-ready"] });
}

async function startTime(context, url) {
  const page = await context.newPage();
  await page.evaluateOnNewDocument(noteReady);
  await page.goto(url, { waitUntil: "load" });
  await page.waitForFunction(() => window.lwReadyAt !== undefined, { timeout: 60000 });
  const ready = await page.evaluate(() => window.lwReadyAt);
  await page.close();
  return ready;
}

// Each key is timed from its event (the moment the browser made it) to the frame after the one the
// engine's update was shown in: a frame's callbacks run before it is painted, so a task posted from
// them runs once the frame is on the screen.
function timeNextKey() {
  return new Promise((resolve) => {
    let handledAt = 0;
    // The page's own handler listens as the key goes down to the field; this one hears it come back up,
    // once the engine has taken the key and the page shows its update.
    window.addEventListener("keydown", () => { handledAt = performance.now(); }, { once: true });
    document.addEventListener("keydown", (event) => {
      const eventAt = event.timeStamp, frameBefore = window.lwLastFrame;
      requestAnimationFrame((frameAt) => {
        const channel = new MessageChannel();
        // A frame that comes more than one and a half frames after the last one painted before the key
        // means the key made the screen skip a frame.
        channel.port1.onmessage = () => resolve({ total: performance.now() - eventAt,
                                                   handling: handledAt - eventAt,
                                                   late: frameAt - frameBefore > 25 });
        channel.port2.postMessage(0);
      });
    }, { once: true });
  });
}

async function keyTimes(page) {
  await page.evaluate(() => {
    const item = document.querySelector('[data-menu="mnuW2"]');
    item.closest(".menu").querySelector(".menu-title").click();
    item.click();
  });
  const boxOne = 'input[aria-label^="Box 1,"]';
  await page.waitForSelector(boxOne);
  await page.click(boxOne);
  await page.evaluate(() => {
    const note = (at) => { window.lwLastFrame = at; requestAnimationFrame(note); };
    requestAnimationFrame(note);
  });
  const totals = [], handlings = [];
  let late = 0;
  const keys = "1234567";
  for (let i = 0; i < keyCount; ++i) {
    // Digits typed, then taken back, so that the field stays short and every key edits it.
    const key = i % 14 < 7 ? keys[i % 7] : "Backspace";
    const measured = page.evaluate(timeNextKey);
    // A key comes at any moment of the screen's frame, not just after one was painted.
    await page.evaluate((delay) => new Promise((resolve) => requestAnimationFrame(() => setTimeout(resolve, delay))),
                        (i * 7) % 17);
    await page.keyboard.press(key);
    const { total, handling, late: skipped } = await measured;
    if (skipped) ++late;
    totals.push(total);
    handlings.push(handling);
  }
  const left = keyCount % 14;
  const expected = keys.slice(0, left < 7 ? left : 14 - left);
  const shown = await page.$eval(boxOne, (input) => input.value);
  if (shown !== expected) fail(`box 1 shows "${shown}" after the typed keys, not "${expected}"`);
  return { totals, handlings, late };
}

(async () => {
  const { page, problems, close } = await openPage(folder);
  try {
    const url = page.url();
    const browser = page.browser();
    const cold = [], warm = [];
    for (let run = 0; run < runs; ++run) {
      const context = await browser.createBrowserContext();
      cold.push(await startTime(context, url));
      await context.close();
    }
    const returning = await browser.createBrowserContext();
    await startTime(returning, url);
    for (let run = 0; run < runs; ++run) warm.push(await startTime(returning, url));
    await returning.close();
    const { totals, handlings, late } = await keyTimes(page);
    if (problems.length) return fail("the page reported: " + problems.join("; "));
    report("start-fresh", cold);
    report("start-returning", warm);
    report("key-to-frame", totals);
    report("key-handling", handlings);
    console.log(`page key-late-frames ${late} of ${totals.length}`);
  } finally {
    await close();
  }
})().catch((error) => fail(error.stack || String(error)));
