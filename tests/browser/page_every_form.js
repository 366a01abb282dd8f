// Every form of the menu in the page: it opens with its controls hosted over its face, each within the
// face, and every field, mark, option, select and button named for a screen reader as the window names
// it, none by the bare name of its control.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

// The menu items that open a form, not the commands of the Control menu.
const opensForm = (item) => !item.startsWith("mnuControl");

function hosted(page) {
  return page.evaluate(() => {
    const face = document.getElementById("face");
    const outside = [], unnamed = [];
    let count = 0;
    for (const element of document.querySelectorAll("#fields > *")) {
      if (element.style.display === "none") continue;
      ++count;
      const [x, y, width, height] = ["left", "top", "width", "height"].map((side) => parseInt(element.style[side], 10));
      if (x < 0 || y < 0 || x + width > face.width || y + height > face.height) outside.push(element.getAttribute("data-name"));
      if (!element.matches("input, textarea, select, button")) continue;
      const name = element.getAttribute("aria-label");
      if (!name || name === element.getAttribute("data-name")) unnamed.push(element.getAttribute("data-name"));
    }
    return { title: document.getElementById("form-title").textContent, count, outside, unnamed };
  });
}

runPageTest(async (page) => {
  const items = (await page.$$eval("[data-menu]", (all) => all.map((item) => item.getAttribute("data-menu"))))
    .filter(opensForm);
  if (items.length < 30) return fail("the menus hold only " + items.length + " forms");
  let controls = 0;
  for (const item of items) {
    await chooseMenu(page, item);
    await page.waitForSelector("#fields > *", { timeout: 10000 }).catch(() => null);
    const shown = await hosted(page);
    if (shown.count === 0) return fail(`${item} shows no controls`);
    if (shown.outside.length) return fail(`${item} places ${shown.outside.join(", ")} outside its face`);
    if (shown.unnamed.length) return fail(`${item} leaves ${shown.unnamed.join(", ")} without a name`);
    if (await page.evaluate(() => document.getElementById("modal").open)) return fail(`${item} opened with a dialog`);
    controls += shown.count;
  }
  return `${items.length} forms opened, ${controls} controls hosted within their faces, every one named`;
});
