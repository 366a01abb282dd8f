#pragma once
// The frame: the menu bar of the frame form, its left panel of command buttons and colour legend, and the
// child area holding the one open child form.

#include <QMainWindow>
#include <functional>
#include <vector>

#include "model/form.h"
#include "ui/input_bridge.h"

class QAction;
class QMenu;
class QScrollArea;

namespace lw::ui {

class FormView;

class FrameWindow : public QMainWindow, public Refreshable {
    Q_OBJECT
public:
    // The panel is the frame form's control "picLegends" and everything on it; without one, no panel.
    explicit FrameWindow(Form& frame, QWidget* parent = nullptr);
    ~FrameWindow() override;

    Form* frameForm() const { return frame_; }
    FormView* panelView() const { return panel_; }
    FormView* childView() const { return child_; }
    // The menu bar's action of a menu item, by the item's name.
    QAction* menuAction(const QString& itemName) const;

    // Menus, title and the child area as the model has them.
    void refresh() override;
    void formUnloaded(Form& form);
    void showStatus(const QString& message);

    // What the close box does. Without one the frame form is unloaded (its QueryUnload and Unload run),
    // and the program ends when that succeeded.
    void setCloseHandler(std::function<void()> handler) { closeHandler_ = std::move(handler); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildMenus();
    void addItems(QMenu* menu, const std::vector<MenuItem>& items);
    QAction* actionFor(const MenuItem& item, QWidget* owner);
    void chooseMenu(const std::string& itemName);
    void mirrorMenus();
    void showChild(Form* child);
    void makeRoomFor(const QWidget& child);
    Form* shownChild() const;

    Form* frame_;
    // The desktop the frame stands on, which outlives the window: menus and the close box go to it.
    Desktop* desktop_;
    FormView* panel_ = nullptr;
    QScrollArea* panelArea_ = nullptr;
    QScrollArea* childArea_ = nullptr;
    FormView* child_ = nullptr;
    std::vector<QAction*> actions_;  // every menu item's action, in the order of the tree
    QString menuShape_;
    std::function<void()> closeHandler_;
};

}  // namespace lw::ui
