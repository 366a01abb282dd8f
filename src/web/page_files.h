#pragma once
// Files as a trainer expects them in a browser: Open reads a file the trainer picks, Save hands the bytes
// the engine wrote to the browser (a file the trainer chose, or a download), and what the program keeps
// for its user lives in the browser's own storage across visits.

#include <optional>
#include <string>
#include <vector>

#include "model/ports.h"

namespace lw::web {

// Asks the trainer through the browser's own pickers and waits for the answer; the path in the page's
// file system that the engine then reads or writes, or nothing for Cancel.
std::optional<std::string> askForFile(const FileDialogRequest& request);

// After every input: the files the engine wrote for the trainer go to the browser, and what it keeps
// for its user goes to the browser's storage.
void settleFiles();

// The folders whose files outlive the page, loaded from the browser's storage before the program starts.
void loadKeptFolders(const std::vector<std::string>& folders);

}  // namespace lw::web
