#include "languages/languagelist.h"

#include "languages/letteritem.h"

LanguageList::LanguageList(QWidget *parent)
    : QListWidget(parent)
{
}

LanguageList::~LanguageList()
{
    while (count() > 0) {
        const int last = count() - 1;
        if (QWidget *row = itemWidget(item(last))) {
            row->deleteLater();
        }
        delete takeItem(last);
    }
}

void LanguageList::addRow(const QString &reference, LetterItem *row, const QString &editText)
{
    auto *item = new QListWidgetItem(this);
    row->setData(reference, editText);
    item->setSizeHint(row->size());
    setItemWidget(item, row);
}

bool LanguageList::focusNextPrevChild(bool next)
{
    const bool moved = QListWidget::focusNextPrevChild(next);
    if (const QWidget *focused = focusWidget(); moved && focused != nullptr) {
        scrollToItem(itemAt(focused->mapTo(viewport(), focused->rect().center())));
    }
    return moved;
}
