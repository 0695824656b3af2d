#pragma once

class QWidget;

/// Groups of radios and the Tab key.
namespace radiogroups {

/// Lets Tab stop once in each group of the window: at the radio that has the focus, else at the one that is
/// checked, else at the first that can be chosen. Arrow keys move within the group.
void placeTabStops(const QWidget *window);

} // namespace radiogroups
