#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "documents/record.h"
#include "forms/register_forms.h"
#include "qt_offscreen.h"
#include "render/render_job.h"
#include "shell/form_lifecycle.h"
#include "test_program.h"

namespace lw {
namespace {

namespace fs = std::filesystem;

const auto* const kQt = testing::addQtOffscreen();

// The standard output of a command, or nothing when it could not run.
std::optional<std::string> commandOutput(const std::string& command) {
    std::FILE* pipe = ::popen(command.c_str(), "r");
    if (!pipe) return std::nullopt;
    std::string output;
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) output.append(buffer, n);
    if (::pclose(pipe) != 0) return std::nullopt;
    return output;
}

std::vector<std::string> drawnDocuments() {
    std::vector<std::string> names;
    for (const CatalogueEntry& entry : catalogue())
        if (hasDefinition(entry.form) && std::string(entry.form) != "F1_Configure")
            names.push_back(entry.form);
    return names;
}

struct Document {
    std::string form;
    std::string path;
    std::vector<std::string> texts;  // what each filled field holds
    int pages = 1;                   // a K-1 is a page for each half
};

// Writes one saved document of each drawn form, every text field holding a word of its own that the
// page must show: Z1Z, Z2Z and so on.
std::vector<Document> writeDocuments(const fs::path& folder) {
    std::vector<Document> documents;
    testing::TestProgram test;
    registerAllForms();
    test.start();
    int word = 0;
    for (const std::string& name : drawnDocuments()) {
        test.program->g.document.currentFileName.clear();
        Form* form = openCatalogueForm(name);
        if (!form) continue;
        Document document{name, (folder / (name + ".venturo")).string(), {}};
        if (form->find("SSTab1")) document.pages = 2;
        for (const auto& c : form->controls()) {
            if (!c->isTextBox() || !c->visible || c->tag == "DATE" || c->tag == "DATEX" ||
                c->tag == "OUT OF SCOPE")
                continue;
            // The license's picture chooser, with its two boxes, lies below the printed document.
            if (name == "F3_DL" && c->name.rfind("Text", 0) != 0) continue;
            c->text = "Z" + std::to_string(++word) + "Z";
            document.texts.push_back(c->text);
        }
        std::ofstream(document.path, std::ios::binary)
            << buildRecord(form, test.program->g.document).value_or("") << "\r\n";
        documents.push_back(document);
    }
    return documents;
}

struct Render : ::testing::Test {
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "lw-render-test-XXXXXX").string();
        folder = mkdtemp(pattern.data());
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
    int render(render::RenderOptions options) {
        out.str("");
        err.str("");
        return render::renderDocuments(options, testing::shippedDataFolder(), out, err);
    }
    fs::path folder;
    std::ostringstream out;
    std::ostringstream err;
};

TEST_F(Render, EachDrawnFormIsAPageWhoseTextLayerHoldsEveryField) {
    const std::vector<Document> documents = writeDocuments(folder);
    ASSERT_GE(documents.size(), 19u);
    render::RenderOptions options;
    options.year = 2025;
    options.pdf = (folder / "book.pdf").string();
    for (const Document& d : documents) options.files.push_back(d.path);
    ASSERT_EQ(render(options), 0) << err.str();
    EXPECT_EQ(err.str(), "");

    const auto info = commandOutput("pdfinfo '" + options.pdf + "'");
    ASSERT_TRUE(info) << "pdfinfo (poppler-utils) must be installed: tools/install-deps installs it";
    int pages = 0;
    for (const Document& d : documents) pages += d.pages;
    EXPECT_NE(info->find("Pages:           " + std::to_string(pages) + "\n"), std::string::npos) << *info;
    int first = 1;
    for (const Document& d : documents) {
        const int last = first + d.pages - 1;
        const auto text = commandOutput("pdftotext -f " + std::to_string(first) + " -l " +
                                        std::to_string(last) + " '" + options.pdf + "' -");
        first = last + 1;
        ASSERT_TRUE(text);
        for (const std::string& word : d.texts)
            EXPECT_NE(text->find(word), std::string::npos) << d.form << ": " << word;
        // The status line, which names the file after Open, is no part of the paper.
        EXPECT_EQ(text->find(fs::path(d.path).filename().string()), std::string::npos) << d.form;
    }
    // The progress count stands before each line when there are more than ten files.
    EXPECT_NE(out.str().find("[ 1/" + std::to_string(documents.size()) + "] "), std::string::npos)
        << out.str();
}

TEST_F(Render, FilesThatAreNoDocumentsAreSkippedWithALineEachAndTheOthersRendered) {
    auto write = [&](const std::string& name, const std::string& bytes) {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return (folder / name).string();
    };
    const std::string w2 = write("w2.venturo",
                                 "W-2\xB7"
                                 "2025\xB7TXT0=123-45-6789\r\n");
    const std::string binary = write("picture.venturo", std::string("\x89PNG\r\n\x1a\n\0\0", 10));
    const std::string empty = write("empty.venturo", "");
    const std::string unknown = write("unknown.venturo",
                                      "NOSUCHFORM\xB7"
                                      "2025\xB7TXT0=1\r\n");
    fs::create_directories(folder / "a-folder");
    render::RenderOptions options;
    options.pdf = (folder / "book.pdf").string();
    options.files = {
        binary, w2, empty, unknown, (folder / "gone.venturo").string(), (folder / "a-folder").string()};
    EXPECT_EQ(render(options), 1);
    const std::string lines = err.str();
    EXPECT_NE(
        lines.find(binary + ": skipped: The file " + binary + " is not a form file: it holds binary data."),
        std::string::npos)
        << lines;
    EXPECT_NE(lines.find(empty + ": skipped: The file " + empty + " is not a form file: it is empty."),
              std::string::npos)
        << lines;
    EXPECT_NE(lines.find(unknown + ": skipped: The file " + unknown + " is for \"NOSUCHFORM\""),
              std::string::npos)
        << lines;
    EXPECT_NE(lines.find("gone.venturo: skipped: no such file"), std::string::npos) << lines;
    EXPECT_NE(lines.find("a-folder: skipped: is a folder, not a document"), std::string::npos) << lines;
    EXPECT_EQ(out.str(), w2 + ": TF_W2, page 1\n");
    const auto info = commandOutput("pdfinfo '" + options.pdf + "'");
    ASSERT_TRUE(info);
    EXPECT_NE(info->find("Pages:           1\n"), std::string::npos) << *info;
}

TEST_F(Render, PicturesComeOnePerPageAtTheirZoom) {
    std::ofstream(folder / "w2.venturo", std::ios::binary) << "W-2\xB7"
                                                              "2025\xB7TXT0=123-45-6789\r\n";
    render::RenderOptions options;
    options.pngFolder = (folder / "pages").string();
    options.zoom = 2;
    options.files = {(folder / "w2.venturo").string()};
    ASSERT_EQ(render(options), 0) << err.str();
    QImage page(QString::fromStdString((folder / "pages" / "w2.png").string()));
    ASSERT_FALSE(page.isNull());
    EXPECT_EQ(page.width(), 2 * 896);
    EXPECT_EQ(page.height(), 2 * 524) << "the print look is cut to the form's border";
}

TEST_F(Render, AK1IsAPictureForEachHalf) {
    std::ofstream(folder / "k1.venturo", std::ios::binary)
        << "K11065\xB7"
           "2025\xB7TXT5=123-45-6789\xB7TX320=ZBOTTOMZ\r\n";
    render::RenderOptions options;
    options.pngFolder = (folder / "pages").string();
    options.files = {(folder / "k1.venturo").string()};
    ASSERT_EQ(render(options), 0) << err.str();
    EXPECT_EQ(out.str(), options.files[0] + ": TF_K11065, pages 1 to 2\n");
    QImage top(QString::fromStdString((folder / "pages" / "k1-1.png").string()));
    QImage bottom(QString::fromStdString((folder / "pages" / "k1-2.png").string()));
    ASSERT_FALSE(top.isNull());
    ASSERT_FALSE(bottom.isNull());
    EXPECT_EQ(top.size(), bottom.size());
    EXPECT_NE(top, bottom) << "the two halves differ";
    EXPECT_FALSE(QFile::exists(QString::fromStdString((folder / "pages" / "k1.png").string())));
}

// The size of a panel of a K-1 as drawn, in twips.
QSize panelSize(const char* form, const char* panel) {
    for (const ControlDefinition& designed : findDefinition(form)->controls)
        if (designed.control.name == panel) return QSize(designed.control.width, designed.control.height);
    return QSize();
}

TEST_F(Render, AK1PageIsItsTwoPanelsSideBySideWithNoStripOfTabs) {
    std::ofstream(folder / "k1.venturo", std::ios::binary)
        << "K11065\xB7"
           "2025\xB7TXT5=123-45-6789\xB7TX320=ZBOTTOMZ\r\n";
    render::RenderOptions options;
    options.pngFolder = (folder / "pages").string();
    options.files = {(folder / "k1.venturo").string()};
    ASSERT_EQ(render(options), 0) << err.str();
    for (const auto& [page, left, right] :
         {std::tuple{"k1-1.png", "Pic1L", "Pic1R"}, {"k1-2.png", "Pic2L", "Pic2R"}}) {
        const QImage picture(QString::fromStdString((folder / "pages" / page).string()));
        const QSize l = panelSize("TF_K11065", left);
        const QSize r = panelSize("TF_K11065", right);
        EXPECT_EQ(picture.size(), QSize((l.width() + r.width()) / 15, l.height() / 15)) << page;
        // The strip's grey tab of the other half would stand across the top rows of pixels.
        int grey = 0;
        for (int x = 0; x < picture.width(); ++x) grey += picture.pixel(x, 10) == qRgb(0xF0, 0xF0, 0xF0);
        EXPECT_LT(grey, picture.width() / 4) << page << " shows a strip of tabs";
    }
    options.pngFolder.clear();
    options.pdf = (folder / "k1.pdf").string();
    ASSERT_EQ(render(options), 0) << err.str();
    const auto text = commandOutput("pdftotext '" + options.pdf + "' -");
    ASSERT_TRUE(text) << "pdftotext (poppler-utils) must be installed: tools/install-deps installs it";
    EXPECT_NE(text->find("ZBOTTOMZ"), std::string::npos);
    EXPECT_EQ(text->find("(Form 1065) Top"), std::string::npos) << "the tab's caption is on the page";
    EXPECT_EQ(text->find("(Form 1065) Bottom"), std::string::npos) << "the tab's caption is on the page";
}

TEST(RenderArguments, TheCommandLineIsCheckedBeforeAnythingIsRead) {
    std::string error;
    EXPECT_FALSE(render::parseArguments({"a.venturo"}, error));
    EXPECT_EQ(error, "give either --pdf OUT.pdf or --png FOLDER");
    EXPECT_FALSE(render::parseArguments({"--pdf", "o.pdf"}, error));
    EXPECT_EQ(error, "no document to render");
    EXPECT_FALSE(render::parseArguments({"--edition", "Other", "--pdf", "o.pdf", "a"}, error));
    EXPECT_FALSE(render::parseArguments({"--year", "25", "--pdf", "o.pdf", "a"}, error));
    EXPECT_FALSE(render::parseArguments({"--png", "d", "--zoom", "0", "a"}, error));
    auto options =
        render::parseArguments({"--edition", "OthAgcy", "--year", "2024", "--pdf", "o.pdf", "a", "b"}, error);
    ASSERT_TRUE(options) << error;
    EXPECT_EQ(options->edition, "Ledgerwick_OthAgcy");
    EXPECT_EQ(options->year, 2024);
    EXPECT_EQ(options->files, (std::vector<std::string>{"a", "b"}));
}

}  // namespace
}  // namespace lw
