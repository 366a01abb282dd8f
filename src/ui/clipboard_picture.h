#pragma once
// The picture of a form's client area at its pixel size, drawn off-screen from the model as it stands.

#include <QImage>

#include "model/form.h"

namespace lw::ui {

// Needs a QGuiApplication (the offscreen platform will do) for its fonts.
QImage renderForm(const Form& form);
// The same picture at a zoom: 2 draws it as a screen of twice the density would show it.
QImage renderForm(const Form& form, double zoom);
// Puts renderForm's picture on the system clipboard.
void copyFormPicture(const Form& form);

}  // namespace lw::ui
