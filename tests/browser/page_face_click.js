// A click on the face goes to the control under it, as in the window: the border the 1099-INT draws
// around its whole face is a shape and takes no click, so a click on the "CORRECTED" box checks it, and
// the face shows the box's "X" at once.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

// The box of Check(0) on the 1099-INT, in pixels of the face at 100% (left 6060, top 150, 195 twips).
const box = { x: 404, y: 10, width: 13, height: 13 };

async function inkInBox(page) {
  return page.evaluate((b) => {
    const pixels = document.getElementById("face").getContext("2d").getImageData(b.x + 2, b.y + 2, b.width - 4, b.height - 4).data;
    let ink = 0;
    for (let i = 0; i < pixels.length; i += 4) if (pixels[i] + pixels[i + 1] + pixels[i + 2] < 300) ++ink;
    return ink;
  }, box);
}

runPageTest(async (page) => {
  await chooseMenu(page, "mnu1099Int");
  await page.waitForFunction(() => document.getElementById("face").width > 0);
  const before = await inkInBox(page);
  if (before !== 0) return fail(`the CORRECTED box shows ${before} dark pixels before it is clicked`);
  const face = await (await page.$("#face")).boundingBox();
  await page.mouse.click(face.x + box.x + box.width / 2, face.y + box.y + box.height / 2);
  const after = await inkInBox(page);
  if (after < 10) return fail(`the CORRECTED box shows ${after} dark pixels after a click on it`);
  return `a click on the 1099-INT's CORRECTED box checked it (${after} dark pixels in the box)`;
});
