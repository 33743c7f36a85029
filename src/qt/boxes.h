#pragma once

#include <QString>

#include "controls/message_box.h"

namespace controls {
class CommonDialog;
}

namespace qt {

/// The boxes of the desktop. Each waits for the operator.
controls::MessageAnswer askBox(const QString& text, int style, const QString& title);
/// Empty if the operator gives up.
QString askText(const QString& prompt, const QString& title, const QString& text);
/// Puts the chosen path, as the product writes it, into the dialog; false if the operator gives up.
bool askFile(controls::CommonDialog& dialog);
/// The name filters of the toolkit for "Database Access (*.mdb)|*.mdb|Tutti|*.*".
QStringList nameFilters(const QString& filter);

}  // namespace qt
