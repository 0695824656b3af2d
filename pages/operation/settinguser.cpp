#include "pages/operation/settinguser.h"

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_settinguser.h"

#include <QDebug>

namespace {

constexpr int unset = -9999;
constexpr const char *tempConversion = "SettingInfo.user.tempUnit.tempConversion";
constexpr const char *summerTime = "SettingInfo.user.summerTime.enable";
constexpr const char *themeSet = "SettingInfo.user.themeSet";

QString user(const char *key) { return QStringLiteral("SettingInfo.user.") + QLatin1String(key); }

QString summerStart() { return user("summerTime.start"); }

QString summerEnd() { return user("summerTime.end"); }

// February has 28 days in any year.
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
QStringList choices(const char *key, int first, int last)
{
    QStringList items{mainDialog->languageValue(QLatin1String(key))};
    for (int value = first; value <= last; ++value) {
        items.append(QString::number(value));
    }
    return items;
}

QStringList years() { return choices("Year", 2015, 2037); }

QStringList months() { return choices("Month", 1, 12); }

QStringList days(const QComboBox *month)
{
    return choices("UserDay", 1, daysOf(month->currentText().toInt()));
}

void fill(QComboBox *combo, const QStringList &items) { mainDialog->setComboItems(combo, items, -1); }

void refill(QComboBox *combo, const QStringList &items)
{
    mainDialog->refillComboItems(combo, items, combo->currentIndex());
}

// What isn't listed shows nothing, and the slot writes what it makes of that.
void select(QComboBox *combo, const QString &text)
{
    combo->setCurrentIndex(combo->findText(text, Qt::MatchFixedString));
}

void selectNumber(QComboBox *combo, int value)
{
    if (value == unset) {
        combo->setCurrentIndex(0);
    } else {
        select(combo, QString::number(value));
    }
}

} // namespace

SettingUser::SettingUser(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::SettingUser>())
{
    ui->setupUi(this);
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
    const QString unit = word(QLatin1String(tempConversion));
    const QString brightness = word(user("backlightControl.brightness"));
    const QString timer = word(user("backlightControl.dimmTimeSet"));
    const bool hasSummerTime = isSet(QLatin1String(summerTime));
    const QString theme = word(QLatin1String(themeSet));

    checkPair(unit, {ui->radioCelicious, "CENTIGRADE", ui->radioFahreheit, "FAHRENHEIT"});
    loadBacklight(brightness, timer);
    (hasSummerTime ? ui->radioSummerTimeUse : ui->radioSummerTimeNotuse)->setChecked(true);
    loadTheme(theme);
    enableSummerTime();
}

void SettingUser::loadBacklight(const QString &brightness, const QString &timer)
{
    if (!brightness.isEmpty()) {
        QString percent = brightness;
        select(ui->comboBrightness, percent.remove(QStringLiteral("BRIGHTNESS")) + QLatin1Char('%'));
    }
    if (!timer.isEmpty()) {
        QString seconds = timer;
        seconds.remove(QStringLiteral("BACKLIGHT")).remove(QLatin1Char('S'));
        select(ui->comboScreenSaverTimer,
               seconds + mainDialog->languageValue(QStringLiteral("OperationSecond")));
    }
}

// An unknown theme leaves the radios as they are.
void SettingUser::loadTheme(const QString &theme)
{
    if (theme == QLatin1String("WHITE")) {
        ui->radioWhite->setChecked(true);
    } else if (theme == QLatin1String("BLACK")) {
        ui->radioBlack->setChecked(true);
    }
}

void SettingUser::setLoadJsonValue()
{
    loadDate();
    loadSummerDates();
}

// The month's slot fills the days when the month changes.
void SettingUser::loadDate()
{
    const int day = number(user("DateInfo.mday"));
    const int month = number(user("DateInfo.month"));
    const int year = number(user("DateInfo.year"));
    selectNumber(ui->comboDateYear, year);
    selectNumber(ui->comboDateMonth, month);
    ui->comboDateDay->setEnabled(month != unset);
    selectNumber(ui->comboDateDay, day);
}

void SettingUser::loadSummerDates()
{
    const int endDay = number(summerEnd() + QStringLiteral(".day"));
    const int endMonth = number(summerEnd() + QStringLiteral(".mon"));
    const int startDay = number(summerStart() + QStringLiteral(".day"));
    const int startMonth = number(summerStart() + QStringLiteral(".mon"));
    mainDialog->setComboByKey(ui->comboStartMonth, QString::number(startMonth));
    calcDay(ui->comboStartMonth, ui->comboStartDay);
    mainDialog->setComboByKey(ui->comboStartDay, QString::number(startDay));
    mainDialog->setComboByKey(ui->comboEndMonth, QString::number(endMonth));
    calcDay(ui->comboEndMonth, ui->comboEndDay);
    mainDialog->setComboByKey(ui->comboEndDay, QString::number(endDay));
}

QString SettingUser::setOpacity(bool isEnabled) { return style::labelText(isEnabled); }

void SettingUser::enableSummerTime()
{
    const bool on = ui->radioSummerTimeUse->isChecked();
    style::apply(ui->labelStartDay, setOpacity(on));
    style::apply(ui->labelEndDay, setOpacity(on));
    for (QComboBox *combo : {ui->comboStartDay, ui->comboStartMonth, ui->comboEndDay, ui->comboEndMonth}) {
        combo->setEnabled(on);
    }
}

void SettingUser::calcDay(QComboBox *Month, QComboBox *Date) { fill(Date, days(Month)); }

void SettingUser::calcDayInlanguage(QComboBox *Month, QComboBox *Date) { refill(Date, days(Month)); }

void SettingUser::validationCheck()
{
    const auto radios = [](const QRadioButton *first, const QRadioButton *second) {
        return mainDialog->checkValidationRadio(first, second, nullptr);
    };
    const auto combo = [](const QComboBox *each) { return mainDialog->checkValidationComboBox(each); };
    const bool valid = radios(ui->radioCelicious, ui->radioFahreheit)
        && radios(ui->radioSummerTimeNotuse, ui->radioSummerTimeUse) && radios(ui->radioWhite, ui->radioBlack)
        && combo(ui->comboDateYear) && combo(ui->comboDateMonth) && combo(ui->comboEndMonth)
        && combo(ui->comboStartMonth) && combo(ui->comboDateDay) && combo(ui->comboEndDay)
        && combo(ui->comboStartDay);
    if (valid) {
        qDebug() << "SettingUser::SettingUser validation succeed!";
    } else {
        qDebug() << "SettingUser::validationCheck failed!!";
    }
    mainDialog->setSettingTabValid(valid, MainDialog::UserTab);
}

void SettingUser::changeLanguage()
{
    setCaptions({{ui->labelTempUnit, "TemperatureUnit"},
                 {ui->radioCelicious, "Celicious"},
                 {ui->radioFahreheit, "Fahrenheit"},
                 {ui->labelRemoteController, "BacklightControl"},
                 {ui->labelScreenSaverTimer, "ScreenSaverTimer"},
                 {ui->labelBrightness, "BRIGHTNESS"},
                 {ui->labelDate, "Date"},
                 {ui->labelSummerTime, "SummerTime"},
                 {ui->radioSummerTimeNotuse, "Off"},
                 {ui->radioSummerTimeUse, "On"},
                 {ui->labelStartDay, "StartDay"},
                 {ui->labelEndDay, "EndDay"},
                 {ui->labelRemoteTheme, "DisplayTheme"},
                 {ui->radioWhite, "White"},
                 {ui->radioBlack, "Black"}});
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

void SettingUser::choose(const QAbstractButton *button)
{
    saveChoice({{ui->radioCelicious, tempConversion, "CENTIGRADE"},
                {ui->radioFahreheit, tempConversion, "FAHRENHEIT"},
                {ui->radioSummerTimeNotuse, summerTime, "CLR"},
                {ui->radioSummerTimeUse, summerTime, "SET"},
                {ui->radioWhite, themeSet, "white"},
                {ui->radioBlack, themeSet, "black"}},
               button);
}

// The unit drives the tool's own display as well.
void SettingUser::chooseUnit(const QAbstractButton *button, const QString &unit)
{
    choose(button);
    mainDialog->setTempUnit(unit);
    validationCheck();
}

void SettingUser::saveNumber(const QString &path, const QString &text, const char *unsetKey)
{
    saveJsonData(path, text == mainDialog->languageValue(QLatin1String(unsetKey)) ? unset : text.toInt());
    validationCheck();
}

// Unlike that of the date, the day stays enabled without a month, and the month is written all the same.
void SettingUser::saveSummerMonth(const QString &date, const QString &text, QComboBox *month, QComboBox *day)
{
    const bool isUnset = text == mainDialog->languageValue(QStringLiteral("Month"));
    if (isUnset) {
        saveJsonData(date + QStringLiteral(".day"), unset);
    }
    calcDay(month, day);
    saveJsonData(date + QStringLiteral(".mon"), isUnset ? unset : text.toInt());
    validationCheck();
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
    saveJsonData(user("backlightControl.dimmTimeSet"),
                 QStringLiteral("BACKLIGHT") + seconds + QLatin1Char('S'));
    validationCheck();
}

void SettingUser::on_comboBrightness_currentTextChanged(const QString &text)
{
    QString percent = text;
    percent.remove(QLatin1Char('%'));
    saveJsonData(user("backlightControl.brightness"), QStringLiteral("BRIGHTNESS") + percent);
    validationCheck();
}

void SettingUser::on_comboDateYear_currentTextChanged(const QString &text)
{
    saveNumber(user("DateInfo.year"), text, "Year");
}

// Without a month the day is lost but the month's old number stays in the document.
void SettingUser::on_comboDateMonth_currentTextChanged(const QString &text)
{
    if (text == mainDialog->languageValue(QStringLiteral("Month"))) {
        ui->comboDateDay->setEnabled(false);
        saveJsonData(user("DateInfo.mday"), unset);
    } else {
        ui->comboDateDay->setEnabled(true);
        calcDay(ui->comboDateMonth, ui->comboDateDay);
        saveJsonData(user("DateInfo.month"), text.toInt());
    }
    validationCheck();
}

void SettingUser::on_comboDateDay_currentTextChanged(const QString &text)
{
    saveNumber(user("DateInfo.mday"), text, "UserDay");
}

void SettingUser::on_radioSummerTimeNotuse_clicked()
{
    choose(ui->radioSummerTimeNotuse);
    enableSummerTime();
    validationCheck();
}

// Without a check: the tab's mark waits for the next change or showing.
void SettingUser::on_radioSummerTimeUse_clicked()
{
    choose(ui->radioSummerTimeUse);
    enableSummerTime();
}

void SettingUser::on_comboStartMonth_currentTextChanged(const QString &text)
{
    saveSummerMonth(summerStart(), text, ui->comboStartMonth, ui->comboStartDay);
}

void SettingUser::on_comboStartDay_currentTextChanged(const QString &text)
{
    saveNumber(summerStart() + QStringLiteral(".day"), text, "UserDay");
}

void SettingUser::on_comboEndMonth_currentTextChanged(const QString &text)
{
    saveSummerMonth(summerEnd(), text, ui->comboEndMonth, ui->comboEndDay);
}

void SettingUser::on_comboEndDay_currentTextChanged(const QString &text)
{
    saveNumber(summerEnd() + QStringLiteral(".day"), text, "UserDay");
}

void SettingUser::on_radioWhite_clicked()
{
    choose(ui->radioWhite);
    validationCheck();
}

void SettingUser::on_radioBlack_clicked()
{
    choose(ui->radioBlack);
    validationCheck();
}
