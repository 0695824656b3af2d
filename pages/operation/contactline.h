#pragma once

#include <QLineEdit>

/// A line edit whose first click selects what is there, so that typing replaces it. A drag selects as in any
/// other.
class ContactLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit ContactLine(QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool enteredByClick = false;
};
