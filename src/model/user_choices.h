#pragma once
// What the operator chose and the user INF file remembers: the last folders, the printer, the file name
// template and the holidays that move a license's issue date.

#include <string>
#include <vector>

namespace lw {

struct UserChoices {
    std::string lastOpenFolder;
    std::string lastSaveFolder;
    // The printer chosen on the configuration form.
    std::string printerName;
    // The printer that pages go to: the configured one once a print has found it among the machine's
    // printers, else the machine's default (empty).
    std::string currentPrinter;
    std::string fileNameFormat;
    // The holidays as a comma list of MM/DD, and the same list split.
    std::string holidayList;
    std::vector<std::string> holidays;
};

}  // namespace lw
