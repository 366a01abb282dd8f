// Printing as a trainer prints: the real window program, a printer chosen by its name in the
// configuration form, and forms filled by typing and sent with Print through Qt Print Support to a CUPS
// queue. The queue (tests/printing/private-cups) keeps each job's PDF in a folder; the test reads it
// back with the poppler tools: Letter pages, the form at its true size, and every field's text.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <utility>
#include <vector>

#include "app/window_program.h"
#include "model/containers.h"
#include "model/program.h"
#include "text/cp1252.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/frame_window.h"

namespace lw::test {
namespace {

const QString kQueue = QStringLiteral("Ledgerwick-Test-PDF");
QString jobFolder;  // where the queue keeps the PDF of each job: the first argument of the test

void settle() {
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// What the operator would see of a message box that came up: it is closed so that the test goes on,
// and counted as a failure of the step that raised it.
class BoxWatch {
public:
    BoxWatch() {
        timer_.setInterval(250);
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            if (QWidget* box = QApplication::activeModalWidget()) {
                seen_.push_back(box->windowTitle());
                box->close();
            }
        });
        timer_.start();
    }
    QStringList taken() { return std::exchange(seen_, {}); }

private:
    QTimer timer_;
    QStringList seen_;
};

QString run(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(30000)) return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

QStringList pdfsIn(const QString& folder) {
    return QDir(folder).entryList({QStringLiteral("job-*.pdf")}, QDir::Files, QDir::Name);
}

// The PDF of the next job the queue finishes, waited for while Qt goes on; empty after 30 seconds.
QString nextJob(const QStringList& before) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 30000) {
        for (const QString& name : pdfsIn(jobFolder))
            if (!before.contains(name)) return QDir(jobFolder).filePath(name);
        QTest::qWait(50);
    }
    return {};
}

QString collapsed(QString text) {
    return text.replace(QRegularExpression(QStringLiteral("\\s+")), " ").trimmed();
}

// A word of the text layer with its box in points from the page's top left.
struct Word {
    QString text;
    double left, top, right;
};

std::vector<Word> wordsOf(const QString& pdf) {
    std::vector<Word> words;
    const QString html =
        run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    static const QRegularExpression word(QStringLiteral(
        "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">([^<]*)</word>"));
    for (auto m = word.globalMatch(html); m.hasNext();) {
        const auto hit = m.next();
        QString text = hit.captured(5);
        text.replace(QStringLiteral("&amp;"), QStringLiteral("&"))
            .replace(QStringLiteral("&lt;"), QStringLiteral("<"))
            .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
            .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
            .replace(QStringLiteral("&#39;"), QStringLiteral("'"));
        words.push_back(
            {text, hit.captured(1).toDouble(), hit.captured(2).toDouble(), hit.captured(3).toDouble()});
    }
    return words;
}

QString utf8(const std::string& cp1252) { return QString::fromStdString(text::cp1252ToUtf8(cp1252)); }

std::string upper(std::string tag) {
    tag = tag.substr(0, tag.find('\xB7'));
    for (char& c : tag) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return tag;
}

// What an operator types into a field, by its type; n makes each value of the form its own.
QString typed(const Control& field, int n) {
    const std::string tag = upper(field.tag);
    const QString number = QString::number(n + 11);
    if (tag == "MONEY" || tag == "SMONEY" || tag == "-MONEY")
        return QStringLiteral("%1.%2").arg(18000 + 1379 * n).arg((n * 37 + 13) % 90 + 10);
    if (tag == "TIN") return QStringLiteral("4%1").arg(12345610 + n * 101);
    if (tag == "EIN") return QStringLiteral("9%1").arg(14234500 + n * 11);
    if (tag == "DATE" || tag == "DATEX") return QStringLiteral("%1/%2/2025").arg(n % 12 + 1).arg(n % 27 + 1);
    if (tag == "%") return QStringLiteral("%1.25").arg(n + 5);
    if (tag == "TPNAME" || tag == "ISSUER" || (tag.empty() && field.multiLine))
        return QStringLiteral("HARRIET Q LOCKWOOD %1\nSUITE %1, 2200 CANAL STREET\nNEW ORLEANS, LA 70130")
            .arg(number);
    if (tag.empty()) return QStringLiteral("REF%1X").arg(4400 + n * 7);
    return {};
}

QWidget* editorOf(ui::FrameWindow& window, const Control& field) {
    ui::FormView* view = window.childView();
    return view ? view->findChild<QWidget*>(ui::FormView::objectNameOf(field)) : nullptr;
}

void clickInto(QWidget* editor) {
    QWidget* target = editor;
    if (auto* box = qobject_cast<QPlainTextEdit*>(editor)) target = box->viewport();
    QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(4, 4));
    settle();
}

// Types a value into every field of the form on the screen that the operator can type into, on the
// page that is on show, as clicks and keys; a click back into the first field edits the last one.
int fillShownFields(ui::FrameWindow& window) {
    Form& form = *program().desktop.activeChild();
    int filled = 0;
    QWidget* first = nullptr;
    for (const auto& owned : form.controls()) {
        const Control& field = *owned;
        if (!field.isTextBox() || !isShown(field) || !field.enabled || field.locked || !field.canTakeFocus())
            continue;
        const QString value = typed(field, filled);
        QWidget* editor = editorOf(window, field);
        if (value.isEmpty() || !editor) continue;
        clickInto(editor);
        if (!field.text.empty() && !field.multiLine) {
            // What the box shows already (box 4 of the W-2, worked out from box 3) is typed over.
            QTest::keyClick(editor, Qt::Key_End);
            QTest::keyClick(editor, Qt::Key_Home, Qt::ShiftModifier);
        }
        const QStringList lines = value.split('\n');
        for (int i = 0; i < lines.size(); ++i) {
            if (i > 0) QTest::keyClick(editor, Qt::Key_Return);
            QTest::keyClicks(editor, lines[i]);
        }
        if (!first) first = editor;
        ++filled;
    }
    if (first) clickInto(first);
    return filled;
}

// A click on a tab of the form's tab control, where the view draws it: two tabs share the strip.
void clickTab(ui::FrameWindow& window, const Control& tabs, int tab) {
    const QRect strip = ui::controlRect(tabs, ui::kScreenScale);
    const int count = static_cast<int>(tabs.items.size());
    const QPoint at(strip.left() + strip.width() * (2 * tab + 1) / (2 * count),
                    strip.top() + ui::tabStripHeight(tabs, ui::kScreenScale) / 2);
    QTest::mouseClick(window.childView(), Qt::LeftButton, {}, at);
    settle();
}

// A field on show as it stood when the form went to the printer: Print gives the first field the focus
// afterwards, which turns a K-1 back to its Top half.
struct ShownField {
    std::string key;
    QString text;
    std::string tag;
    int alignment, left, top, width;
};

std::vector<ShownField> shownFields(const Form& form) {
    std::vector<ShownField> shown;
    for (const auto& owned : form.controls()) {
        const Control& c = *owned;
        if (c.isTextBox() && isShown(c))
            shown.push_back(
                {c.key(), utf8(c.text), upper(c.tag), c.alignment, formLeft(c), formTop(c), c.width});
    }
    return shown;
}

// Every line of every field on show, as the form holds it, stands in the page's text layer.
void expectEveryFieldInText(const std::vector<ShownField>& fields, const QString& pdf) {
    const QString layer =
        collapsed(run(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), pdf, QStringLiteral("-")}));
    ASSERT_FALSE(layer.isEmpty()) << "no text layer in " << pdf.toStdString();
    int checked = 0;
    for (const ShownField& field : fields) {
        for (const QString& line : field.text.split(QRegularExpression(QStringLiteral("[\r\n]+")))) {
            const QString want = collapsed(line);
            if (want.isEmpty()) continue;
            ++checked;
            EXPECT_TRUE(layer.contains(want)) << field.key << ": \"" << want.toStdString()
                                              << "\" is not in the text of " << pdf.toStdString();
        }
    }
    EXPECT_GT(checked, 10) << "too few filled fields to tell anything";
}

// One page of US Letter, either way up.
void expectOneLetterPage(const QString& pdf) {
    const QString info = run(QStringLiteral("pdfinfo"), {pdf});
    EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Pages:\\s+1\\n")))) << info.toStdString();
    const auto size =
        QRegularExpression(QStringLiteral("Page size:\\s+([0-9.]+) x ([0-9.]+) pts")).match(info);
    ASSERT_TRUE(size.hasMatch()) << info.toStdString();
    const double a = size.captured(1).toDouble(), b = size.captured(2).toDouble();
    EXPECT_NEAR(std::min(a, b), 612, 1) << info.toStdString();
    EXPECT_NEAR(std::max(a, b), 792, 1) << info.toStdString();
}

// The form stands on paper at its true size: 20 twips to the point. The right edges of the two amounts
// that lie farthest apart across, and the tops of the two farthest apart down, are as far apart on
// paper as on the form.
void expectTrueSize(const std::vector<ShownField>& fields, const QString& pdf) {
    const std::vector<Word> words = wordsOf(pdf);
    struct Placed {
        const ShownField* field;
        const Word* word;
    };
    std::vector<Placed> amounts;
    for (const ShownField& field : fields) {
        if (field.alignment != 1 || field.text.isEmpty() ||
            (field.tag != "MONEY" && field.tag != "SMONEY" && field.tag != "-MONEY"))
            continue;
        QString digits = field.text;
        digits.remove('$');
        std::vector<const Word*> found;
        for (const Word& word : words)
            if (word.text.endsWith(digits)) found.push_back(&word);
        if (found.size() == 1) amounts.push_back({&field, found.front()});
    }
    ASSERT_GE(amounts.size(), 2u) << "too few amounts found on the page";
    auto farthest = [&](auto along) {
        std::pair<const Placed*, const Placed*> pair{&amounts[0], &amounts[0]};
        for (const Placed& a : amounts)
            for (const Placed& b : amounts)
                if (along(*b.field) - along(*a.field) >
                    along(*pair.second->field) - along(*pair.first->field))
                    pair = {&a, &b};
        return pair;
    };
    const auto across = farthest([](const ShownField& f) { return f.left + f.width; });
    const double wantAcross = (across.second->field->left + across.second->field->width -
                               across.first->field->left - across.first->field->width) /
                              20.0;
    EXPECT_GT(wantAcross, 100);
    EXPECT_NEAR(across.second->word->right - across.first->word->right, wantAcross, 1.5)
        << across.first->field->key << " to " << across.second->field->key;
    const auto down = farthest([](const ShownField& f) { return f.top; });
    const double wantDown = (down.second->field->top - down.first->field->top) / 20.0;
    EXPECT_GT(wantDown, 50);
    EXPECT_NEAR(down.second->word->top - down.first->word->top, wantDown, 1.5)
        << down.first->field->key << " to " << down.second->field->key;
}

// The frame's Print button, pressed; the PDF the queue made of the page.
QString print(ui::FrameWindow& window) {
    const QStringList before = pdfsIn(jobFolder);
    QAbstractButton* button = nullptr;
    for (QAbstractButton* each : window.panelView()->findChildren<QAbstractButton*>())
        if (each->text() == QStringLiteral("Print")) button = each;
    if (!button) return {};
    QTest::mouseClick(button, Qt::LeftButton);
    settle();
    return nextJob(before);
}

void checkPrinted(ui::FrameWindow& window, BoxWatch& boxes, const char* what) {
    SCOPED_TRACE(what);
    const std::vector<ShownField> fields = shownFields(*program().desktop.activeChild());
    const QString pdf = print(window);
    EXPECT_EQ(boxes.taken(), QStringList()) << "a box came up on Print";
    ASSERT_FALSE(pdf.isEmpty()) << "the queue made no PDF in " << jobFolder.toStdString();
    expectOneLetterPage(pdf);
    expectEveryFieldInText(fields, pdf);
    expectTrueSize(fields, pdf);
}

void open(ui::FrameWindow& window, const char* item) {
    QAction* action = window.menuAction(QString::fromLatin1(item));
    ASSERT_NE(action, nullptr) << item;
    action->trigger();
    settle();
}

void printThroughTheQueue(ui::FrameWindow& window) {
    BoxWatch boxes;
    window.activateWindow();
    QApplication::setActiveWindow(&window);
    settle();

    // The configuration form is the first on the screen: its list names the queue, and choosing it
    // makes it the printer of every Print.
    ASSERT_EQ(program().desktop.activeChild()->name(), "F1_Configure");
    auto* printers = window.findChild<QComboBox*>(QStringLiteral("cbxPrinters"));
    ASSERT_NE(printers, nullptr);
    const int queue = printers->findText(kQueue);
    ASSERT_GE(queue, 0) << "the configuration form does not list the queue " << kQueue.toStdString();
    emit printers->activated(queue);
    settle();
    EXPECT_EQ(program().g.choices.printerName, kQueue.toStdString());

    open(window, "mnuW2");
    ASSERT_EQ(program().desktop.activeChild()->name(), "TF_W2");
    EXPECT_GT(fillShownFields(window), 15);
    EXPECT_EQ(boxes.taken(), QStringList()) << "a box came up while the W-2 was filled";
    checkPrinted(window, boxes, "the W-2");

    open(window, "mnuK11065");
    Form& k1 = *program().desktop.activeChild();
    ASSERT_EQ(k1.name(), "TF_K11065");
    EXPECT_GT(fillShownFields(window), 10);
    ASSERT_EQ(tabOf(k1.at("SSTab1")), 0);
    checkPrinted(window, boxes, "the Top half of the K-1");
    // The Bottom half: its tab clicked, as the operator turns the page, then filled and printed.
    const Control& tabs = k1.at("SSTab1");
    ASSERT_EQ(tabOf(tabs), 0);
    clickTab(window, tabs, 1);
    ASSERT_EQ(tabOf(tabs), 1);
    EXPECT_GT(fillShownFields(window), 10);
    // Leaving the last amount of the form goes back to the Top half, as the K-1 does: the operator
    // turns the page again.
    if (tabOf(tabs) != 1) clickTab(window, tabs, 1);
    ASSERT_EQ(tabOf(tabs), 1);
    checkPrinted(window, boxes, "the Bottom half of the K-1");
}

TEST(CupsPrint, FormsGoThroughTheQueueAsLetterPagesAtTheirTrueSizeWithTheirText) {
    ASSERT_FALSE(jobFolder.isEmpty()) << "the test is given the folder of the queue's PDFs";
    ASSERT_FALSE(qEnvironmentVariableIsEmpty("CUPS_SERVER")) << "the test is given the server's socket";
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    qputenv("LEDGERWICK_ROOT", root.path().toLocal8Bit());
    static std::string edition = (QApplication::applicationDirPath() + "/Ledgerwick_Venturo").toStdString();
    static char* argv[] = {edition.data(), nullptr};
    bool ran = false;
    ui::WindowProgramWatch watch;
    watch.started = [&](ui::FrameWindow& window, ui::QtPlatformPort&, ui::QtUiPort&) {
        ran = true;
        printThroughTheQueue(window);
        return false;
    };
    ui::runWindowProgram(1, argv, watch);
    EXPECT_TRUE(ran) << "the window program did not start";
}

}  // namespace
}  // namespace lw::test

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    if (argc > 1) lw::test::jobFolder = QString::fromLocal8Bit(argv[1]);
    return RUN_ALL_TESTS();
}
