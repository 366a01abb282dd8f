// The pictures of the cards and licenses in the page: a number typed on a card gives it the card of
// Social Security or of an ITIN, and a portrait clicked with the left, right or middle button goes to
// the left or the right license; each picture is painted on the face where the engine places it.
"use strict";
const { fail, chooseMenu, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];
const at = (key) => `#fields [data-name="${key}"]`;

function pictureOf(page, key) {
  return page.$eval(at(key), (element) => element.getAttribute("data-picture"));
}

// How many colours the face shows within a control's place: one for an empty frame, many for a picture.
function coloursWithin(page, key) {
  return page.evaluate((key) => {
    const element = document.querySelector(`#fields [data-name="${key}"]`);
    const face = document.getElementById("face");
    const [x, y, width, height] = ["left", "top", "width", "height"].map((side) => parseInt(element.style[side], 10));
    const pixels = face.getContext("2d").getImageData(x + 2, y + 2, width - 4, height - 4).data;
    const colours = new Set();
    for (let i = 0; i < pixels.length; i += 4) colours.add((pixels[i] << 16) | (pixels[i + 1] << 8) | pixels[i + 2]);
    return colours.size;
  }, key);
}

async function clickOn(page, key, button) {
  const box = await page.$eval(at(key), (element) => {
    const place = element.getBoundingClientRect();
    return { x: place.left + place.width / 2, y: place.top + place.height / 2 };
  });
  await page.mouse.click(box.x, box.y, { button });
}

runPageTest(async (page) => {
  await chooseMenu(page, "mnuIDFormsSSITIN");
  await page.waitForSelector(at("Text1(0)"));
  const emptyCard = await coloursWithin(page, "Image1(0)");
  await page.click(at("Text1(0)"));
  await page.keyboard.type("123456789");
  await page.keyboard.press("Tab");
  await page.click(at("Text1(2)"));
  await page.keyboard.type("912345678");
  await page.keyboard.press("Tab");
  const cards = [await pictureOf(page, "Image1(0)"), await pictureOf(page, "Image1(1)"), await pictureOf(page, "Image1(2)")];
  if (cards.join(",") !== "SSN.jpg,ITIN.jpg,") return fail("the cards show " + cards.join(","));
  const paintedCard = await coloursWithin(page, "Image1(0)");
  if (paintedCard < 20 || paintedCard <= emptyCard) return fail(`the card shows ${paintedCard} colours, empty ${emptyCard}`);

  await chooseMenu(page, "mnuIDFormsDL");
  await page.waitForSelector(at("picDL(2)"));
  const emptyLicense = await coloursWithin(page, "Picture2");
  await clickOn(page, "picDL(2)", "left");
  await clickOn(page, "picDL(5)", "right");
  const left = await pictureOf(page, "Picture2"), right = await pictureOf(page, "Picture4");
  if (left !== "P3GS.jpg" || right !== "P6GS.jpg") return fail(`the licenses show "${left}" and "${right}"`);
  const paintedLicense = await coloursWithin(page, "Picture2");
  if (paintedLicense < 20 || paintedLicense <= emptyLicense)
    return fail(`the left license shows ${paintedLicense} colours, empty ${emptyLicense}`);
  await clickOn(page, "picDL(15)", "middle");
  const afterMiddle = [await pictureOf(page, "Picture2"), await pictureOf(page, "Picture4")];
  if (afterMiddle.join(",") !== "P3GS.jpg,P16GS.jpg") return fail("after the middle button the licenses show " + afterMiddle.join(","));
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  return `the cards show ${cards.slice(0, 2).join(" and ")}; the licenses ${afterMiddle.join(" and ")}`;
});
