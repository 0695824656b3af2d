#pragma once

#include <QListWidget>

/// The list of the language popup: a class of its own, without behaviour of its own.
class LanguageMenuList : public QListWidget
{
    Q_OBJECT

public:
    explicit LanguageMenuList(QWidget *parent = nullptr);
};
