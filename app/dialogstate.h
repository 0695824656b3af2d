#pragma once

#include "document/settings.h"
#include "document/units.h"
#include "languages/languages.h"
#include "rules/results.h"

#include <QMenu>

class LanguageMenu;

/// What MainDialog holds besides its form.
struct DialogState {
    Settings settings;
    Units units;
    Languages languages;
    Results results;
    bool languageMenuOpen = false;
    /// Owned by the dialog as its parent; a popup that a rebuild replaces stays a hidden child.
    LanguageMenu *languageMenuWidget = nullptr;
    /// Never shown.
    QMenu menu;
    QString selectText = QStringLiteral("Select");
    /// The last refrigerant chosen. Nothing reads it.
    QString refrigerant = QStringLiteral("None");
};
