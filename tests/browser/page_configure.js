// The configuration form in the page, shown at start as on the desktop: its printers are a select, its
// filing status options are radio buttons that follow the engine, and Change Tax Yr cycles the year
// shown through next year, 20XX, last year and back to this year.
"use strict";
const { fail, runPageTest } = require("./serve_page");

const screenshot = process.argv[3];

function shown(page) {
  return page.evaluate(() => {
    const at = (key) => document.querySelector(`#fields [data-name="${key}"]`);
    return {
      title: document.getElementById("form-title").textContent,
      options: [0, 1, 2].map((i) => at(`optStatus(${i})`).checked),
      names: [0, 1, 2].map((i) => at(`optStatus(${i})`).getAttribute("aria-label")),
      rateLabel: at("lblMC(2)").textContent,
      changeAt: at("txtMCChgRateAfter").value,
      year: at("TaxYear(0)").textContent + at("TaxYear(1)").textContent,
      printer: [at("cbxPrinters").tagName, at("cbxPrinters").getAttribute("aria-label"),
                at("cbxPrinters").selectedIndex >= 0 ? at("cbxPrinters").value : ""],
    };
  });
}

runPageTest(async (page) => {
  const before = await shown(page);
  if (!before.title.startsWith("Configure")) return fail(`the page starts on "${before.title}"`);
  if (before.names.join(",") !== "Single,Married Filing Single,Married Filing Joint")
    return fail("the options are named " + before.names.join(","));
  if (before.options.filter(Boolean).length !== 1) return fail("the options show " + before.options.join(","));
  // The printers are a select: the page's one printer, the browser's print dialog, is chosen again.
  if (before.printer.join("|") !== "SELECT|Printer to use|The browser's print dialog")
    return fail("the printers show as " + before.printer.join("|"));
  await page.select('#fields [data-name="cbxPrinters"]', "The browser's print dialog");
  await page.click('#fields [data-name="optStatus(2)"]');
  const joint = await shown(page);
  if (joint.options.join(",") !== "false,false,true") return fail("after a click on MFJ the options show " + joint.options.join(","));
  if (joint.changeAt === before.changeAt) return fail(`the Medicare figure stayed "${joint.changeAt}"`);
  if (joint.rateLabel !== `Withholding Rate on Wages over ${joint.changeAt}:`)
    return fail(`the rate is labelled "${joint.rateLabel}" beside "${joint.changeAt}"`);
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });

  // The year as the engine gives it after each press: next year, 20XX, last year, this year.
  const year = Number(before.year);
  if (!(year >= 2000 && year < 2100)) return fail(`the form shows the year "${before.year}"`);
  const cycle = [String(year + 1), "20XX", String(year - 1), String(year)];
  const seen = [];
  for (const expected of cycle) {
    await page.evaluate(() => [...document.querySelectorAll("[data-frame-button]")]
      .find((button) => button.textContent === "Change Tax Yr").click());
    // The engine may pause within the press: the year is read once it shows the next one, or after a while.
    await page.waitForFunction((expected) => ["TaxYear(0)", "TaxYear(1)"].map((key) =>
      document.querySelector(`#fields [data-name="${key}"]`).textContent).join("") === expected,
      { timeout: 5000 }, expected).catch(() => null);
    seen.push((await shown(page)).year);
  }
  if (seen.join(",") !== cycle.join(",")) return fail(`Change Tax Yr showed ${seen.join(",")}, not ${cycle.join(",")}`);
  return `MFJ chosen (the rate changes over ${joint.changeAt}); Change Tax Yr went ${seen.join(", ")}`;
});
