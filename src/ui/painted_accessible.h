#pragma once
// What a screen reader finds of the parts of a form the view paints itself rather than give a widget:
// check boxes, the captions of the boxes, and the tabs of a tab control. Each stands for one control of
// the model (a tab for one entry of its control) and lives as long as the view shows it.

#include <QAccessibleInterface>
#include <QPointer>

#include "model/control.h"
#include "ui/form_view.h"

namespace lw::ui {

// The interface of a painted part by its control and entry; made on first asking, kept by Qt.
QAccessibleInterface* paintedInterfaceOf(FormView* view, const Control* control, int entry = -1);

class PaintedPart : public QAccessibleInterface {
public:
    PaintedPart(FormView* view, const Control* control) : view_(view), control_(control) {}

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::State state() const override;

protected:
    QRect onScreen(const QRect& local) const;
    QPointer<FormView> view_;
    const Control* control_;
};

// A check box drawn by the view; pressing it is a click, as the mouse gives it.
class PaintedCheckBox : public PaintedPart, public QAccessibleActionInterface {
public:
    using PaintedPart::PaintedPart;
    QString text(QAccessible::Text t) const override;
    QAccessible::Role role() const override { return QAccessible::CheckBox; }
    QAccessible::State state() const override;
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
};

// The caption of a box, read as text; it labels the fields of its box.
class PaintedCaption : public PaintedPart {
public:
    using PaintedPart::PaintedPart;
    QString text(QAccessible::Text t) const override;
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override;
};

// A tab control drawn by the view: the list of its tabs.
class PaintedTabs : public PaintedPart {
public:
    using PaintedPart::PaintedPart;
    QString text(QAccessible::Text t) const override;
    QAccessible::Role role() const override { return QAccessible::PageTabList; }
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QRect rect() const override;
};

// One tab; pressing it turns to its page, as a click on it does.
class PaintedTab : public PaintedPart, public QAccessibleActionInterface {
public:
    PaintedTab(FormView* view, const Control* tabs, int entry) : PaintedPart(view, tabs), entry_(entry) {}
    QString text(QAccessible::Text t) const override;
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QAccessible::State state() const override;
    QAccessibleInterface* parent() const override;
    QRect rect() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    int entry_;
};

}  // namespace lw::ui
