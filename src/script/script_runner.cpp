#include "script/script_runner.h"

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "headless/headless_program.h"
#include "model/app_error.h"
#include "model/program.h"
#include "script/script_words.h"
#include "text/words.h"

namespace lw::script {

namespace {

bool isSetUpCommand(const std::string& word) {
    static const char* const setUp[] = {"root",  "edition",  "args",    "user", "computer",
                                        "today", "printers", "running", "app"};
    for (const char* name : setUp)
        if (word == name) return true;
    return false;
}

bool isAnswerCommand(const std::string& word) {
    return word == "answer" || word == "file" || word == "filesave" || word == "k1" || word == "report";
}

std::optional<DateTime> parseToday(const std::vector<std::string>& words) {
    DateTime t;
    char dash1 = 0, dash2 = 0;
    std::istringstream date(words.at(1));
    if (!(date >> t.year >> dash1 >> t.month >> dash2 >> t.day) || dash1 != '-' || dash2 != '-')
        throw ScriptError("bad date " + words[1] + ", want YYYY-MM-DD");
    if (words.size() > 2) {
        char c1 = 0, c2 = 0;
        std::istringstream time(words[2]);
        if (!(time >> t.hour >> c1 >> t.minute >> c2 >> t.second) || c1 != ':' || c2 != ':')
            throw ScriptError("bad time " + words[2] + ", want HH:MM:SS");
    }
    if (t.month < 1 || t.month > 12 || t.day < 1 || t.day > 31 || t.hour > 23 || t.minute > 59 ||
        t.second > 59)
        throw ScriptError("bad date " + words[1]);
    return t;
}

// A new folder of the user's own beside the others of its stem. The C library's own maker draws its names
// from the clock, which a WebAssembly build reads to the millisecond only, so that runs started at
// the same moment of different seconds met the same names; the names here come from the system's
// random source.
std::optional<std::string> makeTemporaryFolder(const std::string& stem) {
    static const char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> pick(0, sizeof letters - 2);
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string folder = stem;
        for (int i = 0; i < 6; ++i) folder += letters[pick(random)];
        if (mkdir(folder.c_str(), 0700) == 0) return folder;
        if (errno != EEXIST) return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace

ScriptRunner::ScriptRunner(std::ostream& out, std::string executableFolder) : out_(out) {
    session_.out = &out_;
    session_.executableFolder = std::move(executableFolder);
}

ScriptRunner::~ScriptRunner() {
    program_ = nullptr;
    headless_.reset();
}

int ScriptRunner::run(std::istream& script) {
    int status = 0;
    std::string raw;
    while (std::getline(script, raw)) {
        ++line_;
        if (!raw.empty() && raw.back() == '\r') raw.pop_back();
        lineText_ = raw;
        try {
            std::vector<std::string> words = text::splitWords(raw);
            if (words.empty()) continue;
            lineText_ = raw.substr(raw.find_first_not_of(" \t"));
            execute(words);
            if (session_.scriptError) {
                auto [line, why] = *session_.scriptError;
                session_.scriptError.reset();
                throw ScriptError(why + (line ? " (answer of line " + std::to_string(line) + ")" : ""));
            }
        } catch (const text::WordsError& e) {
            out_ << "ERROR line " << line_ << ": " << e.what() << "\n";
            status = 2;
            break;
        } catch (const ScriptError& e) {
            out_ << "ERROR line " << line_ << ": " << e.what() << "\n";
            status = 2;
            break;
        } catch (const AppError& e) {
            out_ << "ERROR line " << line_
                 << ": the program faulted outside its error handling: " << e.number() << " "
                 << utf8(e.description()) << "\n";
            status = 2;
            break;
        } catch (const std::exception& e) {
            out_ << "ERROR line " << line_ << ": the program faulted: " << e.what() << "\n";
            status = 2;
            break;
        }
    }
    out_ << passed_ << " passed, " << failed_ << " failed\n";
    if (status == 0 && failed_ > 0) status = 1;
    return status;
}

void ScriptRunner::execute(const std::vector<std::string>& words) {
    const std::string& command = words[0];
    if (isSetUpCommand(command)) return setUp(words);
    if (command == "start") {
        if (started_) throw ScriptError("the program has started already");
        return start();
    }
    if (isAnswerCommand(command)) return queueAnswer(words);
    if (command == "write" || command == "remove" || command == "mkdir") return prepareFile(words);
    if (!started_) start();
    if (command == "expect") return check(words);
    if (command == "show" || command == "dump" || command == "save-clipboard" || command == "print-to" ||
        command == "snapshot")
        return showValue(words);
    if (command == "list") return list(words);
    act(words);
}

void ScriptRunner::setUp(const std::vector<std::string>& words) {
    if (started_) throw ScriptError(words[0] + " must come before start");
    const std::string& command = words[0];
    if (command == "running") {
        session_.running = true;
        return;
    }
    if (command == "printers") {
        session_.printers.assign(words.begin() + 1, words.end());
        for (const auto& printer : session_.printers) codePage(printer);
        return;
    }
    need(words, 2, (command + " VALUE").c_str());
    if (command == "root") session_.root = words[1];
    if (command == "edition") session_.edition = words[1];
    if (command == "args") session_.args = words[1];
    if (command == "user") session_.user = words[1];
    if (command == "computer") session_.computer = words[1];
    if (command == "today") session_.today = parseToday(words);
    if (command == "app") {
        ensureRoot();
        session_.executableFolder = path(words[1]);
    }
}

void ScriptRunner::ensureRoot() {
    if (session_.root.empty()) {
        std::error_code ec;
        const std::filesystem::path temporary = std::filesystem::temp_directory_path(ec);
        std::optional<std::string> folder;
        if (!ec) folder = makeTemporaryFolder((temporary / "ledgerwick-script-").string());
        if (!folder) throw ScriptError("cannot make a temporary root folder");
        session_.root = *folder;
    }
    std::error_code ec;
    std::filesystem::create_directories(session_.root, ec);
    if (ec) throw ScriptError("cannot make the root folder " + session_.root + ": " + ec.message());
}

// Lays out files as a test needs them: a user INF file of an earlier run, a file where a folder belongs.
void ScriptRunner::prepareFile(const std::vector<std::string>& words) {
    ensureRoot();
    need(words, 2, (words[0] + " PATH").c_str());
    std::filesystem::path target = path(words[1]);
    std::error_code ec;
    if (words[0] == "remove") {
        std::filesystem::remove_all(target, ec);
    } else if (words[0] == "mkdir") {
        std::filesystem::create_directories(target, ec);
    } else {
        need(words, 3, "write PATH \"CONTENT\"");
        if (target.has_parent_path()) std::filesystem::create_directories(target.parent_path(), ec);
        std::ofstream file(target, std::ios::binary | std::ios::trunc);
        std::string bytes = codePage(words[2]);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!file) throw ScriptError("cannot write " + words[1]);
        return;
    }
    if (ec) throw ScriptError("cannot " + words[0] + " " + words[1] + ": " + ec.message());
}

void ScriptRunner::start() {
    started_ = true;
    ensureRoot();
    out_ << "start " << session_.edition << " in " << session_.root << "\n";
    headless_ = std::make_unique<headless::HeadlessProgram>(session_);
    program_ = &headless_->program();
    if (session_.ended) out_ << "the program ended\n";
}

void ScriptRunner::requireRunning(const std::string& what) const {
    if (session_.ended) throw ScriptError("the program has ended; it cannot " + what);
}

void ScriptRunner::queueAnswer(const std::vector<std::string>& words) {
    headless::QueuedAnswer answer{line_, words[0], {}};
    for (std::size_t i = 1; i < words.size(); ++i) answer.words.push_back(codePage(words[i]));
    if (words[0] == "answer") need(words, 2, "answer \"CAPTION\"");
    if (words[0] == "file") need(words, 2, "file \"PATH\" or file cancel");
    if (words[0] == "filesave") {
        need(words, 2, "filesave save [\"NEW NAME\"] | sequence | exit");
        if (words[1] != "save" && words[1] != "sequence" && words[1] != "exit")
            throw ScriptError("filesave takes save, sequence or exit");
    }
    if (words[0] == "k1") need(words, 2, "k1 \"CODE\" or k1 cancel");
    if (words[0] == "report") {
        need(words, 2, "report \"DESCRIPTION\" [clip/exit]");
        if (words.size() > 2 && words[2] != "clip" && words[2] != "exit")
            throw ScriptError("report takes clip or exit after the description");
    }
    // "file proposed FOLDER" keeps the name the dialog proposes and puts it in FOLDER; an empty FOLDER
    // would put it at the top of the disk.
    if (words[0] == "file" && words[1] == "proposed" && words.size() > 2 && words[2].empty())
        throw ScriptError("file proposed takes a folder");
    if (words[0] == "file" && words[1] == "proposed" && words.size() > 2)
        answer.words = {"proposed", codePage(path(words[2]))};
    else if (words[0] == "file" && words[1] != "cancel")
        answer.words[0] = codePage(path(words[1]));
    session_.answers.push_back(std::move(answer));
}

Form& ScriptRunner::inputForm() const {
    Form* form = program_->desktop.inputForm();
    if (!form) throw ScriptError("no form is on the screen");
    return *form;
}

Control& ScriptRunner::control(const std::string& reference) const {
    ControlReference ref = parseReference(reference);
    Desktop& desktop = program_->desktop;
    for (Form* form : {desktop.topModal(), desktop.activeChild(), desktop.frame()}) {
        if (!form) continue;
        if (Control* found = form->find(ref.name, ref.index)) return *found;
    }
    throw ScriptError("no control " + reference + " on the screen");
}

void ScriptRunner::expectThat(bool held, const std::string& got) {
    if (held) {
        ++passed_;
        return;
    }
    ++failed_;
    out_ << "FAIL line " << line_ << ": " << lineText_ << ": got " << got << "\n";
}

std::string ScriptRunner::path(const std::string& word) const {
    if (word.rfind("~root/", 0) == 0) return session_.root + "/" + word.substr(6);
    if (word == "~root") return session_.root;
    return word;
}

}  // namespace lw::script
