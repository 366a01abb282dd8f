// The menus from the keyboard alone: Alt with a title's underlined letter opens its menu on its first
// item, the arrows go between items and menus, Enter chooses, Escape closes and gives the focus back to
// the field that had it; Alt alone goes to the menubar. A screen reader is told the roles and states.
"use strict";
const { fail, runPageTest } = require("./serve_page");

const active = (page) => page.evaluate(() => {
  const element = document.activeElement;
  return { menu: element.getAttribute("data-menu"), field: element.getAttribute("data-name"),
           title: element.classList.contains("menu-title") ? element.textContent : null };
});
const expanded = (page) => page.evaluate(() =>
  [...document.querySelectorAll("#menus .menu-title[aria-expanded=true]")].map((title) => title.textContent));

runPageTest(async (page) => {
  const titles = await page.evaluate(() => [...document.querySelectorAll("#menus .menu-title")].map((title) => ({
    text: title.textContent, underlined: title.querySelector("u") ? title.querySelector("u").textContent : "",
    role: title.getAttribute("role"), keys: title.getAttribute("aria-keyshortcuts"),
    popup: title.getAttribute("aria-haspopup"), expanded: title.getAttribute("aria-expanded") })));
  const w2Title = titles.find((title) => title.text === "W2 Forms");
  if (!w2Title) return fail("no W2 Forms menu: " + JSON.stringify(titles));
  for (const title of titles) {
    if (title.role !== "menuitem" || title.popup !== "menu" || title.expanded !== "false")
      return fail("a menu title is not told as a closed menu: " + JSON.stringify(title));
    if (!title.underlined || title.keys !== "Alt+" + title.underlined.toUpperCase())
      return fail("a menu title shows no access letter matching its shortcut: " + JSON.stringify(title));
  }
  if (new Set(titles.map((title) => title.keys)).size !== titles.length)
    return fail("two menus share an access letter: " + titles.map((title) => title.keys).join(", "));
  const items = await page.evaluate(() => [...document.querySelectorAll("#menus .menu-item")].map((item) =>
    item.getAttribute("role") + "/" + item.getAttribute("aria-disabled")));
  if (items.some((item) => item !== "menuitem/false" && item !== "menuitem/true"))
    return fail("menu items are not told as such: " + items.join(", "));

  // Alt+W opens the W2 Forms menu on its first item; Down goes to the next; Enter chooses it.
  const letter = w2Title.underlined.toUpperCase();
  await page.keyboard.down("Alt");
  await page.keyboard.press("Key" + letter);
  await page.keyboard.up("Alt");
  let now = await active(page);
  if (now.menu !== "mnuW2") return fail(`Alt+${letter} left the focus on ${JSON.stringify(now)}`);
  if ((await expanded(page)).join() !== "W2 Forms") return fail("the open menu is not told as expanded");
  await page.keyboard.press("ArrowDown");
  if ((await active(page)).menu !== "mnuW2G") return fail("Down did not go to the W-2G item");
  await page.keyboard.press("ArrowDown");
  if ((await active(page)).menu !== "mnuW2") return fail("Down on the last item did not go round to the first");
  // Right goes to the next menu, open on its first item; Left comes back.
  await page.keyboard.press("ArrowRight");
  now = await active(page);
  if (!now.menu || !now.menu.startsWith("mnu1099")) return fail("Right went to " + JSON.stringify(now));
  if ((await expanded(page)).join() !== "1099 Forms") return fail("Right did not open the 1099 menu alone");
  // An item the program disables is passed over by the arrows.
  const [first, second, third] = await page.evaluate(() => {
    const items = [...document.activeElement.parentElement.querySelectorAll(".menu-item")];
    items[1].disabled = true;
    return items.slice(0, 3).map((item) => item.getAttribute("data-menu"));
  });
  if ((await active(page)).menu !== first) return fail("Right did not open the 1099 menu on its first item");
  await page.keyboard.press("ArrowDown");
  if ((await active(page)).menu !== third) return fail(`Down from ${first} did not pass over the disabled ${second}`);
  await page.keyboard.press("ArrowUp");
  if ((await active(page)).menu !== first) return fail(`Up from ${third} did not pass over the disabled ${second}`);
  await page.evaluate((name) => { document.querySelector(`[data-menu="${name}"]`).disabled = false; }, second);
  await page.keyboard.press("ArrowLeft");
  if ((await active(page)).menu !== "mnuW2") return fail("Left did not come back to the W2 menu");
  await page.keyboard.press("Enter");
  await page.waitForSelector('#fields [data-name="Text1(0)"]');
  await page.waitForFunction(() => document.activeElement.hasAttribute("data-field"));
  const title = await page.$eval("#form-title", (element) => element.textContent);
  if ((await expanded(page)).length) return fail("a menu stayed open after its item was chosen");
  const field = (await active(page)).field;

  // Typed into the W-2's field, then the menus opened and closed with Escape: the focus is back there.
  await page.keyboard.type("7");
  await page.keyboard.down("Alt");
  await page.keyboard.press("Key" + letter);
  await page.keyboard.up("Alt");
  if (!(await active(page)).menu) return fail("Alt+" + letter + " did not open the menu from the form");
  await page.keyboard.press("Escape");
  if ((await expanded(page)).length) return fail("Escape left a menu open");
  now = await active(page);
  if (now.field !== field) return fail(`Escape gave the focus to ${JSON.stringify(now)}, not ${field}`);
  const kept = await page.$eval(`#fields [data-name="${field}"]`, (element) => element.value);
  if (!kept.includes("7")) return fail(`the field shows "${kept}" after the menus were used`);

  // Alt with a digit no menu has is no character, though the field takes digits: it is left as it was.
  const free = "23456789".split("").find((key) => !titles.some((title) => title.keys === "Alt+" + key));
  await page.keyboard.down("Alt");
  await page.keyboard.press("Digit" + free);
  await page.keyboard.up("Alt");
  now = await active(page);
  const after = await page.$eval(`#fields [data-name="${field}"]`, (element) => element.value);
  if (now.field !== field || after !== kept) return fail(`Alt+${free} made the field "${after}" (was "${kept}")`);

  // Alt alone goes to the menubar's first title; Escape goes back to the field.
  await page.keyboard.press("Alt");
  now = await active(page);
  if (now.title !== titles[0].text) return fail("Alt alone put the focus on " + JSON.stringify(now));
  await page.keyboard.press("Escape");
  if ((await active(page)).field !== field) return fail("Escape from the menubar did not go back to the field");
  return `Alt+${letter}, Down, Right, Left and Enter opened "${title}"; Escape gave ${field} its focus back`;
});
