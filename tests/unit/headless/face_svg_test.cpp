#include "headless/face_svg.h"

#include <gtest/gtest.h>

#include <QString>
#include <QXmlStreamReader>
#include <algorithm>
#include <string>
#include <vector>

#include "catalogue/catalogue_table.h"
#include "face/face_description.h"
#include "forms/register_forms.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "test_program.h"
#include "text/cp1252.h"

namespace lw::headless {
namespace {

const auto* const kQt = lw::testing::addQtOffscreen();

std::vector<std::string> menuItems() {
    std::vector<std::string> items;
    for (const CatalogueEntry& entry : catalogue())
        if (std::string(entry.menuItem).rfind("mnu", 0) == 0) items.push_back(entry.menuItem);
    return items;
}

struct ReadSvg {
    bool wellFormed = false;
    std::vector<std::string> texts;  // of every <text>, in order
    int images = 0;
    int rects = 0;
};

ReadSvg readSvg(const std::string& svg) {
    ReadSvg read;
    QXmlStreamReader xml(QString::fromStdString(svg));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("text")) read.texts.push_back(xml.readElementText().toStdString());
        if (xml.name() == QLatin1String("image")) ++read.images;
        if (xml.name() == QLatin1String("rect")) ++read.rects;
    }
    read.wellFormed = !xml.hasError();
    return read;
}

std::string family(const face::TextFace& face) { return "Lw " + face.name; }

TEST(PngDataUrl, EncodesInBase64WithPadding) {
    EXPECT_EQ(pngDataUrl({'M', 'a', 'n'}), "data:image/png;base64,TWFu");
    EXPECT_EQ(pngDataUrl({'M', 'a'}), "data:image/png;base64,TWE=");
    EXPECT_EQ(pngDataUrl({'M'}), "data:image/png;base64,TQ==");
}

class EachMenuFormAsSvg : public ::testing::TestWithParam<std::string> {};

// Every line of text the engine laid out is a text element of the drawing, with the field's text among
// them, characters the markup reserves included.
TEST_P(EachMenuFormAsSvg, WritesEveryRunOfTextAsText) {
    lw::testing::TestProgram test;
    registerAllForms();
    test.start();
    test.program->desktop.chooseMenu(GetParam());
    Form* form = test.program->desktop.activeChild();
    ASSERT_NE(form, nullptr);
    std::vector<std::string> typed;
    int n = 0;
    for (const auto& c : form->controls()) {
        if (c->kind != ControlKind::TextBox || !isShown(*c)) continue;
        c->text = "F" + std::to_string(n++) + "<&>\xE9";
        typed.push_back(text::cp1252ToUtf8(c->text));
    }
    TrueTypeFaces faces;
    PictureFiles pictures(faces);
    const face::FaceDescription face =
        face::describeFace(*form, face::FaceRequest{300.0 / 1440, false, {}}, faces);
    const ReadSvg read = readSvg(faceSvg(face, {"10in", "5in"}, family, pictures));
    ASSERT_TRUE(read.wellFormed) << form->name();

    std::vector<std::string> runs;
    int pictureItems = 0, fills = 0;
    for (const face::FacePiece& piece : face.pieces)
        for (const face::FaceItem& item : piece.items) {
            if (const auto* text = std::get_if<face::TextItem>(&item))
                for (const face::TextRun& run : text->runs)
                    if (!run.text.empty()) runs.push_back(text::cp1252ToUtf8(run.text));
            if (std::holds_alternative<face::PictureItem>(item)) ++pictureItems;
            if (std::holds_alternative<face::FillItem>(item) ||
                std::holds_alternative<face::BorderItem>(item))
                ++fills;
        }
    EXPECT_EQ(read.texts, runs) << form->name();
    EXPECT_GE(read.rects, fills) << form->name();
    EXPECT_LE(read.images, pictureItems) << form->name();
    for (const std::string& each : typed) {
        const bool found = std::any_of(read.texts.begin(), read.texts.end(), [&](const std::string& t) {
            return t.find(each) != std::string::npos;
        });
        EXPECT_TRUE(found) << form->name() << " lacks " << each;
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, EachMenuFormAsSvg, ::testing::ValuesIn(menuItems()));

}  // namespace
}  // namespace lw::headless
