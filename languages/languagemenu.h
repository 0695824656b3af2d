#pragma once

#include <QWidget>

/// The popup below the tool bar that lists the languages.
class LanguageMenu : public QWidget
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget *parent);

    /// Adds one row per language, in the order of `names`.
    void setLanguageList(const QStringList &names);
};
