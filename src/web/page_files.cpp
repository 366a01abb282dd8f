#include "web/page_files.h"

#include <emscripten.h>
#include <emscripten/val.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <system_error>

#include "text/cp1252.h"
#include "web/page_sleep.h"
#include "web/page_status.h"

namespace lw::web {

using emscripten::val;

namespace {

namespace fs = std::filesystem;

// Where the files that come from the browser and go to it stand while the engine reads or writes them.
const char* const kTransferFolder = "/Browser";

// The files opened from the browser, with the bytes they had when read: one written anew is handed back.
std::map<std::string, std::string>& openedFiles() {
    static std::map<std::string, std::string> opened;
    return opened;
}

// The file's bytes; nothing when it cannot be read, so that no empty file goes out in its place.
std::optional<std::string> bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::string bytes(std::istreambuf_iterator<char>(in), {});
    if (in.bad()) return std::nullopt;
    return bytes;
}

val files() { return val::global("LwFiles"); }

// The trainer's answer, waited for with the engine's stack unwound so that the page goes on running.
val awaitAnswer() {
    while (files()["answer"].isUndefined()) sleepEngine(20);
    val answer = files()["answer"];
    files().set("answer", val::undefined());
    return answer;
}

// A name from the browser as a file name of the engine's code page; nothing when it is not one.
std::optional<std::string> engineName(const std::string& utf8) {
    const std::optional<std::string> name = text::utf8ToCp1252(utf8);
    if (!name || name->empty() || *name == "." || *name == ".." ||
        name->find_first_of(std::string("/\0", 2)) != std::string::npos)
        return std::nullopt;
    return name;
}

std::string transferPath(const std::string& name) { return std::string(kTransferFolder) + "/" + name; }

// The folders kept in the browser's storage, and what their files were when last written there.
std::vector<std::string>& keptFolders() {
    static std::vector<std::string> folders;
    return folders;
}

std::string& keptState() {
    static std::string state;
    return state;
}

// Each kept file's name, size and time of writing: what changes when the engine writes one.
std::string stateOfKeptFiles() {
    std::string state;
    std::error_code ec;
    for (const std::string& folder : keptFolders())
        for (fs::recursive_directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
            if (!it->is_regular_file(ec)) continue;
            state +=
                it->path().string() + '\n' +
                std::to_string(static_cast<unsigned long long>(it->file_size(ec))) + '\n' +
                std::to_string(static_cast<long long>(it->last_write_time(ec).time_since_epoch().count())) +
                '\n';
        }
    return state;
}

// "*.venturo" lets the picker show ".venturo" files first.
std::string acceptOf(const std::string& pattern) {
    const std::size_t dot = pattern.find('.');
    return dot == std::string::npos ? std::string() : text::cp1252ToUtf8(pattern.substr(dot));
}

std::optional<std::string> openPicked(const FileDialogRequest& request) {
    files().call<void>("pick", acceptOf(request.filterPattern));
    const val picked = awaitAnswer();
    if (picked.isNull()) return std::nullopt;
    const std::string shownName = picked["name"].as<std::string>();
    const std::optional<std::string> name = engineName(shownName);
    if (!name) {
        showStatus("The file name " + shownName + " holds characters this program cannot keep: rename it.");
        return std::nullopt;
    }
    const std::vector<std::uint8_t> bytes =
        emscripten::convertJSArrayToNumberVector<std::uint8_t>(picked["bytes"]);
    const std::string path = transferPath(*name);
    std::error_code ec;
    fs::create_directories(kTransferFolder, ec);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        showStatus("The file " + shownName + " could not be read into the page.");
        return std::nullopt;
    }
    openedFiles()[path] = std::string(bytes.begin(), bytes.end());
    return path;
}

std::optional<std::string> saveChosen(const FileDialogRequest& request) {
    const std::string proposed = text::cp1252ToUtf8(request.proposedName);
    files().call<void>("chooseSave", proposed, text::cp1252ToUtf8(request.filterDescription),
                       text::cp1252ToUtf8(request.filterPattern));
    const val chosen = awaitAnswer();
    if (chosen.isNull()) return std::nullopt;
    const std::optional<std::string> name = engineName(chosen.as<std::string>());
    std::error_code ec;
    fs::create_directories(kTransferFolder, ec);
    return transferPath(name ? *name : request.proposedName);
}

void deliver(const std::string& path, const std::string& bytes) {
    const std::string name = text::cp1252ToUtf8(fs::path(path).filename().string());
    val array = val::global("Uint8Array").new_(val(bytes.size()));
    array.call<void>("set", val(emscripten::typed_memory_view(
                                bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()))));
    files().call<void>("deliver", name, array);
}

// Each file the engine wrote in the transfer folder goes to the browser once: a new one is then
// dropped, so that the browser's own dialog, not the page, tells of a file that exists; one that was
// opened stays, for the engine to save it again.
void deliverWrittenFiles() {
    std::error_code ec;
    if (!fs::is_directory(kTransferFolder, ec)) return;
    std::vector<std::string> written;
    for (fs::directory_iterator it(kTransferFolder, ec), end; !ec && it != end; it.increment(ec))
        if (it->is_regular_file(ec)) written.push_back(it->path().string());
    for (const std::string& path : written) {
        const std::optional<std::string> read = bytesOf(path);
        if (!read) {
            showStatus("The file " + text::cp1252ToUtf8(fs::path(path).filename().string()) +
                       " could not be handed to the browser.");
            continue;
        }
        const std::string& bytes = *read;
        auto opened = openedFiles().find(path);
        if (opened != openedFiles().end()) {
            if (opened->second == bytes) continue;
            opened->second = bytes;
            deliver(path, bytes);
            continue;
        }
        deliver(path, bytes);
        fs::remove(path, ec);
    }
}

}  // namespace

std::optional<std::string> askForFile(const FileDialogRequest& request) {
    return request.save ? saveChosen(request) : openPicked(request);
}

void settleFiles() {
    deliverWrittenFiles();
    // The storage is written only when the engine changed a kept file; the browser then writes the files
    // that changed, and a write still under way takes the changes after it.
    std::string state = stateOfKeptFiles();
    if (state == keptState()) return;
    keptState() = std::move(state);
    EM_ASM({
        if (!Module.lwKept) return;
        if (Module.lwKeeping) {
            Module.lwKeepAgain = true;
            return;
        }
        Module.lwKeeping = true;
        var keep = function() {
            Module.lwKeepAgain = false;
            FS.syncfs(
                false, function(error) {
                    if (error) console.warn("The page could not keep its settings: " + error);
                    if (Module.lwKeepAgain) return keep();
                    Module.lwKeeping = false;
                });
        };
        keep();
    });
}

void loadKeptFolders(const std::vector<std::string>& folders) {
    for (const std::string& folder : folders) {
        std::error_code ec;
        fs::create_directories(folder, ec);
        EM_ASM({ FS.mount(IDBFS, {}, UTF8ToString($0)); }, folder.c_str());
    }
    EM_ASM({
        Module.lwLoaded = undefined;
        FS.syncfs(
            true, function(error) {
                if (error) console.warn("The page could not read its kept settings: " + error);
                Module.lwKept = true;
                Module.lwLoaded = true;
            });
    });
    while (!EM_ASM_INT({ return Module.lwLoaded ? 1 : 0; })) emscripten_sleep(10);
    keptFolders() = folders;
    keptState() = stateOfKeptFiles();
}

}  // namespace lw::web
