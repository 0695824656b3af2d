#include "languages/languagemenulist.h"

LanguageMenuList::LanguageMenuList(QWidget *parent)
    : QListWidget(parent)
{
}
