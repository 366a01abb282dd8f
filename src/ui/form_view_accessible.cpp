#include "ui/form_view_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLineEdit>
#include <QRadioButton>
#include <vector>

#include "model/containers.h"
#include "ui/form_view.h"
#include "ui/painted_accessible.h"

namespace lw::ui {

namespace {

bool hasWords(const std::string& caption) {
    for (char c : caption)
        if (c != ' ' && c != '\r' && c != '\n' && c != '|' && c != '&') return true;
    return false;
}

// What the view paints that a screen reader should find: check boxes, captions and tab strips.
bool isPaintedPart(const Control& control) {
    if (!isShown(control)) return false;
    switch (control.kind) {
        case ControlKind::CheckLabel:
        case ControlKind::TabControl:
            return true;
        case ControlKind::Label:
            return hasWords(control.caption);
        default:
            return false;
    }
}

// The view: its editors as Qt knows them, then the parts it paints.
class FormViewInterface : public QAccessibleWidget {
public:
    explicit FormViewInterface(FormView* view) : QAccessibleWidget(view, QAccessible::Form) {}

    int childCount() const override {
        return QAccessibleWidget::childCount() + static_cast<int>(paintedParts().size());
    }
    QAccessibleInterface* child(int index) const override {
        const int widgets = QAccessibleWidget::childCount();
        if (index < widgets) return QAccessibleWidget::child(index);
        const std::vector<const Control*> parts = paintedParts();
        const std::size_t at = static_cast<std::size_t>(index - widgets);
        if (at >= parts.size()) return nullptr;
        return paintedInterfaceOf(view(), parts[at]);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const int widgets = QAccessibleWidget::childCount();
        const std::vector<const Control*> parts = paintedParts();
        for (std::size_t i = 0; i < parts.size(); ++i)
            if (paintedInterfaceOf(view(), parts[i]) == child) return widgets + static_cast<int>(i);
        return QAccessibleWidget::indexOfChild(child);
    }

private:
    FormView* view() const { return static_cast<FormView*>(widget()); }
    std::vector<const Control*> paintedParts() const {
        std::vector<const Control*> parts;
        if (const Form* form = view()->form())
            for (const auto& owned : form->controls())
                if (isPaintedPart(*owned)) parts.push_back(owned.get());
        return parts;
    }
};

// A text box that only shows words, as an entry of the colour legend: read as text, with its tip.
class WordsOnlyInterface : public QAccessibleWidget {
public:
    explicit WordsOnlyInterface(QLineEdit* box) : QAccessibleWidget(box, QAccessible::StaticText) {}
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name) return static_cast<QLineEdit*>(widget())->text();
        if (t == QAccessible::Description) return widget()->toolTip();
        return QAccessibleWidget::text(t);
    }
};

// An option button of a form. The model, not Qt, keeps the choice one of a group, which Qt would take
// for a check box; a screen reader says what it is: one option of several.
class OptionButtonInterface : public QAccessibleWidget {
public:
    explicit OptionButtonInterface(QRadioButton* option)
        : QAccessibleWidget(option, QAccessible::RadioButton) {}
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name && widget()->accessibleName().isEmpty()) return option()->text();
        return QAccessibleWidget::text(t);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = option()->isChecked();
        return state;
    }
    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == pressAction())
            option()->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    QRadioButton* option() const { return static_cast<QRadioButton*>(widget()); }
};

// Whether a widget edits a control of a form view, on the view itself or on a layer of one of its pages.
bool isFormEditor(const QObject* widget) {
    const QObject* host = widget->parent();
    if (host && !qobject_cast<const FormView*>(host)) host = host->parent();
    return qobject_cast<const FormView*>(host) != nullptr;
}

QAccessibleInterface* formViewFactory(const QString&, QObject* object) {
    if (auto* view = qobject_cast<FormView*>(object)) return new FormViewInterface(view);
    if (auto* option = qobject_cast<QRadioButton*>(object); option && isFormEditor(option))
        return new OptionButtonInterface(option);
    if (auto* box = qobject_cast<QLineEdit*>(object); box && box->property(kWordsOnlyProperty).toBool())
        return new WordsOnlyInterface(box);
    return nullptr;
}

bool& listening() {
    static bool on = false;
    return on;
}

// Told by Qt when a screen reader starts or stops listening.
class ListenerWatch : public QAccessible::ActivationObserver {
public:
    void accessibilityActiveChanged(bool active) override {
        listening() = active;
        if (active) FormView::nameFieldsOfEveryView();
    }
};

}  // namespace

void installFormViewAccessibility() {
    static bool installed = false;
    if (installed) return;
    installed = true;
    QAccessible::installFactory(formViewFactory);
    static ListenerWatch watch;
    QAccessible::installActivationObserver(&watch);
}

bool screenReaderListens() { return listening() || QAccessible::isActive(); }

}  // namespace lw::ui
