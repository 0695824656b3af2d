#pragma once

#include "files/wizard.h"

class Texts;

/// What a report tells.
struct ReportPage {
    const QJsonObject &document;
    const Wizard::Answer &answer;
    const Texts &texts;
    QString language; ///< its name
    bool fahrenheit;

    /// Whole HTML, for a browser or for Qt's own documents.
    QString html(bool forBrowser) const;
};
