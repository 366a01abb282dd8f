#include "session_reports.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>

#include "diagnostics/message_box.h"
#include "forms/k1_help_form.h"
#include "model/program.h"
#include "shell/paths.h"
#include "store/inf_store.h"
#include "text/currency_text.h"

namespace lw::fuzz {

namespace {

using Rule = std::function<bool(const ShownReport&, const SessionFacts&)>;

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::vector<std::string> splitAt(const std::string& text, char separator) {
    std::vector<std::string> pieces(1);
    for (char c : text) {
        if (c == separator)
            pieces.emplace_back();
        else
            pieces.back().push_back(c);
    }
    return pieces;
}

// The form the operator works on: the active child, else the form the shared procedures work on.
const Form* formAtHand() {
    if (const Form* active = program().desktop.activeChild()) return active;
    const Form* current = program().g.document.currentForm;
    const auto forms = program().desktop.forms();
    return std::find(forms.begin(), forms.end(), current) != forms.end() ? current : nullptr;
}

// The message of the box opened last: one still open (a report can come while it is laid out), else the
// last one answered.
std::string latestBoxMessage() {
    const auto forms = program().desktop.forms();
    for (auto it = forms.rbegin(); it != forms.rend(); ++it)
        if (const auto* box = dynamic_cast<const MessageBoxForm*>(*it)) return box->request().message;
    return lastMessageBox() ? lastMessageBox()->message : std::string();
}

// The list of K-1 codes on the screen, the last one opened; none when no list is open.
const K1HelpForm* openK1List() {
    const auto forms = program().desktop.forms();
    for (auto it = forms.rbegin(); it != forms.rend(); ++it)
        if (const auto* list = dynamic_cast<const K1HelpForm*>(*it)) return list;
    return nullptr;
}

std::string userStoreValue(const std::string& key) {
    return store::readInfValue(program().g.process.userNameUpper, key, "", program().g.edition.userInfFile);
}

// The key fields of the first line of a data file, as the file now stands: fields 2 and on.
std::vector<std::string> keyFieldsOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    const std::string line = bytes.substr(0, bytes.find_first_of("\r\n"));
    std::vector<std::string> fields = splitAt(line, '\xB7');
    fields.erase(fields.begin(), fields.begin() + std::min<std::size_t>(2, fields.size()));
    return fields;
}

bool lacksEquals(const std::string& field) { return field.find('=') == std::string::npos; }

// Digits before the point: fifteen of them reach a tenth of the 64-bit currency range, and a handful of
// such amounts added or taken from one another can leave it.
bool holdsHugeAmount(const Form& form) {
    for (const auto& owned : form.controls()) {
        if (!owned->isTextBox()) continue;
        const std::string& text = owned->text;
        const std::string whole = text.substr(0, text.find('.'));
        if (std::count_if(whole.begin(), whole.end(), [](char c) { return c >= '0' && c <= '9'; }) >= 15)
            return true;
    }
    return false;
}

bool isAmount(const std::string& text) {
    try {
        text::currencyFromText(text);
        return true;
    } catch (const std::invalid_argument&) {
        return false;
    } catch (const std::overflow_error&) {
        return true;
    }
}

const std::map<std::string, Rule>& rules() {
    static const std::map<std::string, Rule> all = {
        {"k1-line-with-fewer-than-three-parts",
         [](const ShownReport&, const SessionFacts&) {
             const K1HelpForm* list = openK1List();
             if (!list) return false;
             const auto lines =
                 store::readInfSection(list->sectionKey(), list->infFile(), kK1HelpSectionBuffer);
             return std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
                 return std::count(line.begin(), line.end(), '|') < 2;
             });
         }},
        {"first-key-field-without-equals",
         [](const ShownReport&, const SessionFacts& facts) {
             const auto fields = keyFieldsOf(facts.lastOpenedFile);
             return !fields.empty() && lacksEquals(fields.front());
         }},
        {"later-key-field-without-equals",
         [](const ShownReport&, const SessionFacts& facts) {
             const auto fields = keyFieldsOf(facts.lastOpenedFile);
             return fields.size() > 1 && std::any_of(fields.begin() + 1, fields.end(), lacksEquals);
         }},
        {"benefit-amount-past-currency-range",
         [](const ShownReport&, const SessionFacts&) {
             const Form* form = formAtHand();
             return form && holdsHugeAmount(*form);
         }},
        {"license-birthday-february-29",
         [](const ShownReport&, const SessionFacts&) {
             const Form* form = formAtHand();
             if (!form || form->name() != "F3_DL") return false;
             for (int index : {1, 5}) {
                 const Control* date = form->find("Text1", index);
                 if (date && date->text.rfind("02/29", 0) == 0) return true;
             }
             return false;
         }},
        {"month-or-first-field-not-an-amount",
         [](const ShownReport&, const SessionFacts&) {
             const Form* form = formAtHand();
             if (!form || form->name() != "TF_1095A") return false;
             for (const Control* field : form->arrayOf("Text1")) {
                 const bool summed = field->index == 0 || (field->index >= 38 && field->index <= 76);
                 if (summed && !field->text.empty() && !isAmount(field->text)) return true;
             }
             return false;
         }},
        {"message-line-without-blank",
         [](const ShownReport&, const SessionFacts&) {
             std::string message = latestBoxMessage();
             for (std::size_t at = message.find("\r\n"); at != std::string::npos;
                  at = message.find("\r\n", at))
                 message.erase(at + 1, 1);
             for (const std::string& raw : splitAt(message, '\r')) {
                 const std::string line = trimmed(raw);
                 if (line.size() > 50 && line.substr(0, 50).find(' ') == std::string::npos) return true;
             }
             return false;
         }},
        {"printer-refused-page",
         [](const ShownReport&, const SessionFacts& facts) { return facts.printerRefused; }},
        {"guide-not-opened",
         [](const ShownReport&, const SessionFacts& facts) { return facts.guideRefused; }},
        {"file-name-format-not-an-option",
         [](const ShownReport&, const SessionFacts&) {
             const std::string format = userStoreValue("FileNameFmt");
             return !format.empty() && format != "0" && format != "1" && format != "2" && format != "3";
         }},
        {"forms-folder-cannot-be-made",
         [](const ShownReport&, const SessionFacts&) {
             return !folderExists(userStoreValue("TaxFormsFolder"));
         }},
    };
    return all;
}

[[noreturn]] void badList(const std::string& why) {
    std::fprintf(stderr, "session_allowed_reports.txt: %s\n", why.c_str());
    std::abort();
}

std::vector<AllowedReport> readList() {
    std::ifstream in(std::string(LW_FUZZ_DIR) + "/session_allowed_reports.txt");
    if (!in) badList("cannot be read");
    std::vector<AllowedReport> list;
    for (std::string line; std::getline(in, line);) {
        if (trimmed(line).empty() || trimmed(line)[0] == '#') continue;
        const std::vector<std::string> parts = splitAt(line, '|');
        if (parts.size() != 4) badList("a line needs four parts: " + line);
        AllowedReport entry{trimmed(parts[0]), std::atoi(trimmed(parts[1]).c_str()), trimmed(parts[2]),
                            trimmed(parts[3])};
        if (entry.module.empty() || entry.number == 0 || entry.origin.empty())
            badList("a line lacks its procedure, number or origin: " + line);
        if (!rules().count(entry.rule)) badList("no such rule: " + entry.rule);
        list.push_back(entry);
    }
    return list;
}

}  // namespace

const std::vector<AllowedReport>& allowedReports() {
    static const std::vector<AllowedReport> list = readList();
    return list;
}

const AllowedReport* allowingEntry(const ShownReport& report, const SessionFacts& facts) {
    for (const AllowedReport& entry : allowedReports()) {
        if (entry.module == report.module && entry.number == report.number &&
            rules().at(entry.rule)(report, facts))
            return &entry;
    }
    return nullptr;
}

}  // namespace lw::fuzz
