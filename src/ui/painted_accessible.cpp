#include "ui/painted_accessible.h"

#include <map>
#include <tuple>

#include "catalogue/field_names.h"
#include "model/containers.h"
#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

QAccessibleInterface* paintedInterfaceOf(FormView* view, const Control* control, int entry) {
    static std::map<std::tuple<const FormView*, const Control*, int>, QAccessible::Id> known;
    const auto key = std::make_tuple(view, control, entry);
    if (auto found = known.find(key); found != known.end()) {
        QAccessibleInterface* kept = QAccessible::accessibleInterface(found->second);
        if (kept && kept->isValid()) return kept;
        if (kept) QAccessible::deleteAccessibleInterface(found->second);
        known.erase(found);
    }
    QAccessibleInterface* made = nullptr;
    if (entry >= 0)
        made = new PaintedTab(view, control, entry);
    else if (control->kind == ControlKind::CheckLabel)
        made = new PaintedCheckBox(view, control);
    else if (control->kind == ControlKind::TabControl)
        made = new PaintedTabs(view, control);
    else
        made = new PaintedCaption(view, control);
    known[key] = QAccessible::registerAccessibleInterface(made);
    return made;
}

bool PaintedPart::isValid() const {
    if (!view_ || !view_->form()) return false;
    for (const auto& owned : view_->form()->controls())
        if (owned.get() == control_) return true;
    return false;
}

QWindow* PaintedPart::window() const { return view_ ? view_->window()->windowHandle() : nullptr; }

QAccessibleInterface* PaintedPart::parent() const {
    return QAccessible::queryAccessibleInterface(view_.data());
}

QRect PaintedPart::onScreen(const QRect& local) const {
    if (!view_) return {};
    return QRect(view_->mapToGlobal(local.topLeft()), local.size());
}

QRect PaintedPart::rect() const {
    if (!isValid()) return {};
    return onScreen(controlRect(*control_, kScreenScale));
}

QAccessible::State PaintedPart::state() const {
    QAccessible::State state;
    state.invisible = !isValid() || !isShown(*control_);
    return state;
}

// ---- check boxes

QString PaintedCheckBox::text(QAccessible::Text t) const {
    if (!isValid()) return {};
    if (t == QAccessible::Name) {
        const FieldName* named = view_->fieldNameOf(*control_);
        return named ? toQString(named->text) : QString();
    }
    if (t == QAccessible::Description) return toQString(control_->toolTipText);
    if (t == QAccessible::Value) return toQString(control_->caption);
    return {};
}

QAccessible::State PaintedCheckBox::state() const {
    QAccessible::State state = PaintedPart::state();
    state.checkable = true;
    state.checked = isValid() && !control_->caption.empty();
    return state;
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> PaintedCheckBox::relations(
    QAccessible::Relation match) const {
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> found;
    if (!isValid() || !(match & QAccessible::Label)) return found;
    const FieldName* named = view_->fieldNameOf(*control_);
    if (named && named->box && named->box->kind == ControlKind::Label && isShown(*named->box))
        found.append({paintedInterfaceOf(view_.data(), named->box), QAccessible::Label});
    return found;
}

void* PaintedCheckBox::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList PaintedCheckBox::actionNames() const { return {toggleAction()}; }

void PaintedCheckBox::doAction(const QString& action) {
    if (action == toggleAction() && isValid()) view_->clickFromAssistant(const_cast<Control&>(*control_));
}

// ---- captions

QString PaintedCaption::text(QAccessible::Text t) const {
    if (!isValid() || t != QAccessible::Name) return {};
    return toQString(spokenWordsOf(*control_));
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> PaintedCaption::relations(
    QAccessible::Relation match) const {
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> found;
    if (!isValid() || !(match & QAccessible::Labelled)) return found;
    for (const auto& owned : view_->form()->controls()) {
        const Control& field = *owned;
        const FieldName* named = view_->fieldNameOf(field);
        if (!named || named->box != control_ || !isShown(field)) continue;
        QAccessibleInterface* labelled = nullptr;
        if (QWidget* editor = view_->editorOf(field))
            labelled = QAccessible::queryAccessibleInterface(editor);
        else if (field.kind == ControlKind::CheckLabel)
            labelled = paintedInterfaceOf(view_.data(), &field);
        if (labelled) found.append({labelled, QAccessible::Labelled});
    }
    return found;
}

// ---- tabs

QString PaintedTabs::text(QAccessible::Text) const { return {}; }

int PaintedTabs::childCount() const { return isValid() ? static_cast<int>(control_->items.size()) : 0; }

QAccessibleInterface* PaintedTabs::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    return paintedInterfaceOf(view_.data(), control_, index);
}

int PaintedTabs::indexOfChild(const QAccessibleInterface* child) const {
    for (int i = 0; i < childCount(); ++i)
        if (this->child(i) == child) return i;
    return -1;
}

QRect PaintedTabs::rect() const {
    if (!isValid()) return {};
    QRect strip = controlRect(*control_, kScreenScale);
    strip.setHeight(tabStripHeight(*control_, kScreenScale));
    return onScreen(strip);
}

QString PaintedTab::text(QAccessible::Text t) const {
    if (!isValid() || t != QAccessible::Name || entry_ >= static_cast<int>(control_->items.size())) return {};
    return toQString(control_->items[static_cast<std::size_t>(entry_)]);
}

QAccessible::State PaintedTab::state() const {
    QAccessible::State state = PaintedPart::state();
    state.selectable = true;
    state.selected = isValid() && tabOf(*control_) == entry_;
    return state;
}

QAccessibleInterface* PaintedTab::parent() const { return paintedInterfaceOf(view_.data(), control_); }

QRect PaintedTab::rect() const {
    if (!isValid() || control_->items.empty()) return {};
    const QRect strip = controlRect(*control_, kScreenScale);
    const int count = static_cast<int>(control_->items.size());
    const int width = strip.width() / count;
    return onScreen(
        QRect(strip.left() + entry_ * width, strip.top(), width, tabStripHeight(*control_, kScreenScale)));
}

void* PaintedTab::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList PaintedTab::actionNames() const { return {pressAction()}; }

void PaintedTab::doAction(const QString& action) {
    if (action != pressAction() || !isValid() || entry_ >= static_cast<int>(control_->items.size())) return;
    view_->chooseFromAssistant(const_cast<Control&>(*control_),
                               control_->items[static_cast<std::size_t>(entry_)]);
}

}  // namespace lw::ui
