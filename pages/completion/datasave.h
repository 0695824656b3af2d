#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class DataSave;
}

/// Two large choices that do nothing. The page stands in the stack, and nothing shows it.
class DataSave : public QWidget
{
    Q_OBJECT

public:
    explicit DataSave(QWidget *parent = nullptr);
    ~DataSave() override;

private slots:
    void initUi();
    void clickedCheckValidationButton();
    void clickedFileCookingButton();

private:
    std::unique_ptr<Ui::DataSave> ui;
};
