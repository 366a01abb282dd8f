#pragma once
// A model form on the screen: its static controls painted, its boxes and buttons as real editors whose
// input goes to the model, which alone decides what they then show.

#include <QHash>
#include <QImage>
#include <QRegion>
#include <QWidget>
#include <map>
#include <string>
#include <vector>

#include "catalogue/field_names.h"
#include "model/form.h"
#include "model/look_tracker.h"
#include "ui/face_cache.h"
#include "ui/input_bridge.h"

class QKeyEvent;
class QLineEdit;
class QMouseEvent;

namespace lw::ui {

class FormView : public QWidget, public Refreshable {
    Q_OBJECT
public:
    explicit FormView(Form& form, QWidget* parent = nullptr);
    ~FormView() override;

    Form* form() const { return form_; }
    // Copies the properties of the controls whose look changed to their widgets, repaints the rest of
    // what changed, and puts Qt's focus where the model has it.
    void refresh() override;
    // Shows only the top-left part of the form, as the frame's panel shows picLegends alone.
    void setExtent(const QSize& pixels) { extent_ = pixels; }
    // The form has been unloaded: the view lets go of it and shows nothing more.
    void detach();
    // The view goes: its face is kept for the next opening of its form.
    void keepFace();
    // The view goes: the next view takes over its one-line fields, and this one shows nothing more.
    void releaseEditors();

    QWidget* editorOf(const Control& control) const;
    // What a screen reader says of a field, and the caption that shows its box; named once per form.
    const FieldName* fieldNameOf(const Control& control) const;
    // Input from a screen reader, as a click or a choice with the mouse would give it.
    void clickFromAssistant(Control& control);
    void chooseFromAssistant(Control& control, const std::string& entry);
    // The painted face as it stands: the controls that have no editor, drawn once and kept.
    QImage face() const;
    // The face as the cache of faces holds it.
    SharedFace keptFace() const { return keptFace_; }
    // "Text1(5)" becomes "Text1_5": the object name of the control's widget.
    static QString objectNameOf(const Control& control);
    static std::vector<FormView*> viewsOf(const Form& form);
    // Gives every editor of every view the name a screen reader says of it.
    static void nameFieldsOfEveryView();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    // The desktop the form stands on; none once it has left it or the program has ended.
    Desktop* desktop() const;
    QSize extent_;
    // The widget that edits a control, by its kind: a field of one line or of lines, a list to choose
    // from, a button or an option button; none for a control the face paints.
    QWidget* createEditor(Control& control);
    QWidget* createLinesEditor(Control& control);
    QWidget* createLineField(Control& control);
    QWidget* createComboBox(Control& control);
    QWidget* createCommandButton(Control& control);
    QWidget* createOptionButton(Control& control);
    // Names the editor, leaves the focus to the model, and starts watching it.
    void adoptEditor(Control& control, QWidget* editor);
    // Where a control's editor lives: the layer of the page of a tab control it lies on, else the view.
    QWidget* hostOf(const Control& control);
    // Shows the layer of each page whose page is on show, and hides the others.
    void mirrorPages();
    QLineEdit* takeIdleField(QWidget* host);
    // Moves the idle fields to the window of the view that let them go, so that they outlive that view.
    void shelterIdleFields();
    void mirror(Control& control, QWidget* editor);
    void mirrorText(Control& control, QWidget* editor);
    void placeFocus();
    void takeSelection(Control& control);
    bool isModelFocus(const Control& control) const;
    Control* controlAt(QPoint point) const;

    // Input, each returning whether the event was used up.
    bool forwardKey(Control* control, QKeyEvent* event);
    bool forwardTextMouse(Control& control, QEvent* event);
    bool forwardComboMouse(Control& control, QEvent* event);
    void forwardCommitted(const QString& text);

    // The fixed face: every painted control drawn once; where controls change, a face is made from it
    // with those places painted again. Faces are shared with the cache of faces and never painted on.
    void ensureFace();
    // Paints areas of the face as the form now stands; the whole face, described once.
    CompactFace::AreaPainter facePainter() const;
    CompactFace::AreaPainter wholeFacePainter() const;
    void showLook(std::size_t look, const QRegion& damaged);
    std::size_t currentFaceLook() const;

    Form* form_;
    mutable std::map<const Control*, FieldName> names_;
    mutable std::map<const Control*, std::string> namedCaptions_;  // the captions the names were made of
    mutable bool named_ = false;
    // A caption that names a box changed: the fields are named anew, for a listener.
    void renameFields();
    void nameFields();
    LookTracker looks_;
    std::size_t formLook_ = 0;
    QHash<const Control*, QRect> paintedAt_;  // where each painted control was last drawn
    SharedFace keptFace_;                     // shared with the cache of faces
    std::size_t faceLook_ = 0;  // what the face shows, as faceLookOf() had it when the face was last true
    QHash<const Control*, QWidget*> editors_;
    // Showing a widget under the mouse makes Qt ask the window system where the pointer is, and a page of
    // a K-1 shows fifty fields at once: the editors of a page live on a layer shown and hidden as one.
    std::map<std::pair<const Control*, int>, QWidget*> pageLayers_;
    QHash<const QObject*, Control*> controlOfWidget_;  // editors and the viewports of multi-line boxes
    bool refreshing_ = false;
    bool retired_ = false;
};

}  // namespace lw::ui
