// Print in the page: the W-2 on a Letter page, turned, at its true size, its text as text: a PDF made by
// the browser's print holds the text of every filled field, and the page's drawing is as wide on paper
// as the form is in inches.
"use strict";
const fs = require("fs");
const os = require("os");
const path = require("path");
const { execFileSync } = require("child_process");
const { fail, chooseMenu, pressFrameButton, runPageTest } = require("./serve_page");

const typed = [
  ["Box e,", "MARGARET Q HOLLOWAY"],
  ["Box a,", "123456789"],
  ["Box c,", "RIVERBEND TOOL WORKS"],
  ["Box 1,", "48215.5"],
  ["Box 2,", "6021"],
  ["Box d,", "CTRL-5521"],
];

runPageTest(async (page) => {
  await chooseMenu(page, "mnuW2");
  await page.waitForSelector('[aria-label^="Box 1,"]');
  for (const [label, text] of typed) {
    await page.click(`[aria-label^="${label}"]`);
    await page.keyboard.type(text);
    await page.keyboard.press("Tab");
  }
  // What the engine made of each entry (a mask, a number's form) is what the paper shows.
  const shown = await page.evaluate((labels) => labels.map((label) =>
    document.querySelector(`[aria-label^="${label}"]`).value), typed.map((row) => row[0]));

  // The browser's print dialog is the trainer's; here the PDF below stands for the paper it gives.
  await page.evaluate(() => { window.printed = 0; window.print = () => { window.printed += 1; }; });
  await pressFrameButton(page, "Print");
  await page.waitForFunction(() => window.printed === 1, { timeout: 10000 });
  const screen = await page.$eval("#face", (canvas) => [canvas.width, canvas.height]);
  const drawn = await page.$eval("#print-sheet > svg", (svg) => [svg.getAttribute("width"), svg.getAttribute("height")]);

  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lw-page-print-"));
  const pdf = path.join(folder, "w2.pdf");
  await page.pdf({ path: pdf, preferCSSPageSize: true, printBackground: true });
  const text = execFileSync("pdftotext", ["-layout", pdf, "-"], { encoding: "utf8" });
  const info = execFileSync("pdfinfo", [pdf], { encoding: "utf8" });
  const missing = shown.filter((value) => !text.includes(value));
  const pages = /Pages:\s+(\d+)/.exec(info);
  const size = /Page size:\s+([\d.]+) x ([\d.]+) pts/.exec(info);
  if (process.argv[3]) execFileSync("pdftoppm", ["-png", "-r", "100", "-singlefile", pdf, process.argv[3]]);
  fs.rmSync(folder, { recursive: true, force: true });
  if (missing.length) return fail("the printed PDF lacks " + JSON.stringify(missing) + "; it holds:\n" + text);
  if (!pages || pages[1] !== "1") return fail("the print is not one page: " + info);
  if (!size || Math.round(size[1]) !== 792 || Math.round(size[2]) !== 612)
    return fail("the print is not a Letter page turned: " + (size ? size[0] : info));
  if (!/^[\d.]+in$/.test(drawn[0]) || !/^[\d.]+in$/.test(drawn[1]))
    return fail("the drawing's size is not in inches: " + drawn);
  // True size: the screen shows the form at 96 pixels to the inch, and the paper at its inches.
  if (Math.abs(parseFloat(drawn[0]) - screen[0] / 96) > 0.02 || Math.abs(parseFloat(drawn[1]) - screen[1] / 96) > 0.02)
    return fail(`the form is ${drawn} on paper, but ${screen[0]}x${screen[1]} pixels on the screen`);
  return `a Letter page, turned, ${drawn[0]} by ${drawn[1]}, holding ${shown.length} fields' text: ` + JSON.stringify(shown);
});
