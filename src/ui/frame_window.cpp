#include "ui/frame_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <algorithm>

#include "model/program.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

// The names and nesting of the menus: the bar is built again only when these change.
void describe(const std::vector<MenuItem>& items, QString& shape) {
    for (const MenuItem& item : items) {
        shape += toQString(item.name) + (item.caption == "-" ? QStringLiteral("-") : QString());
        if (!item.items.empty()) {
            shape += QLatin1Char('{');
            describe(item.items, shape);
            shape += QLatin1Char('}');
        }
        shape += QLatin1Char(';');
    }
}

void flatten(const std::vector<MenuItem>& items, std::vector<const MenuItem*>& out) {
    for (const MenuItem& item : items) {
        out.push_back(&item);
        flatten(item.items, out);
    }
}

const QColor kChildAreaColor(0xAB, 0xAB, 0xAB);

}  // namespace

FrameWindow::FrameWindow(Form& frame, QWidget* parent)
    : QMainWindow(parent), frame_(&frame), desktop_(frame.desktop()) {
    setObjectName(QString::fromStdString(frame.name()));
    auto* central = new QWidget(this);
    auto* layout = new QHBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    if (const Control* legends = frame.find("picLegends")) {
        panel_ = new FormView(frame);
        panel_->setObjectName(QStringLiteral("picLegends"));
        panel_->setExtent(
            QSize(toPixels(legends->width, kScreenScale), toPixels(legends->height, kScreenScale)));
        panel_->refresh();
        panelArea_ = new QScrollArea(central);
        panelArea_->setObjectName(QStringLiteral("picLegendsArea"));
        panelArea_->setFrameShape(QFrame::NoFrame);
        panelArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        panelArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        panelArea_->setWidget(panel_);
        // The panel is a fixed column: the width of picLegends, and room for a scroll bar on a short screen.
        panelArea_->setFixedWidth(toPixels(legends->width, kScreenScale) +
                                  panelArea_->verticalScrollBar()->sizeHint().width());
        layout->addWidget(panelArea_);
    }
    childArea_ = new QScrollArea(central);
    childArea_->setObjectName(QStringLiteral("childArea"));
    childArea_->setWidgetResizable(false);
    // A form stands at the top of the child area, centred across it, where the lifecycle places it.
    childArea_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    QPalette palette = childArea_->palette();
    palette.setColor(QPalette::Window, kChildAreaColor);
    childArea_->setPalette(palette);
    childArea_->setBackgroundRole(QPalette::Window);
    layout->addWidget(childArea_, 1);
    setCentralWidget(central);
    statusBar()->setObjectName(QStringLiteral("statusLine"));

    const QString icon = toFilePath(frame.icon);
    if (!icon.isEmpty() && QFileInfo(icon).isFile()) setWindowIcon(QIcon(icon));
    resize(formSize(frame, kScreenScale));
    move(toPixels(frame.left, kScreenScale), toPixels(frame.top, kScreenScale));
    refresh();
}

FrameWindow::~FrameWindow() = default;

QAction* FrameWindow::menuAction(const QString& itemName) const {
    for (QAction* action : actions_)
        if (action->objectName().compare(itemName, Qt::CaseInsensitive) == 0) return action;
    return nullptr;
}

void FrameWindow::refresh() {
    if (!frame_) return;
    const QString title = toQString(frame_->caption);
    if (windowTitle() != title) setWindowTitle(title);
    QString shape;
    describe(frame_->menus, shape);
    if (shape != menuShape_) {
        menuShape_ = shape;
        buildMenus();
    }
    mirrorMenus();
    showChild(shownChild());
}

// The active child; before one is active, the child form loaded last, which shows as it loads.
Form* FrameWindow::shownChild() const {
    if (!hasProgram() || !desktop_) return nullptr;
    const Desktop& desktop = *desktop_;
    Form* shown = desktop.activeChild();
    if (shown) return shown;
    for (Form* form : desktop.forms())
        if (form->isChild && form->isLoaded() && form != frame_) shown = form;
    return shown;
}

void FrameWindow::chooseMenu(const std::string& itemName) {
    if (hasProgram() && desktop_) forwardInput([&] { desktop_->chooseMenu(itemName); });
}

QAction* FrameWindow::actionFor(const MenuItem& item, QWidget* owner) {
    auto* action = new QAction(owner);
    action->setObjectName(toQString(item.name));
    if (item.caption == "-") {
        action->setSeparator(true);
    } else {
        const std::string name = item.name;
        connect(action, &QAction::triggered, this, [this, name] { chooseMenu(name); });
    }
    return action;
}

void FrameWindow::addItems(QMenu* menu, const std::vector<MenuItem>& items) {
    for (const MenuItem& item : items) {
        if (item.items.empty()) {
            QAction* action = actionFor(item, menu);
            menu->addAction(action);
            actions_.push_back(action);
            continue;
        }
        QMenu* sub = menu->addMenu(toQString(item.caption));
        sub->menuAction()->setObjectName(toQString(item.name));
        actions_.push_back(sub->menuAction());
        addItems(sub, item.items);
    }
}

void FrameWindow::buildMenus() {
    menuBar()->clear();
    actions_.clear();
    for (const MenuItem& top : frame_->menus) {
        if (top.items.empty()) {
            QAction* action = actionFor(top, menuBar());
            menuBar()->addAction(action);
            actions_.push_back(action);
            continue;
        }
        QMenu* menu = menuBar()->addMenu(toQString(top.caption));
        menu->setObjectName(toQString(top.name) + QStringLiteral("_menu"));
        menu->menuAction()->setObjectName(toQString(top.name));
        actions_.push_back(menu->menuAction());
        const std::string name = top.name;
        // Opening a menu is its Click: the program may enable or hide items before they show.
        connect(menu, &QMenu::aboutToShow, this, [this, name] { chooseMenu(name); });
        addItems(menu, top.items);
    }
}

void FrameWindow::mirrorMenus() {
    std::vector<const MenuItem*> items;
    flatten(frame_->menus, items);
    if (items.size() != actions_.size()) return;
    for (size_t i = 0; i < items.size(); ++i) {
        const MenuItem& item = *items[i];
        QAction* action = actions_[i];
        // Captions keep the access key marker: "&&" shows as "&", as it did in the classic menus.
        if (!action->isSeparator() && action->text() != toQString(item.caption))
            action->setText(toQString(item.caption));
        if (action->isEnabled() != item.enabled) action->setEnabled(item.enabled);
        if (action->isVisible() != item.visible) action->setVisible(item.visible);
    }
}

void FrameWindow::showChild(Form* child) {
    if (child && child_ && child_->form() == child) return;
    if (!child && !child_) return;
    // The view that goes lets its face and fields go while it still stands in the window.
    if (auto* view = qobject_cast<FormView*>(childArea_->widget())) {
        view->keepFace();
        view->releaseEditors();
    }
    if (QWidget* old = childArea_->takeWidget()) {
        old->hide();
        old->deleteLater();
    }
    child_ = nullptr;
    if (!child) return;
    child_ = new FormView(*child);
    childArea_->setWidget(child_);
    child_->show();
    child_->refresh();
    if (isVisible()) makeRoomFor(*child_);
}

void FrameWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (child_) makeRoomFor(*child_);
}

// The window grows to show the whole form when the screen has room; else the child area scrolls.
void FrameWindow::makeRoomFor(const QWidget& child) {
    if (isMaximized() || isFullScreen()) return;
    const QScreen* shown = screen();
    if (!shown) return;
    const QRect room = shown->availableGeometry();
    const QSize area = childArea_->viewport()->size();
    const int wider = std::max(0, child.width() - area.width());
    const int taller = std::max(0, child.height() - area.height());
    if (wider == 0 && taller == 0) return;
    const QSize frameExtra = frameGeometry().size() - size();
    const QSize wanted(std::min(width() + wider, room.width() - frameExtra.width()),
                       std::min(height() + taller, room.height() - frameExtra.height()));
    if (wanted.width() <= width() && wanted.height() <= height()) return;
    resize(std::max(wanted.width(), width()), std::max(wanted.height(), height()));
    // A window that grew past the screen's edge is moved back onto it.
    const QRect outer = frameGeometry();
    const int left = std::max(room.left(), std::min(outer.left(), room.right() + 1 - outer.width()));
    const int top = std::max(room.top(), std::min(outer.top(), room.bottom() + 1 - outer.height()));
    if (left != outer.left() || top != outer.top()) move(left, top);
}

void FrameWindow::formUnloaded(Form& form) {
    if (child_ && child_->form() == &form) {
        child_->detach();
        showChild(nullptr);
    }
    if (frame_ == &form) {
        if (panel_) panel_->detach();
        frame_ = nullptr;
    }
}

void FrameWindow::showStatus(const QString& message) { statusBar()->showMessage(message, 8000); }

void FrameWindow::closeEvent(QCloseEvent* event) {
    if (programEnded() || !frame_ || !hasProgram() || !desktop_) {
        event->accept();
        return;
    }
    event->ignore();
    Form* frame = frame_;
    if (closeHandler_) {
        forwardInput(closeHandler_);
        return;
    }
    Desktop* desktop = desktop_;
    forwardInput([frame, desktop] {
        desktop->unload(*frame);
        if (desktop->frame() != frame) desktop->ui().quit();
    });
}

}  // namespace lw::ui
