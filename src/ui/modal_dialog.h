#pragma once
// A model form shown modally: a QDialog holding its view, closed when the model unloads the form.

#include <QDialog>

#include "model/form.h"
#include "ui/input_bridge.h"

namespace lw::ui {

class FormView;

class ModalDialog : public QDialog, public Refreshable {
    Q_OBJECT
public:
    ModalDialog(Form& form, QWidget* parent = nullptr);
    ~ModalDialog() override;

    Form* form() const { return form_; }
    FormView* view() const { return view_; }
    // Title and size follow the form's caption and size.
    void refresh() override;
    // The model unloaded the form: the dialog lets go of it and closes.
    void formUnloaded();

    // The open dialog that shows the form, or null.
    static ModalDialog* of(const Form& form);

protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    Form* form_;
    FormView* view_;
};

// Shows the form modally and returns once the model has unloaded it.
void runModalForm(Form& form, QWidget* parent);

}  // namespace lw::ui
