#pragma once

#include <QStringList>

/// What is still to be chosen, for whoever can't see it: the captions of the controls, in reading order, as
/// they stand on the page. The marks themselves are set by the pages' checks; nothing of this is shown or
/// logged.
namespace opencontrols {

/// For the mark of step 1 to 3. A page that was never shown since the document came is named itself.
/// Empty where nothing is open.
QStringList ofStep(int step);

/// For the mark of tab 0 to 3.
QStringList ofTab(int tab);

/// The step whose page is shown, 1 to 4; 0 on the start page.
int currentStep();

} // namespace opencontrols
