// Dialogs over the window in front.
#pragma once

#include <QDialog>

namespace trameli {

/// Runs a dialog until it is closed, by whomever. It belongs to the window in front and can go with
/// it meanwhile: callers look at it afterwards through a QPointer.
void RunDialog(QDialog& dialog);

}  // namespace trameli
