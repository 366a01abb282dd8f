// Every form of the menu in the page, a few of its fields filled, against the native program's picture
// of the same form: the native runner fills it the same way and takes its snapshot at 100%, the
// window's look drawn by the window's painter. The form area of the page is taken as a screenshot and
// compared with it. Outside the fields both were drawn from the engine's description, by two font
// rasterizers, and agree square by square; a field's border ring is the page's own and agrees pixel by
// pixel; inside a field the browser writes the text with its own glyphs, and squares agree more loosely.
// A field whose text stands whole pixels off is named. The form is saved too, and held to
// ledgerwick-render's picture of the saved document: that is the printed look (white fields and boxes,
// no status line, cut to the document), where the page shows the screen's, so only its width and what
// lies outside the fields must agree; the fields are told without being judged.
//   node page_forms_pictures.js [PAGE_FOLDER] [NATIVE_BUILD] [PICTURE_FOLDER]
// NATIVE_BUILD holds bin/ledgerwick-script and bin/ledgerwick-render; PICTURE_FOLDER, when given, keeps
// each form's page, native and difference pictures. LW_FORMS names some forms alone, LW_FIELDS how many
// fields of each are filled.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { execFileSync, spawnSync } = require("child_process");
const { openPage, fail } = require("./serve_page");

const folder = path.resolve(process.argv[2] || path.join(__dirname, "../../build-web/web"));
const build = path.resolve(process.argv[3] || path.join(__dirname, "../../build"));
const keep = process.argv[4] ? path.resolve(process.argv[4]) : null;
const bin = path.join(build, "bin");

// Outside the fields, at most this share of the squares may differ, as between the engine's two painters.
const kOutsideSquares = 0.05;
// At most this share of the pixels of a field's border ring may differ.
const kBorderPixels = 0.02;
// Inside a filled field, at most this share of its squares may differ: the browser's glyphs.
const kInsideSquares = 0.25;

function quote(text) {
  return '"' + text.replace(/\\/g, "\\\\").replace(/"/g, '\\"').replace(/\r/g, "\\r").replace(/\n/g, "\\n") + '"';
}
function unquote(word) {
  const escapes = { n: "\n", r: "\r", t: "\t", '"': '"', "\\": "\\" };
  return word.slice(1, -1).replace(/\\(.)/g, (all, letter) => escapes[letter] ?? letter);
}

// The native program's pictures of the form filled by the commands: the runner's snapshot of it on the
// screen, and ledgerwick-render's picture of the document it saved, when the form saves one that prints
// as the form (the catalogue's forms).
function nativePictures(entry, work) {
  const snapshot = path.join(work, "snapshot.png"), document = path.join(work, "form.venturo");
  const script = ["start", `menu ${entry.item}`, ...entry.commands, `snapshot ${quote(snapshot)} 1`,
                  `file ${quote(document)}`, "button Save"].join("\n") + "\n";
  const env = { ...process.env, QT_QPA_PLATFORM: "offscreen" };
  const played = spawnSync(path.join(bin, "ledgerwick-script"), ["-"], { input: script, encoding: "utf8", env });
  if (played.status === 2) throw new Error(`the runner could not play ${entry.item}: ${played.stdout}`);
  const pictures = { snapshot: fs.readFileSync(snapshot) };
  if (!entry.form.startsWith("TF_") || !fs.existsSync(document)) return pictures;
  const pages = path.join(work, "pages");
  fs.mkdirSync(pages);
  execFileSync(path.join(bin, "ledgerwick-render"), ["--png", pages, "--zoom", "1", document], { env, stdio: "pipe" });
  const first = fs.readdirSync(pages).filter((name) => name.endsWith(".png")).sort()[0];
  if (first) pictures.render = fs.readFileSync(path.join(pages, first));
  return pictures;
}

async function reload(page) {
  await page.reload({ waitUntil: "load" });
  await page.waitForSelector("body[data-ready=true]", { timeout: 60000 });
}

// Plays the runner's commands in the page as the operator would: the field given the focus, the keys
// that select what it shows, and the paste of its value. The runner's focus is a click that puts no
// caret, so the field takes the focus as a Tab gives it, and the engine selects what it selects.
async function fillInPage(page, entry) {
  await page.evaluate((name) => {
    const item = document.querySelector(`[data-menu="${name}"]`);
    item.closest(".menu").querySelector(".menu-title").click();
    item.click();
  }, entry.item);
  await page.waitForFunction(() => document.getElementById("face").width > 0);
  for (const command of entry.commands) {
    const [word, ...rest] = command.split(" ");
    const argument = rest.join(" ");
    if (word === "focus") {
      const field = await page.$(`[data-name="${argument}" i]`);
      if (!field) throw new Error(`${entry.item}: the page shows no field ${argument}`);
      await field.focus();
      await page.waitForFunction((name) => document.activeElement.getAttribute("data-name") === name &&
                                   new Promise((settled) => setTimeout(() => settled(true), 0)), {}, argument);
    } else if (word === "key") {
      const keys = argument.split("+");
      for (const key of keys.slice(0, -1)) await page.keyboard.down(key);
      await page.keyboard.press(keys[keys.length - 1]);
      for (const key of keys.slice(0, -1).reverse()) await page.keyboard.up(key);
    } else if (word === "paste") {
      await page.evaluate((text) => {
        const pasted = new DataTransfer();
        pasted.setData("text", text);
        document.activeElement.dispatchEvent(new ClipboardEvent("paste", { clipboardData: pasted, bubbles: true,
                                                                         cancelable: true }));
      }, unquote(argument));
    }
  }
  if (await page.evaluate(() => document.getElementById("modal").open))
    throw new Error(`${entry.item}: a box is open in the page after its fields were filled`);
}

// Compares the two pictures in the page's own canvases, in three kinds of places. Outside the fields the
// engine painted both, each front end with its own font rasterizer: pixels are compared by the mean
// colour of squares of four by four. The ring of two pixels at a field's edge is its border, the page's
// own: compared pixel by pixel. Inside a field the browser writes the text: squares again. The focused
// field is left out: the printed document shows no focus.
function compare(pagePng, nativePng, fields, focused) {
  const load = (png) => new Promise((resolve, reject) => {
    const image = new Image();
    image.onload = () => {
      const canvas = document.createElement("canvas");
      canvas.width = image.width;
      canvas.height = image.height;
      const context = canvas.getContext("2d");
      context.drawImage(image, 0, 0);
      resolve(context.getImageData(0, 0, image.width, image.height));
    };
    image.onerror = reject;
    image.src = "data:image/png;base64," + png;
  });
  return Promise.all([load(pagePng), load(nativePng)]).then(([shown, drawn]) => {
    const width = Math.min(shown.width, drawn.width), height = Math.min(shown.height, drawn.height);
    const pixel = (image, x, y) => { const at = (y * image.width + x) * 4; return image.data.subarray(at, at + 3); };
    const kOutside = -1;
    // Which field each pixel belongs to, and whether it lies on the field's border ring.
    const owner = new Int32Array(width * height).fill(kOutside), ring = new Uint8Array(width * height);
    // The focused field and the ring the page draws around it.
    const skip = focused >= 0 ? fields[focused] : null;
    const skipped = (x, y) => skip && x >= skip.x - 2 && y >= skip.y - 2 && x < skip.x + skip.width + 2 &&
                              y < skip.y + skip.height + 2;
    fields.forEach((box, index) => {
      if (index === focused) return;
      for (let y = Math.max(0, box.y); y < Math.min(height, box.y + box.height); ++y)
        for (let x = Math.max(0, box.x); x < Math.min(width, box.x + box.width); ++x) {
          owner[y * width + x] = index;
          ring[y * width + x] = x < box.x + 2 || y < box.y + 2 || x >= box.x + box.width - 2 || y >= box.y + box.height - 2;
        }
    });
    const counts = fields.map(() => ({ ring: 0, ringDiffering: 0, squares: 0, squaresDiffering: 0 }));
    let squares = 0, squaresDiffering = 0;
    const difference = new ImageData(width, height);
    for (let y = 0; y < height; ++y)
      for (let x = 0; x < width; ++x) {
        const a = pixel(shown, x, y), b = pixel(drawn, x, y), at = y * width + x;
        const grey = (b[0] + b[1] + b[2]) / 12 + 160;
        difference.data.set([grey, grey, grey, 255], at * 4);
        if (!ring[at] || owner[at] < 0 || skipped(x, y)) continue;
        ++counts[owner[at]].ring;
        if (Math.max(Math.abs(a[0] - b[0]), Math.abs(a[1] - b[1]), Math.abs(a[2] - b[2])) > 2) {
          ++counts[owner[at]].ringDiffering;
          difference.data.set([0, 0, 230, 255], at * 4);
        }
      }
    for (let by = 0; by + 4 <= height; by += 4)
      for (let bx = 0; bx + 4 <= width; bx += 4) {
        const sums = [0, 0, 0, 0, 0, 0];
        let where = kOutside, left = false;
        for (let y = by; y < by + 4; ++y)
          for (let x = bx; x < bx + 4; ++x) {
            const a = pixel(shown, x, y), b = pixel(drawn, x, y), at = y * width + x;
            for (let c = 0; c < 3; ++c) { sums[c] += a[c]; sums[c + 3] += b[c]; }
            if (skipped(x, y)) left = true;
            else if (owner[at] >= 0 && !ring[at]) where = owner[at];
          }
        if (left) continue;
        const differs = [0, 1, 2].some((c) => Math.abs(sums[c] - sums[c + 3]) > 256);
        if (where >= 0) {
          ++counts[where].squares;
          if (differs) ++counts[where].squaresDiffering;
        } else {
          ++squares;
          if (differs) ++squaresDiffering;
        }
        if (differs)
          for (let y = by; y < by + 4; ++y)
            for (let x = bx; x < bx + 4; ++x)
              if (!ring[y * width + x] || owner[y * width + x] < 0)
                difference.data.set(where >= 0 ? [255, 150, 0, 255] : [230, 0, 0, 255], (y * width + x) * 4);
      }
    const canvas = document.createElement("canvas");
    canvas.width = width;
    canvas.height = height;
    canvas.getContext("2d").putImageData(difference, 0, 0);
    // Where a field's text stands: the shift of the native picture under the page's that matches the
    // inside of the field best. A text the page writes a pixel off matches far better shifted.
    const luma = (image, x, y) => { const p = pixel(image, x, y); return p[0] + p[1] + p[2]; };
    const moved = [];
    fields.forEach((box, index) => {
      if (index === focused) return;
      const cost = (dx, dy) => {
        let sum = 0;
        for (let y = Math.max(2, box.y + 2); y < Math.min(height - 2, box.y + box.height - 2); ++y)
          for (let x = Math.max(2, box.x + 2); x < Math.min(width - 2, box.x + box.width - 2); ++x)
            sum += Math.abs(luma(shown, x, y) - luma(drawn, x + dx, y + dy));
        return sum;
      };
      const still = cost(0, 0);
      if (still === 0) return;
      let best = { dx: 0, dy: 0, sum: still };
      for (let dy = -2; dy <= 2; ++dy)
        for (let dx = -2; dx <= 2; ++dx) {
          const sum = cost(dx, dy);
          if (sum < best.sum) best = { dx, dy, sum };
        }
      if (best.sum < 0.6 * still) moved.push(`${box.name} by ${-best.dx},${-best.dy}`);
    });
    const worst = (share) => fields.reduce((found, box, index) => {
      const value = share(counts[index]);
      return value > found.share ? { name: box.name, share: value } : found;
    }, { name: "", share: 0 });
    return { shownSize: [shown.width, shown.height], drawnSize: [drawn.width, drawn.height],
             outside: squares ? squaresDiffering / squares : 0,
             border: worst((c) => (c.ring ? c.ringDiffering / c.ring : 0)),
             inside: worst((c) => (c.squares ? c.squaresDiffering / c.squares : 0)), moved,
             difference: canvas.toDataURL("image/png").split(",")[1] };
  });
}

async function compareForm(page, entry, work) {
  const native = nativePictures(entry, work);
  await reload(page);
  await fillInPage(page, entry);
  const face = await page.$("#face");
  const box = await face.boundingBox();
  const shown = await page.screenshot({ clip: box, encoding: "base64" });
  const { fields, focused } = await page.evaluate(() => {
    const corner = document.getElementById("face").getBoundingClientRect();
    const inputs = [...document.querySelectorAll("#fields [data-field]")].filter((input) => input.offsetParent);
    return {
      fields: inputs.map((input) => {
        const rect = input.getBoundingClientRect();
        return { name: input.getAttribute("data-name"), x: Math.round(rect.left - corner.left),
                 y: Math.round(rect.top - corner.top), width: Math.round(rect.width), height: Math.round(rect.height) };
      }),
      focused: inputs.indexOf(document.activeElement),
    };
  });
  const results = {};
  for (const [source, png] of Object.entries(native)) {
    results[source] = await page.evaluate(compare, shown, png.toString("base64"), fields, focused);
    if (keep) {
      fs.writeFileSync(path.join(keep, `${entry.item}-${source}.png`), png);
      fs.writeFileSync(path.join(keep, `${entry.item}-${source}-difference.png`),
                       Buffer.from(results[source].difference, "base64"));
    }
  }
  if (keep) fs.writeFileSync(path.join(keep, `${entry.item}-page.png`), Buffer.from(shown, "base64"));
  return { item: entry.item, ...results };
}

(async () => {
  const plan = JSON.parse(execFileSync("python3", [path.join(__dirname, "form_fills.py"), build, process.env.LW_FIELDS || "4"],
                                       { encoding: "utf8", env: { ...process.env, QT_QPA_PLATFORM: "offscreen" } }));
  if (keep) fs.mkdirSync(keep, { recursive: true });
  const { page, problems, close } = await openPage(folder);
  const results = [];
  try {
    const only = (process.env.LW_FORMS || "").split(/\s+/).filter(Boolean);
    for (const entry of plan.filter((entry) => !only.length || only.includes(entry.item))) {
      const work = fs.mkdtempSync(path.join(os.tmpdir(), "ledgerwick-pictures-"));
      try {
        results.push(await compareForm(page, entry, work));
      } catch (error) {
        fail(`${entry.item}: ${error.message}`);
      } finally {
        fs.rmSync(work, { recursive: true, force: true });
      }
    }
    if (problems.length) fail("the page reported: " + problems.join("; "));
  } finally {
    await close();
  }
  const score = (r) => r.outside + r.border.share + r.inside.share;
  results.sort((a, b) => score(b.snapshot) - score(a.snapshot));
  const percent = (share) => (100 * share).toFixed(1) + "%";
  const describe = (r) => `page ${r.shownSize.join("x")}, native ${r.drawnSize.join("x")}; squares differing ` +
    `outside the fields ${percent(r.outside)}; worst border ${r.border.name || "-"} ${percent(r.border.share)}; ` +
    `worst inside ${r.inside.name || "-"} ${percent(r.inside.share)}` +
    (r.moved.length ? `; text moved in ${r.moved.join(", ")}` : "");
  // Of the printed look (white fields and boxes, no status line, cut to the document) only the width and
  // what lies outside the fields are judged: the page shows the screen's look.
  for (const entry of results) {
    const r = entry.snapshot, printed = entry.render;
    const line = `${entry.item}: ${describe(r)}` + (printed ? `\n    printed look: ${describe(printed)}` : "");
    const bad = r.shownSize.join() !== r.drawnSize.join() || r.outside > kOutsideSquares || r.border.share > kBorderPixels ||
                r.inside.share > kInsideSquares ||
                (printed && (printed.shownSize[0] !== printed.drawnSize[0] || printed.outside > kOutsideSquares));
    if (bad) fail(line);
    else console.log("  " + line);
  }
  if (!process.exitCode) console.log(`PASS: ${results.length} forms in the page look as the native program draws them`);
})().catch((error) => fail(error.stack || String(error)));
