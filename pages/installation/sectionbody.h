#pragma once

#include <QFrame>

/// The body of a section: hairlines stand between its groups of rows, and without any it takes no room.
class SectionBody : public QFrame
{
    Q_OBJECT

public:
    explicit SectionBody(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool hasRows() const;
};
