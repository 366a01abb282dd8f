#include "ui/qt_ui_port.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>
#include <cstdio>
#include <iostream>

#include "model/app_error.h"
#include "model/form.h"
#include "text/cp1252.h"
#include "ui/clipboard_picture.h"
#include "ui/form_printer.h"
#include "ui/form_view.h"
#include "ui/frame_window.h"
#include "ui/input_bridge.h"
#include "ui/modal_dialog.h"
#include "ui/qt_text.h"

namespace lw::ui {

QtUiPort::QtUiPort() = default;
QtUiPort::~QtUiPort() = default;

void QtUiPort::setFrameWindow(FrameWindow* window) {
    frame_ = window;
    if (frame_) frame_->refresh();
}

void QtUiPort::runModal(Form& form) {
    if (programEnded()) throw ProgramEnded{};
    QWidget* parent = frame_ ? static_cast<QWidget*>(frame_.data()) : QApplication::activeWindow();
    runModalForm(form, parent);
    // The program was told to end inside the box: the end goes on through the caller.
    if (programEnded()) throw ProgramEnded{};
}

void QtUiPort::formLoaded(Form& form) {
    // Showing a child form brings up its frame.
    if (!frame_ && makeFrame_ && form.isChild) makeFrame_();
    if (frame_) frame_->refresh();
}

void QtUiPort::formUnloaded(Form& form) {
    if (ModalDialog* dialog = ModalDialog::of(form)) dialog->formUnloaded();
    if (frame_) frame_->formUnloaded(form);
    for (FormView* view : FormView::viewsOf(form)) view->detach();
}

void QtUiPort::childActivated(Form&) {
    if (!frame_ && makeFrame_) makeFrame_();
    if (frame_) frame_->refresh();
}

void QtUiPort::refresh() { refreshAll(); }

void QtUiPort::copyPictureToClipboard(Form& form) { copyFormPicture(form); }

bool QtUiPort::printForm(const Form& form, const std::string& printer) {
    return ui::printForm(form, printer);
}

std::string QtUiPort::clipboardText() {
    const QString text = QApplication::clipboard()->text();
    std::optional<std::string> bytes = toCp1252(text);
    if (!bytes) {
        inputRefused(
            "The clipboard text cannot be pasted: it holds characters outside the Windows-1252 code page.");
        return {};
    }
    if (bytes->size() > kPasteLimit) {
        bytes->resize(kPasteLimit);
        inputRefused("Only the first 64 KiB of the clipboard text were pasted.");
    }
    return *bytes;
}

void QtUiPort::setClipboardText(const std::string& text) {
    QApplication::clipboard()->setText(toQString(text));
}

bool QtUiPort::openDocument(const std::string& path) {
    const QString file = toFilePath(path);
    if (!QFileInfo::exists(file)) return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

void QtUiPort::quit() {
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
    markProgramEnded();
    throw ProgramEnded{};
}

void QtUiPort::inputRefused(const std::string& why) {
    lastRefusal_ = why;
    QApplication::beep();
    if (frame_)
        frame_->showStatus(toQString(why));
    else
        std::cerr << toQString(why).toStdString() << "\n";
}

}  // namespace lw::ui

namespace lw::ui {

// Qt's own dialog (not the desktop's), whose file list deletes the selected file with the Delete key
// after asking, as the open dialog's title promises.
std::optional<std::string> QtUiPort::fileDialog(const FileDialogRequest& request) {
    QFileDialog dialog(frame_, toQString(request.title), toQString(request.startFolder));
    dialog.setOption(QFileDialog::DontUseNativeDialog, true);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilter(toQString(request.filterDescription));
    if (request.save) dialog.selectFile(toQString(request.proposedName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    auto path = text::utf8ToCp1252(dialog.selectedFiles().first().toStdString());
    if (!path) {
        inputRefused("The chosen path holds characters that the program cannot keep.");
        return std::nullopt;
    }
    return path;
}

}  // namespace lw::ui
