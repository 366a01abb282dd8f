#include "ui/modal_dialog.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QIcon>
#include <algorithm>
#include <vector>

#include "model/program.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

std::vector<ModalDialog*>& openDialogs() {
    static std::vector<ModalDialog*> dialogs;
    return dialogs;
}

}  // namespace

ModalDialog::ModalDialog(Form& form, QWidget* parent)
    : QDialog(parent), form_(&form), view_(new FormView(form, this)) {
    setObjectName(QString::fromStdString(form.name()) + QStringLiteral("_dialog"));
    setModal(true);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const QString icon = toFilePath(form.icon);
    if (!icon.isEmpty() && QFileInfo(icon).isFile()) setWindowIcon(QIcon(icon));
    view_->move(0, 0);
    openDialogs().push_back(this);
    refresh();
}

ModalDialog::~ModalDialog() {
    auto& dialogs = openDialogs();
    dialogs.erase(std::remove(dialogs.begin(), dialogs.end(), this), dialogs.end());
}

ModalDialog* ModalDialog::of(const Form& form) {
    for (ModalDialog* dialog : openDialogs())
        if (dialog->form_ == &form) return dialog;
    return nullptr;
}

void ModalDialog::refresh() {
    if (!form_) return;
    const QString title = toQString(form_->caption);
    if (windowTitle() != title) setWindowTitle(title);
    // The model's size of a box is its client area.
    const QSize size = formSize(*form_, kScreenScale);
    if (this->size() != size) setFixedSize(size);
}

void ModalDialog::formUnloaded() {
    form_ = nullptr;
    view_->detach();
    done(QDialog::Accepted);
}

void ModalDialog::closeEvent(QCloseEvent* event) {
    // The close box asks the form, which may refuse; the dialog closes only once the form is unloaded.
    if (form_ && hasProgram()) {
        Form* form = form_;
        event->ignore();
        forwardInput([form] { form->unload(); });
        return;
    }
    QDialog::closeEvent(event);
}

void ModalDialog::reject() {
    if (form_ && hasProgram()) {
        Form* form = form_;
        forwardInput([form] { form->unload(); });
        return;
    }
    QDialog::reject();
}

void runModalForm(Form& form, QWidget* parent) {
    if (!form.isLoaded()) return;
    ModalDialog dialog(form, parent);
    dialog.exec();
}

}  // namespace lw::ui
