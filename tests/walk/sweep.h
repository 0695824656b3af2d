#pragma once

#include "support/window.h"
#include "walk/scene.h"
#include "walk/selections.h"

#include <QSet>

/// Goes through all controls one by one and holds the walk's rules of each, where the walk takes what comes.
class Sweep
{
public:
    /// Pages that are shown together.
    struct Place {
        int step;
        int tab;
        QStringList pages;
    };

    Sweep();

    /// Puts English in force, or the language whose texts end so.
    void speak(const QString &mark) { window.speak(mark); }
    /// Touches each control that the document offers: every radio, and items at both ends and in the middle
    /// of every list. Then shows what that has left anew. Returns what doesn't hold.
    QStringList touch(const QJsonDocument &document, const QString &unit);
    /// Shows each page with the document. Returns what doesn't hold.
    QStringList show(const QJsonDocument &document, const QString &unit);
    /// The same of the Installation tab alone.
    QStringList showInstallation(const QJsonDocument &document, const QString &unit);

    /// The controls that no document has offered so far.
    QStringList untouched() const;

private:
    void load(const Place &place, const QJsonDocument &document, const QString &unit);
    void touchRadio(QRadioButton *radio);
    void touchList(QComboBox *combo);
    void act(const QWidget *control, const std::function<void()> &action);
    /// Complains of what doesn't hold, and returns what has changed.
    QVariantMap judge(const QString &name, const QJsonDocument &before, const QStringList &mayWrite);
    void complain(const QString &name, const QString &text);

    Window window;
    Scene scene;
    Selections selections;
    /// "Page/control" of all that the tables tell, in the order of the forms.
    QVector<QPair<QString, QWidget *>> controls;
    /// Whether some list has no rules: then a load may write back what no rule tells of.
    bool hasUntold = false;
    QSet<QString> touched;
    QStringList complaints;
};
