// A click into a field puts the caret where it lands, as the window's does, and the engine types there:
// the check's name field holds its hint, which the engine selects whole when the field takes the focus;
// the click's caret at the start of that hint, not the selection the browser showed while the button
// was down, is where the keys go, and what the page shows is what the engine holds.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

const field = '#fields [data-name="Text1(0)"]';

runPageTest(async (page) => {
  await chooseMenu(page, "mnuIDFormsCHK");
  await page.waitForSelector(field);
  const hint = await page.$eval(field, (box) => box.value);
  if (!hint.startsWith("Name")) return fail(`the check's name field holds "${hint}"`);
  const box = await page.$eval(field, (element) => element.getBoundingClientRect().toJSON());
  await page.mouse.click(box.x + 3, box.y + 5);
  await page.waitForFunction((selector) => document.activeElement === document.querySelector(selector),
                             { timeout: 5000 }, field).catch(() => null);
  await page.keyboard.type("PRIYA ");
  const shown = await page.$eval(field, (element) => [element.value, element.selectionStart, element.selectionEnd]);
  if (shown[0] !== "PRIYA " + hint) return fail(`after a click at its start and "PRIYA " the field shows "${shown[0]}"`);
  if (shown[1] !== 6 || shown[2] !== 6) return fail(`the caret stands at ${shown[1]}-${shown[2]}, not after the typed text`);
  // A second click in the same field, at the end of its first line, puts the caret there in turn.
  const line = await page.$eval(field, (element) => {
    const probe = document.createElement("span");
    probe.style.font = getComputedStyle(element).font;
    probe.textContent = element.value.split("\n")[0];
    document.body.appendChild(probe);
    const width = probe.getBoundingClientRect().width;
    probe.remove();
    return width;
  });
  await page.mouse.click(box.x + Math.min(box.width - 4, line + 8), box.y + 5);
  await page.keyboard.type("X");
  const again = await page.$eval(field, (element) => element.value);
  if (!again.startsWith("PRIYA NameX")) return fail(`a click at the end of the first line and "X" show "${again}"`);
  return `a click put the caret where it landed: "${again.replace(/\n/g, "|")}"`;
});
