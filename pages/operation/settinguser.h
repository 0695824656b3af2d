#pragma once

#include "pages/page.h"

#include <memory>

namespace Ui {
class SettingUser;
}

/// The User tab of the Setting step: temperature unit, backlight, date, summer time and theme of the remote
/// controller, all below SettingInfo.user. The date must be entered before the tab is complete.
class SettingUser : public Page
{
    Q_OBJECT

public:
    explicit SettingUser(QWidget *parent = nullptr);
    ~SettingUser() override;

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();
    void blockComboBoxSignal(bool isBlock);
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    void setLoadJsonValue();
    QString setOpacity(bool isEnabled);
    void enableSummerTime();
    /// Fills `Date` with the days of the month that `Month` shows; the choice is lost, nothing is written.
    void calcDay(QComboBox *Month, QComboBox *Date);
    /// As calcDay, but keeps the index.
    void calcDayInlanguage(QComboBox *Month, QComboBox *Date);
    void validationCheck() override;

public slots:
    /// Sets the page's texts from the language in force.
    void changeLanguage();

private slots:
    void changeLanguageInCombobox();
    void on_radioCelicious_clicked();
    void on_radioFahreheit_clicked();
    void on_comboScreenSaverTimer_currentTextChanged(const QString &text);
    void on_comboBrightness_currentTextChanged(const QString &text);
    void on_comboDateYear_currentTextChanged(const QString &text);
    void on_comboDateMonth_currentTextChanged(const QString &text);
    void on_comboDateDay_currentTextChanged(const QString &text);
    void on_radioSummerTimeNotuse_clicked();
    void on_radioSummerTimeUse_clicked();
    void on_comboStartMonth_currentTextChanged(const QString &text);
    void on_comboStartDay_currentTextChanged(const QString &text);
    void on_comboEndMonth_currentTextChanged(const QString &text);
    void on_comboEndDay_currentTextChanged(const QString &text);
    void on_radioWhite_clicked();
    void on_radioBlack_clicked();

private:
    struct SummerDate;
    SummerDate summerStart() const;
    SummerDate summerEnd() const;

    void chooseUnit(const QRadioButton *radio, const QString &unit);
    void loadBacklight();
    void loadDate();
    void loadSummerDate(const SummerDate &date);
    void saveNumber(const char *path, const QString &text, const char *unsetKey);
    void saveSummerMonth(const SummerDate &date, const QString &text);

    std::unique_ptr<Ui::SettingUser> ui;
    /// Guards every write; never false again.
    bool pageShown = false;
};
