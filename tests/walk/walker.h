#pragma once

#include "journeys/installer.h"
#include "walk/marks.h"
#include "walk/scene.h"
#include "walk/selections.h"

#include <QRandomGenerator>

#include <optional>

/// Counts how often the display, not the tool, has shown a page.
class ShowCounter : public QObject
{
public:
    using QObject::QObject;
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Show && event->spontaneous() ? 1 : 0;
        return false;
    }
};

/// An installer who uses the window at random, and what must hold after each step. The close button, which
/// ends the program, is left alone.
class Walker
{
public:
    /// What it opens: files that have gone wrong, or default documents alone.
    enum class Opens { Damaged, Whole };

    explicit Walker(quint32 seed, Opens opens = Opens::Damaged);

    /// Takes one step. Returns what doesn't hold after it, or nothing.
    QStringList step();
    /// The last steps, oldest first.
    QStringList trail() const { return lastSteps; }
    /// How often each kind of step was taken.
    QMap<QString, int> counts() const { return tally; }

    /// The document as it stands after the last step.
    const QJsonDocument &document() const { return scene.document(); }

    /// The controls that a walk touches: "Page/control".
    QStringList controlNames() const;

private:
    /// What a step did, and may have done to the document.
    struct Action {
        QString text;
        Happening happening;
        /// The document that the step put in place of the old one.
        std::optional<QJsonDocument> replacement = std::nullopt;
        /// What is wrong already.
        QStringList complaints = {};
    };

    Action act();
    Action actOnPage();
    Action touch();
    Action pressStep();
    Action pressTab();
    Action toggleHeader();
    Action changeLanguage();
    Action loadLanguage();
    Action openEditor();
    Action toggleMenu();
    Action startNew();
    Action open();
    Action save();
    Action maximize();
    Action minimize();

    QString choose(QComboBox *combo);
    QString type(QLineEdit *edit);
    void pressLanguageBox();
    QStringList documentComplaints(const Action &action, const QJsonDocument &before,
                                   const QStringList &mayWrite) const;
    int dice(int sides) { return random.bounded(sides); }

    /// Before the window, which reads them: those delivered, and one whose texts are all marked.
    struct Languages {
        Languages();
    } languages;

    Installer installer;
    QRandomGenerator random;
    const Opens opens;
    Scene scene;
    Marks marks;
    Selections selections;
    QVector<QPair<QString, QWidget *>> controls;
    /// Whether there is a control whose rules are in the test of its page alone.
    bool hasUntold = false;
    QStringList lastSteps;
    QMap<QString, int> tally;
    ShowCounter displayShows;
    int stepNumber = 0;
    int savedFiles = 0;
};
