#pragma once

#include <QGroupBox>

/// The box of the tool bar that shows the language in force and opens the popup of languages. The keys that
/// open a list do here what a press of the mouse does.
class LanguageBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit LanguageBox(QWidget *parent = nullptr);

signals:
    /// A key has had the effect of a press.
    void pressedByKey();

protected:
    bool event(QEvent *event) override;

private:
    void press();
};
