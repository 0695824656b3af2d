#pragma once

#include "pages/page.h"

#include <memory>

namespace Ui {
class InstallationSystemAquabox;
}

/// The settings of a hydronic module, at the bottom of the system section, for a document of the product
/// "AQUABOX". It writes nothing itself: its saves are signals that pass the system section's gate.
class InstallationSystemAquabox : public Page
{
    Q_OBJECT

public:
    explicit InstallationSystemAquabox(QWidget *parent = nullptr);
    ~InstallationSystemAquabox() override;

    /// Sets the texts of the section from the language in force; the list keeps its position.
    void changeLanguage();
    void changeLanguageInCombobox();

signals:
    /// The result of the section's check; the type is "AQUABOX".
    void validationCheckSignals(bool isChecked, const QString &type);
    void saveJsonValue(const QString &path, const QJsonValue &value);
    /// Never emitted: no setting of this section touches another one.
    void refreshInstallationPage();

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();
    void refresh();
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    void setLoadJsonValue();
    void enableOilRecovery();
    QString setRadioTextOpacity(bool isEnabled);
    void on_radioStandbyNotuse_clicked();
    void on_radioStandbyUse_clicked();
    void on_radioHsmodeNotuse_clicked();
    void on_radioHsmodeUse_clicked();
    void on_comboKnightType_currentTextChanged(const QString &text);
    void on_comboWater_currentTextChanged(const QString &text);
    void on_radioRefrigerantNotuse_clicked();
    void on_radioRefrigerantUse_clicked();
    void on_radioOpt1_clicked();
    void on_radioOpt2_clicked();
    void on_radioCombinationNotuse_clicked();
    void on_radioCombinationUse_clicked();
    void validationCheck() override;

private:
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    void choose(const QRadioButton *radio);
    void loadCombination();

    std::unique_ptr<Ui::InstallationSystemAquabox> ui;
};
