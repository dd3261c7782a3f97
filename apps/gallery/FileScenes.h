#pragma once

#include <QStringList>

class FwLoadSaveDialog;

/// Hands for the scenes of the load/save dialog that is open.
namespace FileScenes {

FwLoadSaveDialog *dialog();
/// Selects what is named in one of the dialog's lists, as soon as it is there; a second at most.
void select(int list, const QStringList &names);
/// Taps one of the buttons with this object name.
void tap(int number, const QString &button);
/// Ticks a box of the question that comes up, as soon as it is there.
void tick(const QString &box);

} // namespace FileScenes
