// Build-time maker of the files that ship around the program: the desktop icons drawn from the
// editions' .ICO files, the user guide turned from Markdown into PDF with Qt's own text document, and
// the pictures of the cards and licenses.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextStream>
#include <iostream>

#include "pictures.h"

namespace {

int usage() {
    std::cerr << "usage: build-assets icons ICO.ICO THEME-FOLDER NAME\n"
                 "       build-assets guide GUIDE.md PICTURES-FOLDER OUT.pdf EDITION EXTENSION FORMS-FOLDER\n"
                 "       build-assets pictures FOLDER\n";
    return 2;
}

// The largest picture the icon file holds.
QImage largestOf(const QString& path) {
    QImageReader reader(path);
    QImage best;
    for (int i = 0; i < std::max(1, reader.imageCount()); ++i) {
        if (i > 0 && !reader.jumpToImage(i)) break;
        const QImage image = reader.read();
        if (!image.isNull() && image.width() > best.width()) best = image;
    }
    return best;
}

int makeIcons(const QString& ico, const QString& theme, const QString& name) {
    const QImage source = largestOf(ico);
    if (source.isNull()) {
        std::cerr << "build-assets: cannot read " << ico.toStdString() << "\n";
        return 1;
    }
    for (int side : {16, 24, 32, 48, 64}) {
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(theme).arg(side);
        QDir().mkpath(folder);
        const QImage scaled = source.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (!scaled.save(folder + QLatin1Char('/') + name + QStringLiteral(".png"))) {
            std::cerr << "build-assets: cannot write the icons in " << folder.toStdString() << "\n";
            return 1;
        }
    }
    return 0;
}

// Puts the pictures into the document. One wider than the page is shown at the page's width; narrower
// ones keep their own size. False when a picture is missing.
bool placePictures(QTextDocument& document, const QDir& pictures) {
    bool missing = false;
    constexpr double kPageWidth = 480;  // of the text, in the document's pixels as the page lays them out
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QTextFragment fragment = it.fragment();
            if (!fragment.charFormat().isImageFormat()) continue;
            QTextImageFormat image = fragment.charFormat().toImageFormat();
            const QImage picture(pictures.filePath(image.name()));
            if (picture.isNull()) {
                std::cerr << "build-assets: the guide shows " << image.name().toStdString()
                          << ", which is missing\n";
                missing = true;
                continue;
            }
            document.addResource(QTextDocument::ImageResource, QUrl(image.name()), picture);
            if (picture.width() <= kPageWidth) continue;
            image.setWidth(kPageWidth);
            image.setHeight(kPageWidth * picture.height() / picture.width());
            QTextCursor cursor(&document);
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(image);
        }
    }
    return !missing;
}

// Each chapter (a heading of the second level) starts on a page of its own.
void breakBeforeChapters(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() != 2) continue;
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        cursor.setBlockFormat(format);
    }
}

// The guide is one text for both editions; the names that differ stand in it as {{EDITION}},
// {{EXTENSION}} and {{FORMS_FOLDER}}.
int makeGuide(const QStringList& a) {
    QFile file(a[0]);
    if (!file.open(QIODevice::ReadOnly)) {
        std::cerr << "build-assets: cannot read " << a[0].toStdString() << "\n";
        return 1;
    }
    QString markdown = QString::fromUtf8(file.readAll());
    markdown.replace(QStringLiteral("{{EDITION}}"), a[3])
        .replace(QStringLiteral("{{EXTENSION}}"), a[4])
        .replace(QStringLiteral("{{FORMS_FOLDER}}"), a[5]);
    QTextDocument document;
    document.setBaseUrl(QUrl::fromLocalFile(QDir(a[1]).absolutePath() + QLatin1Char('/')));
    document.setDefaultFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    document.setMarkdown(markdown);
    if (!placePictures(document, QDir(a[1]))) return 1;
    breakBeforeChapters(document);
    QPdfWriter writer(a[2]);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    writer.setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Millimeter);
    writer.setTitle(QStringLiteral("Ledgerwick %1 User Guide").arg(a[3]));
    writer.setCreator(QStringLiteral("Ledgerwick"));
    document.print(&writer);
    if (!QFileInfo(a[2]).exists()) {
        std::cerr << "build-assets: cannot write " << a[2].toStdString() << "\n";
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.size() == 4 && args[0] == QLatin1String("icons")) return makeIcons(args[1], args[2], args[3]);
    if (args.size() == 7 && args[0] == QLatin1String("guide")) return makeGuide(args.mid(1));
    if (args.size() == 2 && args[0] == QLatin1String("pictures")) return drawShippedPictures(args[1]) ? 0 : 1;
    return usage();
}
