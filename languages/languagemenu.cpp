#include "languages/languagemenu.h"

LanguageMenu::LanguageMenu(QWidget *parent)
    : QWidget(parent)
{
}

void LanguageMenu::setLanguageList(const QStringList &) {}
