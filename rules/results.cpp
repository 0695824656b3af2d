#include "rules/results.h"

void Results::clear()
{
    productDone = dipSwitchDone = settingDone = false;
    functionValid = userValid = serviceValid = installationValid = false;
}

void Results::joinSections()
{
    installationValid = systemSectionValid && autoSectionValid && coolSectionValid && dwhSectionValid
        && heatSectionValid;
}
