#pragma once
// The form on paper: its client area at its size, drawn by the same painter as the screen.

#include <QString>
#include <string>

#include "model/form.h"

class QPainter;
class QPrinter;
class QSize;

namespace lw::ui {

// Prints on the printer of that name, or on the current one when no printer has it. False on failure.
bool printForm(const Form& form, const std::string& printerName);
// Writes the printed page to a PDF file instead.
bool printFormToPdf(const Form& form, const QString& path);
// Paints the form on a printer that has been set up: at its true size, made smaller only to fit the page,
// on a page turned the way that lets it stand largest.
bool paintOnPrinter(QPrinter& printer, const Form& form);
// Paints the form at its true size (1440 twips to the inch at the device's resolution) from the top left
// of the page, made smaller only when it does not fit.
void paintAtTrueSize(QPainter& painter, const QSize& page, int resolution, const Form& form);

}  // namespace lw::ui
