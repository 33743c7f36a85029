#pragma once

#include <QString>

class QWidget;

#include "controls/message_box.h"

namespace controls {
class CommonDialog;
}

namespace qt {

/// The window that a box or a modal window belongs before: the active one or, while another program is in
/// front, a visible one; nullptr without any.
QWidget* ownerWindow();

/// The boxes of the desktop. Each waits for the operator.
controls::MessageAnswer askBox(const QString& text, int style, const QString& title);
/// Empty if the operator gives up.
QString askText(const QString& prompt, const QString& title, const QString& text);
/// Puts the chosen path, as the product writes it, into the dialog; false if the operator gives up.
bool askFile(controls::CommonDialog& dialog);
/// The name filters of the toolkit for "Database Access (*.mdb)|*.mdb|Tutti|*.*".
QStringList nameFilters(const QString& filter);

}  // namespace qt
