// The faces the forms were laid out for: Tahoma from Debian's Wine fonts, Arial Narrow as Liberation
// Sans Narrow, each a metric twin of the original. tools/install-deps installs both packages.
#include <QFileInfo>
#include <QFontInfo>

#include "gui_fixture.h"
#include "ui/form_painter.h"

namespace lw::ui::test {
namespace {

TEST(FontFaces, TheFormsTahomaIsWinesMetricTwin) {
    ASSERT_TRUE(QFileInfo::exists(QStringLiteral("/usr/share/wine/fonts/tahoma.ttf")))
        << "the package fonts-wine is missing: tools/install-deps installs it";
    const QFontInfo regular(scaledFont("Tahoma", 10, false, false, kScreenScale));
    EXPECT_EQ(regular.family(), QStringLiteral("Tahoma"));
    const QFontInfo bold(scaledFont("Tahoma", 14, true, false, kScreenScale));
    EXPECT_EQ(bold.family(), QStringLiteral("Tahoma")) << "bold text keeps the face, made heavier";
}

TEST(FontFaces, ArialNarrowIsLiberationSansNarrow) {
    const QFontInfo narrow(scaledFont("Arial Narrow", 9, false, false, kScreenScale));
    EXPECT_EQ(narrow.family(), QStringLiteral("Liberation Sans Narrow"));
    // The forms name it without the blank.
    const QFontInfo asNamed(scaledFont("ArialNarrow", 9, false, false, kScreenScale));
    EXPECT_EQ(asNamed.family(), QStringLiteral("Liberation Sans Narrow"));
}

}  // namespace
}  // namespace lw::ui::test
