#include "app/pagestack.h"

PageStack::PageStack(QWidget *parent)
    : QStackedWidget(parent)
{
    // Without a page yet: Qt styles the children of a widget along with it, and those that come later when
    // they are shown.
    ensurePolished();
    connect(this, &PageStack::currentChanged, this, &PageStack::noteShownPage);
}

void PageStack::forgetShownPages()
{
    shownPages.clear();
    noteShownPage();
}

void PageStack::showEvent(QShowEvent *event)
{
    QStackedWidget::showEvent(event);
    noteShownPage();
}

void PageStack::noteShownPage()
{
    if (isVisible() && !shownPages.contains(currentIndex())) {
        shownPages.append(currentIndex());
    }
}

void PageStack::preparePages(int first)
{
    if (QWidget *page = widget(first)) {
        page->ensurePolished();
        // Those too that the page has hidden: a document may show them.
        const auto parts = page->findChildren<QWidget *>();
        for (const QWidget *part : parts) {
            part->sizeHint();
        }
        QMetaObject::invokeMethod(
            this, [this, first] { preparePages(first + 1); }, Qt::QueuedConnection);
    }
}
