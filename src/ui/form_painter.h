#pragma once
// Draws a model form onto any QPainter: the screen, the clipboard picture and the printer share it.

#include <QFont>
#include <QPainter>
#include <QRect>
#include <vector>

#include "model/form.h"

namespace lw::ui {

// Twips to a pixel on a 96 dpi screen.
constexpr double kTwipsPerPixel = 15.0;
constexpr double kScreenScale = 1.0 / kTwipsPerPixel;

// Makes Tahoma and Arial Narrow fall back to their metric twins where those are installed. Runs once.
void installFontSubstitutes();

// The font of a control or a form at a scale of device pixels per twip.
QFont scaledFont(const std::string& name, double points, bool bold, bool italic, double scale);
QFont controlFont(const Control& control, double scale);

// Whole device pixels of a length or position in twips.
int toPixels(int twips, double scale);
QRect controlRect(const Control& control, double scale);
// Everything a control's painting may touch: its rectangle (a line's two ends) and the width of its
// border and strokes.
QRect paintedExtent(const Control& control, double scale);
QSize formSize(const Form& form, double scale);
// What a label writes and the rectangle it writes it in, word-wrapped from the top.
struct LabelLayout {
    QRect box;
    QString text;
};
LabelLayout labelLayout(const Control& label, double scale);
// Where a text box writes its text: inside its border, with the small margins of an edit control.
QRect textArea(const Control& control, double scale);
// Where the box prints the "$" of an amount whose text carries none: in the room left of the field.
QRect boxDollarSignRect(const Control& field, double scale);
QFont boxDollarSignFont(double scale);

// The kinds a form view hosts as real editors instead of painting them.
bool hasEditor(ControlKind kind);
// Controls in the order they are drawn: containers first, then the light controls, then the boxes.
std::vector<const Control*> paintOrder(const Form& form);

// The height of a tab control's strip of captions, and the height of a row of a grid or list.
int tabStripHeight(const Control& control, double scale);
int rowHeight(const Control& control, double scale);
// The entry of a tab control, grid or list under a point of the form, or -1.
int entryAt(const Control& control, QPoint point, double scale);

// The caption of a button with its access key marker taken out: "&Save" shows "Save", "&&" an "&".
QString withoutAccessMarks(const QString& caption);

class FormPainter {
public:
    explicit FormPainter(double scale = kScreenScale) : scale_(scale) {}

    // Paints the form's background and its visible controls; with skipEditors the kinds a view hosts
    // as widgets are left out.
    void paintForm(QPainter& painter, const Form& form, bool skipEditors = false) const;
    // As paintForm, within one area only: the background there and the controls that reach into it.
    void paintArea(QPainter& painter, const Form& form, const QRect& area, bool skipEditors) const;
    void paintControl(QPainter& painter, const Control& control) const;
    // The "$" a box prints beside a field; the field itself may be an editor of the view.
    void paintBoxDollarSign(QPainter& painter, const Control& field) const;

private:
    void paintLabel(QPainter& p, const Control& c, const QRect& r) const;
    void paintCheckLabel(QPainter& p, const Control& c, const QRect& r) const;
    void paintShape(QPainter& p, const Control& c, const QRect& r) const;
    void paintLine(QPainter& p, const Control& c) const;
    void paintFrame(QPainter& p, const Control& c, const QRect& r) const;
    void paintTextBox(QPainter& p, const Control& c, const QRect& r) const;
    void paintButton(QPainter& p, const Control& c, const QRect& r) const;
    void paintOption(QPainter& p, const Control& c, const QRect& r) const;
    void paintCombo(QPainter& p, const Control& c, const QRect& r) const;
    void paintPicture(QPainter& p, const Control& c, const QRect& r) const;
    void paintTabs(QPainter& p, const Control& c, const QRect& r) const;
    void paintRows(QPainter& p, const Control& c, const QRect& r) const;

    QPen borderPen(const Control& c, QColor color) const;
    int px(int pixelsAt96) const;  // a size fixed in screen pixels, at this painter's scale

    double scale_;
};

}  // namespace lw::ui
