#pragma once

#include <QComboBox>

/// A combo box of a page. The mouse wheel over it and the keys that turn pages scroll the page instead of
/// changing the value: a settings file must not change because somebody scrolled, nor by a key that is meant
/// for what is in sight. Its width is set in the form, so its items aren't measured.
class ValueList : public QComboBox
{
    Q_OBJECT

public:
    explicit ValueList(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool hasPopup() const;
    bool isOutOfSight() const;
    void scrollIntoView();

    QAbstractItemDelegate *itemPainter = nullptr;
};
