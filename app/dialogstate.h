#pragma once

#include <QJsonDocument>
#include <QMap>
#include <QMenu>
#include <QString>
#include <QVariant>

class LanguageMenu;

/// What MainDialog holds besides its form: the document, the language in force, the wizard's flags.
struct DialogState {
    QString languageIniPath;
    /// Wizard steps 1 to 3 are complete.
    bool productDone = false;
    bool dipSwitchDone = false;
    bool settingDone = false;
    /// The settings document; null until New or Open.
    QJsonDocument document;
    QJsonDocument languageDocument;
    QJsonDocument languageSnapshot;
    QMap<QString, QVariant> languageSnapshotMap;
    /// After New the path of the default document, after Open or the first Save that of the file. Empty: no
    /// document.
    QString filePath;
    bool languageMenuOpen = false;
    /// Owned by the dialog as its parent; a popup that a rebuild replaces stays a hidden child.
    LanguageMenu *languageMenuWidget = nullptr;
    /// Never shown.
    QMenu menu;
    /// The next Save asks for a file name.
    bool isNewFile = true;
    /// Nothing sets it; the message of a refused Save prints it.
    bool saveValidated = false;
    QString tempUnit;
    QMap<int, int> cfTable;
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
    QString selectText = QStringLiteral("Select");
    /// The last refrigerant chosen. Nothing reads it.
    QString refrigerant = QStringLiteral("None");
    QMap<QString, QVariant> languageMap;
};
