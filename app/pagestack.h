#pragma once

#include <QStackedWidget>
#include <QVector>

/// A stack that takes the room it is given. It asks no page how large it would like to be, so that a page
/// that isn't shown isn't laid out. Nor is such a page styled before it is shown, unless it is prepared.
class PageStack : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PageStack(QWidget *parent = nullptr);

    /// Styles and measures the pages, one for each turn of the event loop: what is left to do when a page is
    /// first shown is little then.
    void preparePages(int first = 0);

    /// Whether the page has been seen since then, or is.
    bool wasShown(int page) const { return shownPages.contains(page); }
    void forgetShownPages();

    QSize sizeHint() const override { return {}; }
    QSize minimumSizeHint() const override { return {}; }
    bool hasHeightForWidth() const override { return false; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void noteShownPage();

    QVector<int> shownPages;
};
