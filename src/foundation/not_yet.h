#pragma once

#include <QString>
#include <QStringList>

/// The commands whose forms are still to come, by the start of the name of their menu entry or form. When the program
/// is complete this list is empty.
const QStringList& NotYetAvailable();

/// Says that a command is not available in this version.
void TellNotYet(const QString& command);
