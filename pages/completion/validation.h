#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class Validation;
}

/// The result page: tells whether steps 1 to 3 are complete. It runs no check of its own.
class Validation : public QWidget
{
    Q_OBJECT

public:
    explicit Validation(QWidget *parent = nullptr);
    ~Validation() override;

    /// Shows the form of a complete or an incomplete setup.
    void setResult(bool complete);

    /// Takes the messages from the language in force and shows the result by the wizard's flags.
    void changeLanguage();

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();

private:
    std::unique_ptr<Ui::Validation> ui;
    QString completeMessage;
    QString completeSubMessage;
    QString errorMessage;
    QString errorSubMessage;
};
