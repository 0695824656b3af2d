#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class Select;
}

/// The first page: New or Open.
class Select : public QWidget
{
    Q_OBJECT

public:
    explicit Select(QWidget *parent = nullptr);
    ~Select() override;

    /// Sets the page's texts from the language in force.
    void changeLanguage();

private slots:
    void initUi();
    void clickedNewButton();
    void clickedOpenButton();

private:
    std::unique_ptr<Ui::Select> ui;
};
