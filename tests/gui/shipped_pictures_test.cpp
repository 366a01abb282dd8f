// The pictures the build places beside the program: the two training card backgrounds and sixteen
// grey-scale portraits, drawn the same on every build.
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "gui_fixture.h"
#include "pictures.h"

namespace lw::ui::test {
namespace {

QByteArray digestOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256);
}

QStringList pictureNames() {
    QStringList names{QStringLiteral("SSN.jpg"), QStringLiteral("ITIN.jpg")};
    for (int i = 1; i <= 16; ++i) names << QStringLiteral("P%1GS.jpg").arg(i);
    return names;
}

TEST(ShippedPictures, TheBuildPlacesEveryPictureBesideTheProgram) {
    const QDir beside(QStringLiteral(LW_BIN_DIR));
    for (const QString& name : pictureNames()) {
        const QImage picture(beside.filePath(name));
        ASSERT_FALSE(picture.isNull()) << name.toStdString();
        if (name.startsWith(QLatin1Char('P'))) {
            EXPECT_EQ(picture.size(), QSize(150, 200)) << name.toStdString();
            EXPECT_TRUE(picture.allGray()) << name.toStdString() << " is a grey-scale portrait";
        } else {
            EXPECT_EQ(picture.size(), QSize(578, 360)) << name.toStdString();
        }
    }
}

TEST(ShippedPictures, EveryPortraitDiffersAndEachIsDrawnTheSameTwice) {
    QTemporaryDir first;
    QTemporaryDir second;
    ASSERT_TRUE(drawShippedPictures(first.path()));
    ASSERT_TRUE(drawShippedPictures(second.path()));
    QSet<QByteArray> seen;
    for (const QString& name : pictureNames()) {
        const QByteArray digest = digestOf(QDir(first.path()).filePath(name));
        ASSERT_FALSE(digest.isEmpty()) << name.toStdString();
        EXPECT_EQ(digest, digestOf(QDir(second.path()).filePath(name))) << name.toStdString();
        EXPECT_FALSE(seen.contains(digest)) << name.toStdString() << " repeats another picture";
        seen.insert(digest);
    }
}

}  // namespace
}  // namespace lw::ui::test
