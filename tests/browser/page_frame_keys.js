// The frame's keys in the page: a form opened from the keyboard alone, and F12 pressed while the page's
// focus is outside any field (after a click on the form's title) still reaches the engine's focused
// field, as the desktop hands every key of its forms to that field: the 1095-A copies the month down.
// F5 there is the program's key too: the browser is kept from reloading the page with it.
"use strict";
const { fail, runPageTest } = require("./serve_page");

const field = (key) => `#fields [data-name="${key}"]`;

runPageTest(async (page) => {
  const letter = await page.evaluate(() => {
    const item = document.querySelector('[data-menu="mnu1095A"]');
    return item.closest(".menu").querySelector(".menu-title").getAttribute("data-access-key");
  });
  if (!letter) return fail("the menu of the 1095-A has no access letter");
  await page.keyboard.down("Alt");
  await page.keyboard.press("Key" + letter);
  await page.keyboard.up("Alt");
  for (let step = 0; step < 10; ++step) {
    const on = await page.evaluate(() => document.activeElement.getAttribute("data-menu"));
    if (on === "mnu1095A") break;
    await page.keyboard.press("ArrowDown");
  }
  await page.keyboard.press("Enter");
  await page.waitForSelector(field("Text1(40)"));
  await page.click(field("Text1(40)"));
  await page.keyboard.type("250");
  await page.evaluate(() => {
    window.reloadKept = null;
    window.addEventListener("keydown", (event) => {
      if (event.key === "F5") window.reloadKept = event.defaultPrevented;
    }, true);  // after the page's own listener on the window, before any element's
  });
  await page.click("#form-title");
  const outside = await page.evaluate(() => document.activeElement === document.body);
  if (!outside) return fail("a click on the form's title left the focus in an element");
  await page.keyboard.press("F5");
  if ((await page.evaluate(() => window.reloadKept)) !== true) return fail("F5 outside a field was left to the browser");
  await page.click("#form-title");
  await page.keyboard.press("F12");
  await page.waitForFunction((key) => document.querySelector(key).value !== "", { timeout: 5000 },
                             field("Text1(49)")).catch(() => {});
  const [month, last, total] = await page.evaluate((keys) => keys.map((key) =>
    document.querySelector(`#fields [data-name="${key}"]`).value), ["Text1(40)", "Text1(49)", "Text1(50)"]);
  if (month !== "$250.00" || last !== "$250.00")
    return fail(`F12 outside a field left the month "${month}" and the last month "${last}"`);
  if (total !== "$2,500.00") return fail(`the column's total is "${total}"`);
  const focus = await page.evaluate(() => document.activeElement.getAttribute("data-name"));
  if (focus !== "Text1(40)") return fail("after F12 the page's focus is on " + focus);
  return `the 1095-A opened from the keyboard; F12 pressed outside its fields copied "${month}" down to a total of "${total}"`;
});
