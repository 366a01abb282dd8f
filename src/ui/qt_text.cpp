#include "ui/qt_text.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "text/cp1252.h"

namespace lw::ui {

QString toQString(const std::string& cp1252) { return QString::fromStdString(text::cp1252ToUtf8(cp1252)); }

std::optional<std::string> toCp1252(const QString& text) { return text::utf8ToCp1252(text.toStdString()); }

std::string toCp1252Lossy(const QString& text) {
    std::string out;
    out.reserve(static_cast<size_t>(text.size()));
    for (uint codePoint : text.toUcs4()) {
        std::optional<std::string> one =
            toCp1252(QString::fromUcs4(reinterpret_cast<const char32_t*>(&codePoint), 1));
        out += one ? *one : std::string("?");
    }
    return out;
}

QColor toQColor(Color color) { return QColor(redOf(color), greenOf(color), blueOf(color)); }

QString toFilePath(const std::string& path) {
    const QString native = QFile::decodeName(QByteArray::fromStdString(path));
    if (QFileInfo::exists(native)) return native;
    return toQString(path);
}

int editorPosition(const std::string& cp1252, int modelPosition) {
    int end = std::clamp(modelPosition, 0, static_cast<int>(cp1252.size()));
    int position = 0;
    for (int i = 0; i < end; ++i) {
        if (cp1252[i] == '\r' && i + 1 < static_cast<int>(cp1252.size()) && cp1252[i + 1] == '\n') continue;
        ++position;
    }
    return position;
}

int modelPosition(const std::string& cp1252, int editorPosition) {
    int position = 0;
    int i = 0;
    const int size = static_cast<int>(cp1252.size());
    while (i < size && position < editorPosition) {
        if (cp1252[i] == '\r' && i + 1 < size && cp1252[i + 1] == '\n') ++i;
        ++i;
        ++position;
    }
    return i;
}

QString withLineFeeds(const std::string& cp1252) {
    QString text = toQString(cp1252);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

}  // namespace lw::ui
