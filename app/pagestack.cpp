#include "app/pagestack.h"

PageStack::PageStack(QWidget *parent)
    : QStackedWidget(parent)
{
}
