#pragma once

#include "files/finding.h"

#include <QHash>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

#include <memory>

class MainDialog;
class QAbstractButton;
class QComboBox;
class QStackedWidget;
class QWidget;
struct Setting;

/// Where a page lies in the window: a step, and a tab of it where there are tabs.
struct WizardPlace {
    const char *page;
    int step;
    int tab;
};

/// The real wizard, asked what it would offer for a document and what it would still ask for. Its pages are
/// shown where nobody sees them, each on the document as it stands: what showing a page writes is thrown
/// away. Needs a QApplication, and there can be one at a time.
class Wizard
{
public:
    struct Answer {
        /// Values that the pages don't offer, and choices that they miss.
        Findings findings;
        /// Whether the wizard's own marks call steps 2 and 3 complete.
        bool complete = false;
        /// The settings that can be changed: their controls are shown and enabled.
        std::vector<const Setting *> offered;
        /// The drawn switches that are shown, "DipSwitch11", and whether they are on.
        QMap<QString, bool> switches;
    };

    Wizard();
    ~Wizard();

    Answer ask(const QJsonObject &document);

private:
    struct Control {
        const Setting *setting;
        QComboBox *list;
        std::vector<QAbstractButton *> radios;
        QWidget *widget; ///< the first of them
    };

    struct Look {
        bool hidden;
        bool disabled;
    };

    struct List {
        QStringList items;
        int index;
    };

    void speakKeys();
    void openSections();
    void collect();
    void remember();
    void reset();
    bool walk(const QJsonDocument &document);
    void show(const WizardPlace &place);
    void leave();
    QMap<QString, bool> switches() const;
    void judge(const QString &page, const QJsonObject &document, Answer *answer) const;
    void judgeList(const Control &control, const QJsonObject &document, Findings *findings) const;

    std::unique_ptr<MainDialog> dialog;
    QStackedWidget *steps = nullptr;
    QStackedWidget *tabs = nullptr;
    QHash<QString, QWidget *> pages;
    QHash<QString, std::vector<Control>> controls;
    QHash<QComboBox *, List> firstLists;
    QHash<QAbstractButton *, bool> firstChecks;
    QHash<QWidget *, Look> firstLooks;
};
