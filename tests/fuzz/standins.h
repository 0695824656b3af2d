#pragma once

#include <QString>

/// Functions of Qt that this program has in their place. They take longer than all that is tested.
namespace standins {

/// What QFileDialog::getOpenFileName answers, without a dialog.
extern QString chosenFile;

} // namespace standins
