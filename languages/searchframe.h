#pragma once

#include <QFrame>

/// The pill around the editor's search field. It shows by a ring of its own shape that the keyboard is there.
class SearchFrame : public QFrame
{
    Q_OBJECT

public:
    explicit SearchFrame(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
