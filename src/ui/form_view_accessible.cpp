#include "ui/form_view_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <map>
#include <vector>

#include "model/containers.h"
#include "catalogue/field_names.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

bool isPaintedCheckBox(const Control& control) {
    return control.kind == ControlKind::CheckLabel && isShown(control);
}

// A check box drawn by the view: a click on it reaches the model as any click does.
class PaintedCheckBox : public QAccessibleInterface {
public:
    PaintedCheckBox(FormView* view, const Control* control) : view_(view), control_(control) {}

    bool isValid() const override {
        if (!view_ || !view_->form()) return false;
        for (const auto& owned : view_->form()->controls())
            if (owned.get() == control_) return true;
        return false;
    }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view_ ? view_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(view_.data());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text t) const override {
        if (!isValid()) return {};
        if (t == QAccessible::Name) return toQString(accessibleNameOf(*view_->form(), *control_));
        if (t == QAccessible::Description) return toQString(control_->toolTipText);
        if (t == QAccessible::Value) return toQString(control_->caption);
        return {};
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect local = controlRect(*control_, kScreenScale);
        return QRect(view_->mapToGlobal(local.topLeft()), local.size());
    }
    QAccessible::Role role() const override { return QAccessible::CheckBox; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.checkable = true;
        state.checked = isValid() && !control_->caption.empty();
        state.invisible = !isValid();
        return state;
    }

private:
    QPointer<FormView> view_;
    const Control* control_;
};

// The view: its editors as Qt knows them, then the check boxes it paints.
class FormViewInterface : public QAccessibleWidget {
public:
    explicit FormViewInterface(FormView* view) : QAccessibleWidget(view, QAccessible::Form) {}

    int childCount() const override {
        return QAccessibleWidget::childCount() + static_cast<int>(paintedBoxes().size());
    }
    QAccessibleInterface* child(int index) const override {
        const int widgets = QAccessibleWidget::childCount();
        if (index < widgets) return QAccessibleWidget::child(index);
        const std::vector<const Control*> boxes = paintedBoxes();
        const std::size_t at = static_cast<std::size_t>(index - widgets);
        if (at >= boxes.size()) return nullptr;
        return interfaceOf(boxes[at]);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const int widgets = QAccessibleWidget::childCount();
        const std::vector<const Control*> boxes = paintedBoxes();
        for (std::size_t i = 0; i < boxes.size(); ++i)
            if (interfaceOf(boxes[i]) == child) return widgets + static_cast<int>(i);
        return QAccessibleWidget::indexOfChild(child);
    }

private:
    FormView* view() const { return static_cast<FormView*>(widget()); }
    std::vector<const Control*> paintedBoxes() const {
        std::vector<const Control*> boxes;
        if (const Form* form = view()->form())
            for (const auto& owned : form->controls())
                if (isPaintedCheckBox(*owned)) boxes.push_back(owned.get());
        return boxes;
    }
    // One interface for each box for as long as the view shows it, kept by Qt's registry.
    QAccessibleInterface* interfaceOf(const Control* box) const {
        auto found = boxes_.find(box);
        if (found != boxes_.end()) {
            QAccessibleInterface* known = QAccessible::accessibleInterface(found->second);
            if (known && known->isValid()) return known;
            if (known) QAccessible::deleteAccessibleInterface(found->second);
        }
        auto* made = new PaintedCheckBox(view(), box);
        boxes_[box] = QAccessible::registerAccessibleInterface(made);
        return made;
    }
    mutable std::map<const Control*, QAccessible::Id> boxes_;
};

QAccessibleInterface* formViewFactory(const QString&, QObject* object) {
    if (auto* view = qobject_cast<FormView*>(object)) return new FormViewInterface(view);
    return nullptr;
}

}  // namespace

void installFormViewAccessibility() {
    static bool installed = false;
    if (installed) return;
    installed = true;
    QAccessible::installFactory(formViewFactory);
}

}  // namespace lw::ui
