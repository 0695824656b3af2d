#include "pages/operation/settinguser.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/style.h"
#include "ui_settinguser.h"

#include <QDebug>

#include <algorithm>

/// An end of summer time: where its month and its day are kept, and their lists.
struct SettingUser::SummerDate {
    const char *monthPath;
    const char *dayPath;
    QComboBox *month;
    QComboBox *day;
};

namespace {

constexpr int unset = -9999;
constexpr const char *dateYear = "SettingInfo.user.DateInfo.year";
constexpr const char *dateMonth = "SettingInfo.user.DateInfo.month";
constexpr const char *dateDay = "SettingInfo.user.DateInfo.mday";
constexpr const char *brightness = "SettingInfo.user.backlightControl.brightness";
constexpr const char *dimmTime = "SettingInfo.user.backlightControl.dimmTimeSet";

// Oddity 13: February has 28 days in any year.
int daysOf(int month)
{
    if (month == 2) {
        return 28;
    }
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

QStringList timerItems(const QString &second)
{
    return {QStringLiteral("15") + second, QStringLiteral("30") + second, QStringLiteral("60") + second};
}

// The text of the key for no choice, then the numbers.
QStringList itemsFrom(const char *key, int first, int last)
{
    QStringList items{mainDialog->languageValue(QLatin1String(key))};
    for (int value = first; value <= last; ++value) {
        items.append(QString::number(value));
    }
    return items;
}

QStringList years() { return itemsFrom("Year", 2015, 2037); }

QStringList months() { return itemsFrom("Month", 1, 12); }

QStringList days(const QComboBox *month)
{
    return itemsFrom("UserDay", 1, daysOf(month->currentText().toInt()));
}

} // namespace

SettingUser::SettingUser(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::SettingUser>())
{
    ui->setupUi(this);
    choices = {
        {paths::tempConversion, {{ui->radioCelicious, "CENTIGRADE"}, {ui->radioFahreheit, "FAHRENHEIT"}}},
        {"SettingInfo.user.summerTime.enable",
         {{ui->radioSummerTimeNotuse, "CLR"}, {ui->radioSummerTimeUse, "SET"}}},
        {"SettingInfo.user.themeSet", {{ui->radioWhite, "white"}, {ui->radioBlack, "black"}}}};
    initUi();
}

SettingUser::~SettingUser() = default;

void SettingUser::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    pageShown = true;
    loadJsonData();
    setLoadJsonValue();
    validationCheck();
}

void SettingUser::initUi()
{
    fill(ui->comboBrightness, numbered(0, 30, 10, QStringLiteral("%")));
    fill(ui->comboScreenSaverTimer, timerItems(QStringLiteral("s")));
    fill(ui->comboDateYear, years());
    for (QComboBox *month : {ui->comboDateMonth, ui->comboStartMonth, ui->comboEndMonth}) {
        fill(month, months());
    }
    for (QComboBox *day : {ui->comboDateDay, ui->comboStartDay, ui->comboEndDay}) {
        fill(day, languageTexts({"UserDay"}));
    }
}

void SettingUser::blockComboBoxSignal(bool isBlock)
{
    for (QComboBox *combo :
         {ui->comboScreenSaverTimer, ui->comboBrightness, ui->comboDateYear, ui->comboDateMonth,
          ui->comboDateDay, ui->comboStartMonth, ui->comboStartDay, ui->comboEndMonth, ui->comboEndDay}) {
        combo->blockSignals(isBlock);
    }
}

void SettingUser::saveJsonData(const QString &path, const QJsonValue &value)
{
    if (pageShown) {
        write(path, value);
    }
}

QJsonValue SettingUser::parseJsonData(const QString &path) { return read(path); }

void SettingUser::loadJsonData()
{
    loadChoice(ui->radioCelicious);
    loadBacklight();
    const bool hasSummerTime = isSet(choiceOf(ui->radioSummerTimeUse).path);
    (hasSummerTime ? ui->radioSummerTimeUse : ui->radioSummerTimeNotuse)->setChecked(true);
    // An unknown theme leaves the radios as they are.
    checkStored(ui->radioWhite);
    enableSummerTime();
}

// Both are read before the first selection, whose slot writes; what isn't listed shows nothing, and the slot
// writes what it makes of that.
void SettingUser::loadBacklight()
{
    QString percent = word(brightness);
    QString seconds = word(dimmTime);
    if (!percent.isEmpty()) {
        selectText(ui->comboBrightness, percent.remove(QStringLiteral("BRIGHTNESS")) + QLatin1Char('%'));
    }
    if (!seconds.isEmpty()) {
        seconds.remove(QStringLiteral("BACKLIGHT")).remove(QLatin1Char('S'));
        selectText(ui->comboScreenSaverTimer,
                   seconds + mainDialog->languageValue(QStringLiteral("OperationSecond")));
    }
}

void SettingUser::setLoadJsonValue()
{
    loadDate();
    loadSummerDate(summerStart());
    loadSummerDate(summerEnd());
}

// The month's slot fills the days when the month changes.
void SettingUser::loadDate()
{
    const int day = number(dateDay);
    const int month = number(dateMonth);
    const int year = number(dateYear);
    const auto showNumber = [](QComboBox *list, int value) {
        value == unset ? list->setCurrentIndex(0) : selectText(list, QString::number(value));
    };
    showNumber(ui->comboDateYear, year);
    showNumber(ui->comboDateMonth, month);
    ui->comboDateDay->setEnabled(month != unset);
    showNumber(ui->comboDateDay, day);
}

SettingUser::SummerDate SettingUser::summerStart() const
{
    return {"SettingInfo.user.summerTime.start.mon", "SettingInfo.user.summerTime.start.day",
            ui->comboStartMonth, ui->comboStartDay};
}

SettingUser::SummerDate SettingUser::summerEnd() const
{
    return {"SettingInfo.user.summerTime.end.mon", "SettingInfo.user.summerTime.end.day", ui->comboEndMonth,
            ui->comboEndDay};
}

void SettingUser::loadSummerDate(const SummerDate &date)
{
    const int month = number(date.monthPath);
    const int day = number(date.dayPath);
    mainDialog->setComboByKey(date.month, QString::number(month));
    calcDay(date.month, date.day);
    mainDialog->setComboByKey(date.day, QString::number(day));
}

QString SettingUser::setOpacity(bool isEnabled) { return style::labelText(isEnabled); }

void SettingUser::enableSummerTime()
{
    enable(ui->radioSummerTimeUse->isChecked(), {ui->labelStartDay, ui->labelEndDay},
           {ui->comboStartDay, ui->comboStartMonth, ui->comboEndDay, ui->comboEndMonth});
}

void SettingUser::calcDay(QComboBox *Month, QComboBox *Date) { fill(Date, days(Month)); }

void SettingUser::calcDayInlanguage(QComboBox *Month, QComboBox *Date) { refill(Date, days(Month)); }

void SettingUser::validationCheck()
{
    const std::vector<const QComboBox *> dates{ui->comboDateYear,   ui->comboDateMonth, ui->comboEndMonth,
                                               ui->comboStartMonth, ui->comboDateDay,   ui->comboEndDay,
                                               ui->comboStartDay};
    const bool valid = choicesMade() && std::all_of(dates.begin(), dates.end(), [](const QComboBox *date) {
                           return MainDialog::checkValidationComboBox(date);
                       });
    if (valid) {
        qDebug() << "SettingUser::SettingUser validation succeed!";
    } else {
        qDebug() << "SettingUser::validationCheck failed!!";
    }
    mainDialog->setSettingTabValid(valid, MainDialog::UserTab);
}

void SettingUser::changeLanguage()
{
    setCaptions(*ui);
    changeLanguageInCombobox();
}

void SettingUser::changeLanguageInCombobox()
{
    refill(ui->comboDateYear, years());
    for (QComboBox *month : {ui->comboDateMonth, ui->comboStartMonth, ui->comboEndMonth}) {
        refill(month, months());
    }
    refill(ui->comboScreenSaverTimer,
           timerItems(mainDialog->languageValue(QStringLiteral("OperationSecond"))));
    calcDayInlanguage(ui->comboDateMonth, ui->comboDateDay);
    calcDayInlanguage(ui->comboStartMonth, ui->comboStartDay);
    calcDayInlanguage(ui->comboEndMonth, ui->comboEndDay);
}

// The unit drives the tool's own display as well.
void SettingUser::chooseUnit(const QRadioButton *radio, const QString &unit)
{
    save(radio);
    mainDialog->setTempUnit(unit);
    validationCheck();
}

void SettingUser::saveNumber(const char *path, const QString &text, const char *unsetKey)
{
    change(path, text == mainDialog->languageValue(QLatin1String(unsetKey)) ? unset : text.toInt());
}

// Oddity 14: unlike that of the date, the day stays enabled without a month, and the month is written all the
// same.
void SettingUser::saveSummerMonth(const SummerDate &date, const QString &text)
{
    const bool isUnset = text == mainDialog->languageValue(QStringLiteral("Month"));
    if (isUnset) {
        save(date.dayPath, unset);
    }
    calcDay(date.month, date.day);
    change(date.monthPath, isUnset ? unset : text.toInt());
}

void SettingUser::on_radioCelicious_clicked()
{
    chooseUnit(ui->radioCelicious, QStringLiteral("CENTIGRADE"));
}

void SettingUser::on_radioFahreheit_clicked()
{
    chooseUnit(ui->radioFahreheit, QStringLiteral("FAHRENHEIT"));
}

void SettingUser::on_comboScreenSaverTimer_currentTextChanged(const QString &text)
{
    QString seconds = text;
    seconds.remove(mainDialog->languageValue(QStringLiteral("OperationSecond")));
    change(dimmTime, QStringLiteral("BACKLIGHT") + seconds + QLatin1Char('S'));
}

void SettingUser::on_comboBrightness_currentTextChanged(const QString &text)
{
    change(brightness, QStringLiteral("BRIGHTNESS") + QString(text).remove(QLatin1Char('%')));
}

void SettingUser::on_comboDateYear_currentTextChanged(const QString &text)
{
    saveNumber(dateYear, text, "Year");
}

// Oddity 14: without a month the day is lost but the month's old number stays in the document.
void SettingUser::on_comboDateMonth_currentTextChanged(const QString &text)
{
    if (text == mainDialog->languageValue(QStringLiteral("Month"))) {
        ui->comboDateDay->setEnabled(false);
        save(dateDay, unset);
    } else {
        ui->comboDateDay->setEnabled(true);
        calcDay(ui->comboDateMonth, ui->comboDateDay);
        save(dateMonth, text.toInt());
    }
    validationCheck();
}

void SettingUser::on_comboDateDay_currentTextChanged(const QString &text)
{
    saveNumber(dateDay, text, "UserDay");
}

void SettingUser::on_radioSummerTimeNotuse_clicked()
{
    save(ui->radioSummerTimeNotuse);
    enableSummerTime();
    validationCheck();
}

// Oddity 35: without a check: the tab's mark waits for the next change or showing.
void SettingUser::on_radioSummerTimeUse_clicked()
{
    save(ui->radioSummerTimeUse);
    enableSummerTime();
}

void SettingUser::on_comboStartMonth_currentTextChanged(const QString &text)
{
    saveSummerMonth(summerStart(), text);
}

void SettingUser::on_comboStartDay_currentTextChanged(const QString &text)
{
    saveNumber(summerStart().dayPath, text, "UserDay");
}

void SettingUser::on_comboEndMonth_currentTextChanged(const QString &text)
{
    saveSummerMonth(summerEnd(), text);
}

void SettingUser::on_comboEndDay_currentTextChanged(const QString &text)
{
    saveNumber(summerEnd().dayPath, text, "UserDay");
}

void SettingUser::on_radioWhite_clicked() { change(ui->radioWhite); }

void SettingUser::on_radioBlack_clicked() { change(ui->radioBlack); }
