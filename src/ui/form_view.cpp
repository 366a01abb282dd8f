#include "ui/form_view.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QToolButton>
#include <QToolTip>
#include <algorithm>

#include "catalogue/field_names.h"
#include "face/control_text.h"
#include "fields/box_dollar_sign.h"
#include "model/containers.h"
#include "model/program.h"
#include "ui/command_icons.h"
#include "ui/field_panel_style.h"
#include "ui/form_painter.h"
#include "ui/form_view_accessible.h"
#include "ui/lines_editor.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

std::vector<FormView*>& allViews() {
    static std::vector<FormView*> views;
    return views;
}

}  // namespace

FormView::FormView(Form& form, QWidget* parent) : QWidget(parent), form_(&form) {
    setObjectName(QString::fromStdString(form.name()));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_InputMethodEnabled, true);
    setAttribute(Qt::WA_OpaquePaintEvent, true);
    installFormViewAccessibility();
    setAccessibleName(toQString(form.caption));
    allViews().push_back(this);
    refresh();
}

FormView::~FormView() {
    auto& views = allViews();
    views.erase(std::remove(views.begin(), views.end(), this), views.end());
}

void FormView::nameFieldsOfEveryView() {
    for (FormView* view : allViews())
        if (view->form_ && !view->retired_) view->nameFields();
}

std::vector<FormView*> FormView::viewsOf(const Form& form) {
    std::vector<FormView*> found;
    for (FormView* view : allViews())
        if (view->form_ == &form) found.push_back(view);
    return found;
}

QString FormView::objectNameOf(const Control& control) {
    QString name = toQString(control.name);
    if (control.index != kNoIndex) name += QLatin1Char('_') + QString::number(control.index);
    return name;
}

QWidget* FormView::editorOf(const Control& control) const { return editors_.value(&control, nullptr); }

void FormView::detach() {
    keepFace();
    releaseEditors();
    form_ = nullptr;
    names_.clear();
    namedCaptions_.clear();
    named_ = false;
    looks_.reset();
    paintedAt_.clear();
    editors_.clear();
    controlOfWidget_.clear();
    pageLayers_.clear();
    hide();
}

Desktop* FormView::desktop() const { return form_ && hasProgram() ? form_->desktop() : nullptr; }

bool FormView::isModelFocus(const Control& control) const {
    const Desktop* on = desktop();
    return on && on->focus() == &control;
}

namespace {

// The one-line fields of views that went, until a view takes them: a large form holds a hundred, and a
// field taken over costs a fraction of a new one. So many are kept, hidden in the window of the view that
// goes; the rest go with that view.
std::vector<QPointer<QLineEdit>>& idleFields() {
    static std::vector<QPointer<QLineEdit>> fields;
    return fields;
}
constexpr std::size_t kMostIdleFields = 128;

// The window of the view that let its fields go last.
QPointer<QWidget>& shelter() {
    static QPointer<QWidget> window;
    return window;
}

}  // namespace

QLineEdit* FormView::takeIdleField(QWidget* host) {
    auto& idle = idleFields();
    while (!idle.empty()) {
        QPointer<QLineEdit> field = idle.back();
        idle.pop_back();
        if (!field) continue;
        // A new parent hides the field; the mirror shows it where its control is shown.
        field->setParent(host);
        return field;
    }
    return nullptr;
}

void FormView::shelterIdleFields() {
    auto& idle = idleFields();
    idle.erase(std::remove_if(idle.begin(), idle.end(), [](const QPointer<QLineEdit>& f) { return !f; }),
               idle.end());
    if (!shelter()) return;
    for (std::size_t i = 0; i < idle.size() && i < kMostIdleFields; ++i)
        if (idle[i]->parentWidget() != shelter()) idle[i]->setParent(shelter());
}

void FormView::releaseEditors() {
    for (auto it = editors_.cbegin(); it != editors_.cend(); ++it) {
        auto* line = qobject_cast<QLineEdit*>(it.value());
        if (!line) continue;
        disconnect(line, nullptr, this, nullptr);
        line->removeEventFilter(this);
        idleFields().push_back(line);
    }
    editors_.clear();
    controlOfWidget_.clear();
    shelter() = window();
    retired_ = true;
}

QWidget* FormView::createEditor(Control& control) {
    QWidget* editor = nullptr;
    switch (control.kind) {
        case ControlKind::TextBox:
            // A field whose text may take several lines on paper shows them in an editor of lines.
            editor = face::breaksLines(control) ? createLinesEditor(control) : createLineField(control);
            break;
        case ControlKind::ComboBox:
            editor = createComboBox(control);
            break;
        case ControlKind::CommandButton:
            editor = createCommandButton(control);
            break;
        case ControlKind::OptionButton:
            editor = createOptionButton(control);
            break;
        default:
            return nullptr;
    }
    adoptEditor(control, editor);
    return editor;
}

QWidget* FormView::createLinesEditor(Control& control) {
    auto* box = new LinesEditor(hostOf(control));
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    box->setAcceptDrops(false);
    box->viewport()->installEventFilter(this);
    box->viewport()->setContextMenuPolicy(Qt::PreventContextMenu);
    controlOfWidget_.insert(box->viewport(), &control);
    connect(box, &QPlainTextEdit::cursorPositionChanged, this, [this, &control] { takeSelection(control); });
    connect(box, &QPlainTextEdit::selectionChanged, this, [this, &control] { takeSelection(control); });
    return box;
}

QWidget* FormView::createLineField(Control& control) {
    QLineEdit* line = takeIdleField(hostOf(control));
    if (!line) {
        line = new QLineEdit(hostOf(control));
        if (QStyle* style = FieldPanelStyle::forFields()) line->setStyle(style);
        line->setAcceptDrops(false);
        line->setDragEnabled(false);
    }
    connect(line, &QLineEdit::cursorPositionChanged, this, [this, &control] { takeSelection(control); });
    connect(line, &QLineEdit::selectionChanged, this, [this, &control] { takeSelection(control); });
    return line;
}

QWidget* FormView::createComboBox(Control& control) {
    auto* combo = new QComboBox(hostOf(control));
    connect(combo, QOverload<int>::of(&QComboBox::activated), this, [this, &control](int row) {
        Desktop* on = desktop();
        if (!on || row < 0 || row >= static_cast<int>(control.items.size())) return;
        const std::string entry = control.items[static_cast<size_t>(row)];
        forwardInput([&] { on->choose(control, entry); });
    });
    return combo;
}

// A button with a picture shows it above its caption.
QWidget* FormView::createCommandButton(Control& control) {
    if (!control.picture.empty()) {
        auto* tool = new QToolButton(hostOf(control));
        tool->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        tool->setIcon(commandIcon(control.picture));
        connect(tool, &QToolButton::clicked, this, [this, &control] {
            if (Desktop* on = desktop()) forwardInput([&] { on->click(control); });
        });
        return tool;
    }
    auto* push = new QPushButton(hostOf(control));
    push->setAutoDefault(false);
    connect(push, &QPushButton::clicked, this, [this, &control] {
        if (Desktop* on = desktop()) forwardInput([&] { on->click(control); });
    });
    return push;
}

QWidget* FormView::createOptionButton(Control& control) {
    auto* option = new QRadioButton(hostOf(control));
    option->setAutoExclusive(false);
    connect(option, &QRadioButton::clicked, this, [this, &control] {
        if (Desktop* on = desktop()) forwardInput([&] { on->click(control); });
    });
    return option;
}

void FormView::adoptEditor(Control& control, QWidget* editor) {
    // A legend entry is read as the words it shows, not as a field to fill; said before any screen reader
    // first asks after the editor.
    if (control.wordsOnly) editor->setProperty(kWordsOnlyProperty, true);
    editor->setObjectName(objectNameOf(control));
    if (screenReaderListens())
        if (const FieldName* named = fieldNameOf(control); named && !named->text.empty())
            editor->setAccessibleName(toQString(named->text));
    // Only the model moves the focus; a click asks the model first.
    editor->setFocusPolicy(Qt::NoFocus);
    editor->setContextMenuPolicy(Qt::PreventContextMenu);
    editor->installEventFilter(this);
    editors_.insert(&control, editor);
    controlOfWidget_.insert(editor, &control);
    editor->show();
}

QWidget* FormView::hostOf(const Control& control) {
    const Control* tabs = tabsOf(control);
    if (!tabs) return this;
    const int page = pageOf(control);
    QWidget*& layer = pageLayers_[{tabs, page}];
    if (!layer) {
        // Drawn by nothing itself: the face beneath shows through, and a click on it goes on to the view.
        layer = new QWidget(this);
        layer->setObjectName(objectNameOf(*tabs) + QStringLiteral("_page_") + QString::number(page));
        // A screen reader finds the fields of a page inside it, under the page's own caption.
        if (page >= 0 && page < static_cast<int>(tabs->items.size()))
            layer->setAccessibleName(toQString(tabs->items[static_cast<std::size_t>(page)]));
        layer->setGeometry(rect());
        layer->setVisible(tabOf(*tabs) == page && isShown(*tabs));
    }
    return layer;
}

void FormView::mirrorPages() {
    for (const auto& [page, layer] : pageLayers_) {
        if (layer->geometry() != rect()) layer->setGeometry(rect());
        const bool onShow = isShown(*page.first) && tabOf(*page.first) == page.second;
        if (layer->isHidden() == onShow) layer->setVisible(onShow);
    }
}

void FormView::refresh() {
    if (!form_ || retired_) return;
    refreshing_ = true;
    const QSize size = extent_.isValid() ? extent_ : formSize(*form_, kScreenScale);
    if (this->size() != size) setFixedSize(size);
    mirrorPages();
    // A new colour or size of the form itself repaints it whole.
    const std::size_t formLook = std::hash<Color>{}(form_->backColor) ^
                                 (std::hash<int>{}(form_->width) << 1) ^
                                 (std::hash<int>{}(form_->height) << 2);
    if (formLook != formLook_) {
        formLook_ = formLook;
        keptFace_.reset();
        update();
    }
    QRegion damaged;
    bool boxRenamed = false;
    for (Control* control : looks_.changedSince(*form_)) {
        if (const auto named = namedCaptions_.find(control);
            named != namedCaptions_.end() && named->second != control->caption)
            boxRenamed = true;
        if (hasEditor(control->kind)) {
            QWidget* editor = editors_.value(control, nullptr);
            if (!editor) editor = createEditor(*control);
            if (editor) mirror(*control, editor);
            // The "$" a box prints beside an amount lies on the face and comes and goes with its field.
            const QRect sign = takesBoxDollarSign(*control) && isShown(*control)
                                   ? boxDollarSignRect(*control, kScreenScale)
                                   : QRect();
            const QRect before = paintedAt_.value(control);
            if (sign != before) {
                damaged += before;
                damaged += sign;
                paintedAt_.insert(control, sign);
            }
            continue;
        }
        const QRect now = paintedExtent(*control, kScreenScale);
        damaged += paintedAt_.value(control, now);
        damaged += now;
        paintedAt_.insert(control, now);
    }
    if (boxRenamed) renameFields();
    if (!damaged.isEmpty() && keptFace_) showLook(currentFaceLook(), damaged);
    // The fields this view did not take leave the view that let them go, before it goes.
    shelterIdleFields();
    placeFocus();
    refreshing_ = false;
}

void FormView::placeFocus() {
    Desktop* on = desktop();
    if (!on) return;
    Desktop& desktop = *on;
    Control* focus = desktop.focus();
    QWidget* target = nullptr;
    if (focus && focus->form == form_) {
        target = editors_.value(focus, nullptr);
        if (!target || !target->isVisible()) target = this;
    } else if (!focus && desktop.inputForm() == form_) {
        target = this;
    }
    if (!target || window()->focusWidget() == target) return;
    target->setFocus(Qt::OtherFocusReason);
    // A tall form scrolls to the field the model moved to.
    QWidget* viewport = parentWidget();
    if (auto* area = qobject_cast<QScrollArea*>(viewport ? viewport->parentWidget() : nullptr))
        if (target != this) area->ensureWidgetVisible(target);
}

Control* FormView::controlAt(QPoint point) const {
    if (!form_) return nullptr;
    const std::vector<const Control*> order = paintOrder(*form_);
    for (auto it = order.rbegin(); it != order.rend(); ++it) {
        const Control* control = *it;
        if (!isShown(*control) || hasEditor(control->kind)) continue;
        if (control->kind == ControlKind::Shape || control->kind == ControlKind::Line) continue;
        if (controlRect(*control, kScreenScale).contains(point)) return const_cast<Control*>(control);
    }
    return nullptr;
}

bool FormView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && form_) {
        auto* help = static_cast<QHelpEvent*>(event);
        Control* control = controlAt(help->pos());
        if (control && !control->toolTipText.empty())
            QToolTip::showText(help->globalPos(), toQString(control->toolTipText), this);
        else
            QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

}  // namespace lw::ui
