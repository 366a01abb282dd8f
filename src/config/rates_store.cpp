// The figures of a tax year between SSMC.inf, the configuration form and the process-wide values.
#include <array>

#include "config/classic_number.h"
#include "config/rates.h"
#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "diagnostics/version.h"
#include "model/edition_settings.h"
#include "model/ports.h"
#include "model/process_state.h"
#include "model/program_parts.h"
#include "model/tax_year_choice.h"
#include "store/inf_store.h"
#include "text/pieces.h"

namespace lw {

namespace {

// The year as the form shows it, "2025" or "20XX": the section of SSMC.inf.
std::string formYear(const Form& form) {
    return form.at("TaxYear", 0).caption + form.at("TaxYear", 1).caption;
}

std::string readRate(const std::string& year, const char* key, const std::string& ssmcFile) {
    return store::readInfValue(year, key, "", ssmcFile);
}

// The change point of the year is kept by filing status; a status clicked on the form ("SGL") falls to
// the joint figure, as the program has always done.
const char* changePointKey(FilingStatus filingStatus) {
    if (filingStatus == FilingStatus::Single) return "MCChgRateAfterSingle";
    if (filingStatus == FilingStatus::MarriedSeparately) return "MCChgRateAfterMFS";
    return "MCChgRateAfterMFJ";
}

std::string padRight(const std::string& text, std::size_t width) {
    return text.size() >= width ? text : text + std::string(width - text.size(), ' ');
}

std::string padLeft(const std::string& text, std::size_t width) {
    return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

}  // namespace

Rates readYearRates(const std::string& year, const std::string& ssmcFile, FilingStatus status) {
    struct Entry {
        RateItem item;
        const char* key;
    };
    const Entry entries[] = {
        {RateItem::SocialSecurityRate, "SSRate"},
        {RateItem::SocialSecurityWageBase, "SSMax"},
        {RateItem::MedicareRate, "MCInitRate"},
        {RateItem::MedicareChangePoint, changePointKey(status)},
        {RateItem::MedicareRateAfter, "MCRateAfter"},
        {RateItem::PartBPremium, "MCPartBPremium"},
        {RateItem::PartBIncomeLimit, "MCPartBIncome"},
    };
    Rates rates;
    rates.filingStatus = status;
    for (const Entry& entry : entries)
        rates.set(entry.item, store::readInfValue(year, entry.key, "", ssmcFile));
    return rates;
}

void loadRates(Form& form, const std::string& ssmcFile, Rates& rates) {
    runGuarded("M3_Ledgerwick:SS_MC_Load", [&] {
        const std::string year = formYear(form);
        rates = readYearRates(year, ssmcFile, rates.filingStatus);

        form.at("Frame3").caption = text::replaceAll("Social Security Withholding ????", "????", year);
        form.at("Frame4").caption =
            text::replaceAll("Medicare Withholding ???? --- Martial Status is <Status>", "????", year);
        form.at("Frame4").caption =
            text::replaceAll(form.at("Frame4").caption, "<Status>", filingStatusWord(rates.filingStatus));

        form.at("txtSSRate").text = rates.socialSecurityRate.text();
        form.at("txtMCInitRate").text = rates.medicareRate.text();
        form.at("txtMCRateAfter").text = rates.medicareRateAfter.text();
        form.at("txtMCPartBPremiums").text = rates.partBPremium.text();
        form.at("txtSSMax").text = config::formatClassic(rates.socialSecurityWageBase.text(), "###,###.00");
        form.at("txtMCChgRateAfter").text =
            config::formatClassic(rates.medicareChangePoint.text(), "###,###.00");

        form.at("labelVersion").caption = std::string("Ledgerwick - Version ") + versionFullText();
    });
}

void storeRates(Form& form, const std::string& ssmcFile, Rates& rates) {
    runGuarded("M3_Ledgerwick:SS_MC_Save", [&] {
        const std::string year = formYear(form);
        if (!validateAllRates(form)) return;
        auto write = [&](const char* key, const std::string& value, RateItem item) {
            store::writeInfValue(year, key, value, ssmcFile);
            rates.set(item, value);
        };
        write("SSRate", form.at("txtSSRate").text, RateItem::SocialSecurityRate);
        write("SSMax", config::formatClassic(form.at("txtSSMax").text, "#######"),
              RateItem::SocialSecurityWageBase);
        write("MCInitRate", form.at("txtMCInitRate").text, RateItem::MedicareRate);
        write("MCChangeRateAfter", config::formatClassic(form.at("txtMCChgRateAfter").text, "#######"),
              RateItem::MedicareChangePoint);
        write("MCRateAfter", form.at("txtMCRateAfter").text, RateItem::MedicareRateAfter);
        write("MCPartBPremium", form.at("txtMCPartBPremiums").text, RateItem::PartBPremium);
    });
}

std::string rateChangeRow(const std::string& rateItem, const std::string& original,
                          const std::string& currentValue) {
    return padRight(rateItem, 22) + padLeft(original, 9) + padLeft(currentValue, 9) + "\r\n";
}

void offerToSaveChangedRates(Form& form, const ProgramParts& parts) {
    runGuarded("M3_Ledgerwick:SS_MC_Check_Changes", [&] {
        const std::string year = parts.taxYear.text();
        const std::string& ssmcFile = parts.edition.ssmcInfFile;
        struct rateItem {
            const char* caption;
            const char* key;
            std::string current;
        };
        const std::array<rateItem, 6> items = {{
            {"SS Rate", "SSRate", form.at("txtSSRate").text},
            {"SS Max", "SSMax", config::formatClassic(form.at("txtSSMax").text, "#######")},
            {"MC Rate", "MCInitRate", form.at("txtMCInitRate").text},
            {"MC Change Rate After", "MCChangeRateAfter",
             config::formatClassic(form.at("txtMCChgRateAfter").text, "#######")},
            {"MC Rate After", "MCRateAfter", form.at("txtMCRateAfter").text},
            {"MC Max Medicare", "MCPartBPremium", form.at("txtMCPartBPremiums").text},
        }};
        std::array<std::string, 6> stored;
        bool changed = false;
        for (std::size_t i = 0; i < items.size(); ++i) {
            stored[i] = readRate(year, items[i].key, ssmcFile);
            if (stored[i] != items[i].current) changed = true;
        }
        if (changed) {
            std::string table = rateChangeRow("Item", "Original", "Current") +
                                rateChangeRow("", "Value", "Value") + std::string(40, '-') + "\r\n";
            for (std::size_t i = 0; i < items.size(); ++i)
                table += rateChangeRow(items[i].caption, stored[i], items[i].current);
            const std::string message =
                "One or more values below have changed.\r\n" + table + "DO YOU WANT TO SAVE THE CHANGES?";
            const MessageBoxRequest ask{
                "M3_Ledgerwick:SS_MC_Check_Changes", message, kNoMessageNumber, {"Yes", "No"}};
            if (showMessageBox(parts.desktop, ask).button == MessageBoxButton::First)
                storeRates(form, ssmcFile, parts.rates);
        }
        if (parts.process.quitting) parts.ui.quit();
    });
}

}  // namespace lw
