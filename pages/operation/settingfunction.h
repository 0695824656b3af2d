#pragma once

#include "pages/page.h"

#include <memory>

namespace Ui {
class SettingFunction;
}

/// The Function tab of the Setting step: silent mode with its time window, button locks of the remote
/// controller, defrost mode of the outdoor unit. All values lie below SettingInfo.func.
class SettingFunction : public Page
{
    Q_OBJECT

public:
    explicit SettingFunction(QWidget *parent = nullptr);
    ~SettingFunction() override;

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    void setloadJsonValue();
    /// With a leading zero from 0 to 9.
    QString convertTimeValueByJson(int jsonValue);
    QString calcurateTime(int value, const QString &ampm = QString());
    QString setOpacity(bool isEnabled);
    QString setRadioTextOpacity(bool isEnabled);
    void enableSilentMode();
    /// Overrides the three other locks on the screen; their radios and values stay.
    void allButtonLock(bool isLock);
    void onoffButtonLock(bool isLock);
    void modeButtonLock(bool isLock);
    void hotWaterButtonLock(bool isLock);
    void validationCheck() override;

public slots:
    /// Sets the page's texts from the language in force.
    void changeLanguage();

private slots:
    void changeLanguageInCombobox();
    void on_radioSlientModeNotuse_clicked();
    void on_radioSlientModeUse_clicked();
    void on_comboSilentStartHour_currentTextChanged(const QString &text);
    void on_comboSilentStartMin_currentTextChanged(const QString &text);
    void on_comboSilentEndHour_currentTextChanged(const QString &text);
    void on_comboSilentEndMin_currentTextChanged(const QString &text);
    void on_radioAllButtonNone_clicked();
    void on_radioAllButtonUse_clicked();
    void on_radioOnOffButtonNone_clicked();
    void on_radioOnOffButtonUse_clicked();
    void on_radioOperationModeButtonNone_clicked();
    void on_radioOperationModeButtonUse_clicked();
    void on_radioDhwOnOffNone_clicked();
    void on_radioDhwOnOffUse_clicked();
    void on_comboDefrostMode_currentTextChanged(const QString &text);

private:
    struct Clock;
    static const Clock start;
    static const Clock end;

    void loadLocks();
    void chooseSilentMode(const QRadioButton *radio);
    void chooseAllLock(const QRadioButton *radio);
    void saveHour(const Clock &clock, const QString &text);

    std::unique_ptr<Ui::SettingFunction> ui;
};
