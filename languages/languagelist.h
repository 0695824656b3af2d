#pragma once

#include <QListWidget>

class LetterItem;

/// The rows of the language editor. It deletes its rows when it is deleted.
class LanguageList : public QListWidget
{
    Q_OBJECT

public:
    explicit LanguageList(QWidget *parent = nullptr);
    ~LanguageList() override;

    /// Shows both texts in `row`, which becomes the widget of a new last item.
    void addRow(const QString &reference, LetterItem *row, const QString &editText);

protected:
    /// Brings the row that the focus goes to into view.
    bool focusNextPrevChild(bool next) override;
};
