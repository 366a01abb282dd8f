#include "render/render_job.h"

#include <QDir>
#include <QFileInfo>
#include <QString>
#include <filesystem>
#include <iomanip>
#include <memory>
#include <sstream>

#include "forms/k1_paper.h"
#include "headless/headless_program.h"
#include "model/app_error.h"
#include "model/containers.h"
#include "model/program.h"
#include "output/screen_clip.h"
#include "store/scratch_folder.h"
#include "text/cp1252.h"
#include "ui/document_pages.h"

namespace lw::render {

namespace {

namespace fs = std::filesystem;

// Where the pages go: one PDF book, or one picture per page in a folder.
class PageSink {
public:
    explicit PageSink(const RenderOptions& options) : options_(options) {
        if (!options.pdf.empty()) book_ = std::make_unique<ui::PdfBook>(QString::fromStdString(options.pdf));
    }
    // `sheet` counts the pages of a document on a tab control from 1; 0 for a document of one page.
    bool add(const Form& form, const std::string& file, int sheet = 0) {
        if (book_) return book_->addPage(form);
        QString name = QFileInfo(QString::fromStdString(file)).completeBaseName();
        if (sheet > 0) name += QStringLiteral("-%1").arg(sheet);
        name += QStringLiteral(".png");
        return ui::writePagePicture(form, QDir(QString::fromStdString(options_.pngFolder)).filePath(name),
                                    options_.zoom);
    }
    bool finish() { return !book_ || book_->pages() == 0 || book_->finish(); }

private:
    const RenderOptions& options_;
    std::unique_ptr<ui::PdfBook> book_;
};

std::string utf8(const std::string& cp1252) { return text::cp1252ToUtf8(cp1252); }

// What the program told the operator while it read the file, if anything went wrong.
std::string troubleSince(const headless::Session& session, std::size_t reports, std::size_t boxes) {
    if (session.reports.size() > reports) return utf8(session.reports.back().description);
    if (session.boxes.size() > boxes) {
        std::string text = utf8(session.boxes.back().text);
        // A Data Error box names the procedure and the number; the description is what the trainer needs.
        const std::string label = "Error Description:";
        if (const std::size_t at = text.find(label); at != std::string::npos)
            text = text.substr(at + label.size());
        for (char& c : text)
            if (c == '\r' || c == '\n') c = ' ';
        const std::size_t first = text.find_first_not_of(' ');
        const std::size_t last = text.find_last_not_of(' ');
        return first == std::string::npos ? text : text.substr(first, last - first + 1);
    }
    return {};
}

class Renderer {
public:
    Renderer(const RenderOptions& options, const std::string& executableFolder) {
        session_.out = &log_;
        session_.root = root_.path();
        session_.edition = options.edition;
        session_.executableFolder = executableFolder;
        // The tax year of the documents is the one in force on a day of that year past its first of March.
        if (options.year) session_.today = DateTime{*options.year, 6, 15, 12, 0, 0};
        headless_ = std::make_unique<headless::HeadlessProgram>(session_);
    }

    bool started() const { return !root_.path().empty() && !session_.ended; }

    // Opens the file as the Open command does; the form on the screen, or nothing with `why` set.
    Form* open(const std::string& file, std::string& why) {
        std::error_code ec;
        if (fs::is_directory(file, ec)) {
            why = "is a folder, not a document";
            return nullptr;
        }
        if (!fs::exists(file, ec)) {
            why = "no such file";
            return nullptr;
        }
        const std::size_t reports = session_.reports.size();
        const std::size_t boxes = session_.boxes.size();
        const std::string path = fs::absolute(file, ec).string();
        auto inCodePage = text::utf8ToCp1252(path);
        if (!inCodePage) {
            why = "its path holds characters outside the code page of the documents";
            return nullptr;
        }
        session_.answers.push_back({0, "file", {*inCodePage}});
        try {
            headless_->program().desktop.chooseMenu("mnuControlOpen");
        } catch (const ProgramEnded&) {
            session_.ended = true;
            why = "the program ended while reading it";
            return nullptr;
        }
        session_.answers.clear();
        why = troubleSince(session_, reports, boxes);
        Form* form = headless_->program().desktop.activeChild();
        if (why.empty() && !form) why = "no form was opened";
        if (!why.empty()) return nullptr;
        // The print look: cut to the document, white fields, no selection, and no status line, which
        // names the file just read.
        if (Control* status = form->find("labelMisc")) status->visible = false;
        const ProgramParts& parts = headless_->program().parts;
        clipScreen(parts.document.currentForm, parts.process.debug);
        return form;
    }

private:
    std::ostringstream log_;
    // The program runs on a disk of its own, so that rendering leaves the trainer's settings and
    // remembered folders as they were.
    store::ScratchFolder root_{"ledgerwick-render"};
    headless::Session session_;
    std::unique_ptr<headless::HeadlessProgram> headless_;
};

std::string progress(std::size_t done, std::size_t total) {
    if (total <= 10) return {};
    std::ostringstream s;
    s << "[" << std::setw(static_cast<int>(std::to_string(total).size())) << done << "/" << total << "] ";
    return s.str();
}

// A document on a tab control (a K-1's two halves) is a page for each tab; any other is one page.
bool addPages(PageSink& pages, Form& form, const std::string& file, int& count) {
    Control* tabs = form.find("SSTab1");
    if (!tabs || tabs->kind != ControlKind::TabControl || tabs->items.size() < 2) {
        count = 1;
        return pages.add(form, file);
    }
    const int shown = tabOf(*tabs);
    count = static_cast<int>(tabs->items.size());
    bool written = true;
    for (int tab = 0; tab < count && written; ++tab) {
        setTab(*tabs, tab);
        // Paper has no strip of tabs: each half is a page of its own, as the form is printed.
        const HalfAsPaper paper(form);
        written = pages.add(form, file, tab + 1);
    }
    setTab(*tabs, shown);
    return written;
}

}  // namespace

int renderDocuments(const RenderOptions& options, const std::string& executableFolder, std::ostream& out,
                    std::ostream& err) {
    if (!options.pngFolder.empty()) {
        std::error_code ec;
        fs::create_directories(options.pngFolder, ec);
        if (!fs::is_directory(options.pngFolder, ec)) {
            err << "ledgerwick-render: cannot make the folder " << options.pngFolder << "\n";
            return 1;
        }
    }
    Renderer renderer(options, executableFolder);
    if (!renderer.started()) {
        err << "ledgerwick-render: the program could not start\n";
        return 1;
    }
    PageSink pages(options);
    int failed = 0;
    int rendered = 0;
    for (std::size_t i = 0; i < options.files.size(); ++i) {
        const std::string& file = options.files[i];
        std::string why;
        Form* form = renderer.open(file, why);
        int count = 0;
        if (form && !addPages(pages, *form, file, count)) why = "its page could not be written";
        if (!form || !why.empty()) {
            ++failed;
            err << "ledgerwick-render: " << file << ": skipped: " << why << "\n";
            continue;
        }
        out << progress(i + 1, options.files.size()) << file << ": " << form->name();
        if (count == 1)
            out << ", page " << rendered + 1 << "\n";
        else
            out << ", pages " << rendered + 1 << " to " << rendered + count << "\n";
        rendered += count;
    }
    if (!pages.finish()) {
        err << "ledgerwick-render: " << options.pdf << " could not be written\n";
        return 1;
    }
    if (rendered == 0 && !options.pdf.empty()) err << "ledgerwick-render: no page was rendered\n";
    return failed == 0 ? 0 : 1;
}

}  // namespace lw::render
