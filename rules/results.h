#pragma once

/// What the pages have reported, and what it comes to: sections join into a tab, tabs into a step.
struct Results {
    /// Wizard steps 1 to 3 are complete.
    bool productDone = false;
    bool dipSwitchDone = false;
    bool settingDone = false;
    /// Results of the four tabs of the Setting step.
    bool functionValid = false;
    bool userValid = false;
    bool serviceValid = false;
    bool installationValid = false;
    /// Results of the five sections of the Installation tab.
    bool systemSectionValid = false;
    bool autoSectionValid = false;
    bool coolSectionValid = false;
    bool dwhSectionValid = false;
    bool heatSectionValid = false;

    /// What Save requires.
    bool stepsDone() const { return productDone && dipSwitchDone && settingDone; }
    /// For a new document. The sections keep their results until they are shown again.
    void clear()
    {
        productDone = dipSwitchDone = settingDone = false;
        functionValid = userValid = serviceValid = installationValid = false;
    }
    void joinSections()
    {
        installationValid = systemSectionValid && autoSectionValid && coolSectionValid && dwhSectionValid
            && heatSectionValid;
    }
    /// The Service tab takes no part in the step.
    void joinTabs() { settingDone = functionValid && installationValid && userValid; }
};
