// The page installs as an app: Chromium finds its manifest with no error and nothing that keeps it from
// being installed, each icon the manifest lists is a picture of the size it declares, and the service
// worker keeps every icon, so that the installed app shows them with no network.
"use strict";
const { fail, runPageTest } = require("./serve_page");

runPageTest(async (page) => {
  const session = await page.createCDPSession();
  const manifest = await session.send("Page.getAppManifest");
  if (manifest.errors.length) return fail("the manifest has errors: " + JSON.stringify(manifest.errors));
  const declared = JSON.parse(manifest.data);
  if (declared.display !== "standalone") return fail("the manifest asks for display " + declared.display);
  const icons = declared.icons || [];
  for (const side of [192, 512])
    if (!icons.some((icon) => icon.sizes === `${side}x${side}` && icon.type === "image/png"))
      return fail(`the manifest lists no PNG icon of ${side} by ${side}`);

  const shown = await page.evaluate((list) => Promise.all(list.map((icon) => new Promise((resolve) => {
    const image = new Image();
    image.onload = () => resolve({ src: icon.src, sizes: icon.sizes, size: `${image.naturalWidth}x${image.naturalHeight}` });
    image.onerror = () => resolve({ src: icon.src, sizes: icon.sizes, size: "none" });
    image.src = icon.src;
  }))), icons);
  for (const icon of shown)
    if (icon.size !== icon.sizes) return fail(`${icon.src} is ${icon.size}, not the ${icon.sizes} the manifest says`);

  await page.evaluate(async () => { await navigator.serviceWorker.ready; });
  const listed = await page.evaluate(async () => (await (await fetch("files.json")).json()).files.length);
  await page.waitForFunction(async (count) => {
    const names = await caches.keys();
    return names.length === 1 && (await (await caches.open(names[0])).keys()).length === count;
  }, { timeout: 60000 }, listed);
  const unkept = await page.evaluate(async (list) => {
    const cache = await caches.open((await caches.keys())[0]);
    const missing = [];
    for (const icon of list) if (!(await cache.match(icon.src))) missing.push(icon.src);
    return missing;
  }, icons);
  if (unkept.length) return fail("the service worker does not keep " + unkept.join(", "));

  const { installabilityErrors } = await session.send("Page.getInstallabilityErrors");
  if (installabilityErrors.length)
    return fail("Chromium would not install the page: " + installabilityErrors.map((e) => e.errorId).join(", "));
  return `the page installs as an app, with its icons ${shown.map((icon) => icon.size).join(" and ")} kept offline`;
});
