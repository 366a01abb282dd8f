// The frame's status line, in the page: at the foot of the window under the panel and the form, read
// out by a screen reader (role=status); a character the program's code page cannot hold, typed into a
// field, is refused there in the window's own words, and the line clears after eight seconds as the
// window's does. What the field shows is left as it was. The end of the program, Quit pressed, stays
// told there: the page has nothing else to show then.
"use strict";
const { fail, chooseMenu, pressFrameButton, runPageTest } = require("./serve_page");

const refusal = "That character cannot be typed here: the program keeps its text in the Windows-1252 code page.";

runPageTest(async (page) => {
  await chooseMenu(page, "mnuW2");
  const box = '#fields [aria-label^="Box e,"]';
  await page.waitForSelector(box);
  await page.click(box);
  await page.keyboard.type("ANNA");
  // A key that types a character outside the code page, as a keyboard layout of another script sends it.
  await page.evaluate(() => document.activeElement.dispatchEvent(
    new KeyboardEvent("keydown", { key: "\u03a9", keyCode: 87, bubbles: true, cancelable: true })));
  await page.waitForFunction((text) => document.getElementById("status").textContent === text, { timeout: 5000 }, refusal)
    .catch(() => null);
  const line = await page.evaluate(() => {
    const status = document.getElementById("status");
    const place = status.getBoundingClientRect();
    const form = document.getElementById("form").getBoundingClientRect();
    const panel = document.getElementById("panel").getBoundingClientRect();
    return { role: status.getAttribute("role"), text: status.textContent, top: place.top, bottom: place.bottom,
             left: place.left, right: place.right, formBottom: form.bottom, panelBottom: panel.bottom,
             height: window.innerHeight, width: window.innerWidth,
             field: document.activeElement.value };
  });
  if (line.role !== "status") return fail("the status line's role is " + line.role);
  if (line.text !== refusal) return fail(`the status line says "${line.text}"`);
  if (line.field !== "ANNA") return fail(`the field shows "${line.field}" after the refused key`);
  if (Math.abs(line.bottom - line.height) > 2 || line.left > 2 || Math.abs(line.right - line.width) > 2)
    return fail(`the status line stands at ${JSON.stringify(line)}, not across the foot of the window`);
  if (line.top < line.formBottom || line.top < line.panelBottom)
    return fail("the status line stands over the form or the panel");
  await new Promise((resolve) => setTimeout(resolve, 6000));
  const still = await page.$eval("#status", (status) => status.textContent);
  if (still !== refusal) return fail("the status line cleared before eight seconds");
  await page.waitForFunction(() => document.getElementById("status").textContent === "", { timeout: 5000 }).catch(() => null);
  const cleared = await page.$eval("#status", (status) => status.textContent);
  if (cleared) return fail(`after eight seconds the status line still says "${cleared}"`);
  await pressFrameButton(page, "Quit");
  const ended = "The program has ended. Reload the page to start it again.";
  await page.waitForFunction((text) => document.getElementById("status").textContent === text, { timeout: 5000 }, ended)
    .catch(() => null);
  if ((await page.$eval("#status", (status) => status.textContent)) !== ended) return fail("Quit told nothing in the status line");
  await new Promise((resolve) => setTimeout(resolve, 9000));
  const lasting = await page.$eval("#status", (status) => status.textContent);
  if (lasting !== ended) return fail(`nine seconds after Quit the status line says "${lasting}"`);
  return `"${refusal}" stood at the foot of the window, then cleared; the end of the program stayed told`;
});
