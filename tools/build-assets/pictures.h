#pragma once
// The pictures the program ships: the training cards' backgrounds and the sixteen license portraits.

#include <QString>

// Writes SSN.jpg, ITIN.jpg and P1GS.jpg to P16GS.jpg into the folder; false when one was not written.
bool drawShippedPictures(const QString& folder);
