// Clip in the page: the W-2's picture on the clipboard as a PNG, as large as the native runner's
// clipboard picture of the same form.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { fail, chooseMenu, pressFrameButton, runPageTest } = require("./serve_page");
const { nativeRunner, runNative } = require("./native_runner");

function nativeClipSize() {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lw-page-clip-"));
  const output = runNative(folder, ["menu mnuW2", "button Clip"], "clip.lws");
  fs.rmSync(folder, { recursive: true, force: true });
  const size = /clipboard picture of TF_W2 (\d+)x(\d+)/.exec(output);
  if (!size) throw new Error("the native runner put no picture on the clipboard:\n" + output);
  return { width: Number(size[1]), height: Number(size[2]) };
}

runPageTest(async (page) => {
  if (!fs.existsSync(nativeRunner)) return fail("no native runner at " + nativeRunner + " (LW_NATIVE_SCRIPT)");
  const expected = nativeClipSize();
  await page.browserContext().overridePermissions(new URL(page.url()).origin,
                                                  ["clipboard-read", "clipboard-write", "clipboard-sanitized-write"]);
  await chooseMenu(page, "mnuW2");
  await page.waitForSelector('[aria-label^="Box 1,"]');
  // Whatever the clipboard held before is not taken for the picture.
  await page.evaluate(() => navigator.clipboard.writeText("before"));
  await pressFrameButton(page, "Clip");
  const clipped = await page.waitForFunction(async () => {
    const items = await navigator.clipboard.read();
    const item = items.find((each) => each.types.includes("image/png"));
    if (!item) return null;
    const blob = await item.getType("image/png");
    const head = Array.from(new Uint8Array(await blob.slice(0, 8).arrayBuffer()));
    const picture = await createImageBitmap(blob);
    return { width: picture.width, height: picture.height, head };
  }, { timeout: 10000, polling: 200 }).then((handle) => handle.jsonValue());
  if (JSON.stringify(clipped.head) !== JSON.stringify([137, 80, 78, 71, 13, 10, 26, 10]))
    return fail("the clipboard's picture is not a PNG: " + clipped.head);
  if (clipped.width !== expected.width || clipped.height !== expected.height)
    return fail(`the clipboard holds a ${clipped.width}x${clipped.height} picture, the native runner's is ` +
                `${expected.width}x${expected.height}`);

  // A browser that puts no pictures on its clipboard: the status line says so, as the program's words.
  await page.evaluate(() => { delete window.ClipboardItem; });
  await pressFrameButton(page, "Clip");
  const told = await page.waitForFunction(() => document.querySelector("#status").textContent,
                                          { timeout: 10000 }).then((handle) => handle.jsonValue()).catch(() => "");
  if (told !== "This browser gives the page no clipboard for pictures.")
    return fail(`without a clipboard for pictures the status line says "${told}"`);
  return `the clipboard holds a ${clipped.width}x${clipped.height} PNG of the W-2, as the native runner's; ` +
         "a browser without one is told so";
});
