#pragma once

#include "pages/page.h"

#include <memory>

namespace Ui {
class ProductSelection;
}

/// Wizard step 1: product type, product spec and refrigerant. Each click on a refrigerant starts the document
/// over with its default document. The page reads nothing from the document.
class ProductSelection : public Page
{
    Q_OBJECT

public:
    explicit ProductSelection(QWidget *parent = nullptr);
    ~ProductSelection() override;

    /// Clears all radios and loads the page, for New.
    void newJsonData();

    /// Sets the page's texts from the language in force.
    void changeLanguage();

signals:
    /// "R32" or "R410", after a click on a refrigerant has replaced the document.
    void buttonClicked(const QString &refrigerant);

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void loadJsonData();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    void enableProductSpec();
    void enableRefrigerantType();
    void validationCheck() override;
    void on_radioButtonAwhp_clicked();
    void on_radioButtonAquabox_clicked();
    void on_radioButtonMiddleTemp_clicked();
    void on_radioButtonHighTemp_clicked();
    void on_radioButtonR410_clicked();
    void on_radioButtonR32_clicked();

private:
    void startWith(const QString &refrigerant);

    std::unique_ptr<Ui::ProductSelection> ui;
};
