#pragma once
// The editor of a field of several lines: it breaks its lines where the painter breaks them on paper,
// its lines being made as wide as the painted ones in the measure of its own face.

#include <QPlainTextEdit>

namespace lw::ui {

class LinesEditor : public QPlainTextEdit {
public:
    explicit LinesEditor(QWidget* parent = nullptr);

    // Lines of this many pixels: whole pixels are kept free on the side away from the text's alignment
    // (shared by both sides when it is centred), the rest shared by the margins of the text.
    void setLineWidth(qreal pixels, Qt::Alignment horizontal = Qt::AlignLeft);

protected:
    // The room kept free beside the lines is the field's too: it takes the colour of the field.
    void changeEvent(QEvent* event) override;
};

}  // namespace lw::ui
