#pragma once
// The edge between the program's Windows-1252 text and colours and Qt's Unicode strings and QColor.

#include <QColor>
#include <QString>
#include <optional>
#include <string>

#include "model/color.h"

namespace lw::ui {

QString toQString(const std::string& cp1252);
// Nothing when a character cannot be held by the code page.
std::optional<std::string> toCp1252(const QString& text);
// As toCp1252, with "?" for every character the code page cannot hold: for names the machine gives us.
std::string toCp1252Lossy(const QString& text);

QColor toQColor(Color color);

// A path the program holds: the file system's own bytes when such a file exists, else code page text.
QString toFilePath(const std::string& path);

// Positions in a multi-line box: the program counts CR LF as two characters, an editor as one.
int editorPosition(const std::string& cp1252, int modelPosition);
int modelPosition(const std::string& cp1252, int editorPosition);
// Text as Qt breaks its lines: every CR LF, or lone CR, of the program as one line feed.
QString withLineFeeds(const std::string& cp1252);

}  // namespace lw::ui
