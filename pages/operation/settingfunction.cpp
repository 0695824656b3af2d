#include "pages/operation/settingfunction.h"

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_settingfunction.h"

#include <QDebug>

namespace {

constexpr const char *silentSet = "SettingInfo.func.silentTimer.set";
constexpr const char *allLock = "SettingInfo.func.lock.buttonLock";
constexpr const char *onOffLock = "SettingInfo.func.lock.onoffLock";
constexpr const char *modeLock = "SettingInfo.func.lock.modelock";
constexpr const char *hotWaterLock = "SettingInfo.func.lock.hotwaterOnOfflock";
constexpr const char *defrostMode = "SettingInfo.func.installDefrostMode";

QString startClock() { return QStringLiteral("SettingInfo.func.silentTimer.start"); }

QString endClock() { return QStringLiteral("SettingInfo.func.silentTimer.end"); }

QStringList twoDigits(int last)
{
    QStringList items;
    for (int value = 0; value <= last; ++value) {
        items.append(QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0')));
    }
    return items;
}

// PM 12 is midnight here, though noon is saved as AM 12. Later hours aren't listed and show as midnight too.
int hourOfDay(int hour, const QString &ampm)
{
    if (ampm != QLatin1String("PM")) {
        return hour;
    }
    return hour < 12 ? hour + 12 : 0;
}

void checkLock(QRadioButton *release, QRadioButton *lock, bool isLock)
{
    (isLock ? lock : release)->setChecked(true);
}

void open(QWidget *group, bool isOpen)
{
    group->setEnabled(isOpen);
    group->setVisible(isOpen);
}

} // namespace

SettingFunction::SettingFunction(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::SettingFunction>())
{
    ui->setupUi(this);
    initUi();
}

SettingFunction::~SettingFunction() = default;

void SettingFunction::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    loadJsonData();
    mainDialog->setCurrentStep(3);
    validationCheck();
    setloadJsonValue();
}

// With live signals: the slots find no document yet, and their check lets the hidden page pass.
void SettingFunction::initUi()
{
    ui->comboSilentStartHour->addItems(twoDigits(23));
    ui->comboSilentStartMin->addItems(twoDigits(59));
    ui->comboSilentEndHour->addItems(twoDigits(23));
    ui->comboSilentEndMin->addItems(twoDigits(59));
    ui->comboDefrostMode->addItems(
        {QStringLiteral("STEP0"), QStringLiteral("STEP1"), QStringLiteral("STEP2"), QStringLiteral("STEP3")});
}

// Unguarded: only an empty document takes nothing.
void SettingFunction::saveJsonData(const QString &path, const QJsonValue &value)
{
    writeUnlessEmpty(path, value);
}

QJsonValue SettingFunction::parseJsonData(const QString &path) { return read(path); }

void SettingFunction::loadJsonData()
{
    const QString silent = word(QLatin1String(silentSet));
    const QString all = word(QLatin1String(allLock));
    const QString hotWater = word(QLatin1String(hotWaterLock));
    const QString mode = word(QLatin1String(modeLock));
    const QString onOff = word(QLatin1String(onOffLock));
    const bool hasSilentMode = word(flagPath("isSilentDisable")) == QLatin1String("CLR");
    const bool hasPriority = flag("isSilentPriority");
    const bool isMaster = word(installation("OduFunctionMS")) == QLatin1String("MASTER");
    const bool remoteHasPriority = word(installation("silentModePriority")) == QLatin1String("RMCSETTING");

    open(ui->groupBoxSilentMode, hasSilentMode || (hasPriority && isMaster && remoteHasPriority));
    checkPair(silent, {ui->radioSlientModeNotuse, "CLR", ui->radioSlientModeUse, "SET"});
    ui->groupBoxDHWOnOff->setVisible(flag("is_hotwater"));
    loadLocks(all, onOff, mode, hotWater);
    loadDefrostMode(isMaster);
    enableSilentMode();
}

// Whatever isn't "CLR" counts as locked. All lock leaves the radios of the other locks as they are.
void SettingFunction::loadLocks(const QString &all, const QString &onOff, const QString &mode,
                                const QString &hotWater)
{
    const QLatin1String released("CLR");
    allButtonLock(all != released);
    if (all != released) {
        return;
    }
    checkLock(ui->radioOnOffButtonNone, ui->radioOnOffButtonUse, onOff != released);
    checkLock(ui->radioOperationModeButtonNone, ui->radioOperationModeButtonUse, mode != released);
    checkLock(ui->radioDhwOnOffNone, ui->radioDhwOnOffUse, hotWater != released);
}

void SettingFunction::loadDefrostMode(bool isMaster)
{
    const bool hasDefrostMode = flag("isDefrostMode");
    const QString step = text(QLatin1String(defrostMode));
    open(ui->groupBoxOdeFunction, hasDefrostMode && isMaster);
    if (hasDefrostMode && isMaster) {
        mainDialog->setComboByKey(ui->comboDefrostMode, step);
    }
}

// Everything is read before the first selection, whose slot writes.
void SettingFunction::setloadJsonValue()
{
    const auto readHour = [](const QString &clock) {
        const QString ampm = word(clock + QStringLiteral(".ampm"));
        return hourOfDay(number(clock + QStringLiteral(".hour")), ampm);
    };
    const auto readMinute = [](const QString &clock) { return number(clock + QStringLiteral(".min")); };
    const int startHour = readHour(startClock());
    const int startMinute = readMinute(startClock());
    const int endHour = readHour(endClock());
    const int endMinute = readMinute(endClock());

    const auto select = [this](QComboBox *combo, int value) {
        mainDialog->setComboByKey(combo, value < 0 ? QString() : convertTimeValueByJson(value));
    };
    select(ui->comboSilentStartHour, startHour);
    select(ui->comboSilentStartMin, startMinute);
    select(ui->comboSilentEndMin, endMinute);
    select(ui->comboSilentEndHour, endHour);
}

QString SettingFunction::convertTimeValueByJson(int jsonValue)
{
    const QString plain = QString::number(jsonValue);
    return jsonValue >= 0 && jsonValue <= 9 ? QLatin1Char('0') + plain : plain;
}

QString SettingFunction::calcurateTime(int value, const QString &ampm)
{
    if (ampm.toUpper() == QLatin1String("PM")) {
        return QString::number(value + 12);
    }
    return value < 10 ? QLatin1Char('0') + QString::number(value) : QString();
}

QString SettingFunction::setOpacity(bool isEnabled) { return style::labelText(isEnabled); }

QString SettingFunction::setRadioTextOpacity(bool isEnabled) { return style::radioText(isEnabled); }

void SettingFunction::enableSilentMode()
{
    const bool on = ui->radioSlientModeUse->isChecked();
    for (QComboBox *combo :
         {ui->comboSilentEndHour, ui->comboSilentEndMin, ui->comboSilentStartHour, ui->comboSilentStartMin}) {
        combo->setEnabled(on);
    }
    style::apply(ui->labelStratTime, setOpacity(on));
    style::apply(ui->labelEndTime, setOpacity(on));
    ui->groupBoxSilentModeSub->setEnabled(on);
}

void SettingFunction::allButtonLock(bool isLock)
{
    checkLock(ui->radioAllButtonNone, ui->radioAllButtonUse, isLock);
    for (QWidget *group : {ui->groupBoxOnOffLock, ui->groupBoxModeLock, ui->groupBoxDHWOnOff}) {
        group->setEnabled(!isLock);
    }
    for (QRadioButton *radio :
         {ui->radioOnOffButtonNone, ui->radioOnOffButtonUse, ui->radioOperationModeButtonNone,
          ui->radioOperationModeButtonUse, ui->radioDhwOnOffNone, ui->radioDhwOnOffUse}) {
        style::apply(radio, setRadioTextOpacity(!isLock));
    }
    for (QLabel *label : {ui->labelOnOff, ui->labelOperationMode, ui->labelDHW}) {
        style::apply(label, setOpacity(!isLock));
    }
}

void SettingFunction::onoffButtonLock(bool isLock)
{
    checkLock(ui->radioOnOffButtonNone, ui->radioOnOffButtonUse, isLock);
}

void SettingFunction::modeButtonLock(bool isLock)
{
    checkLock(ui->radioOperationModeButtonNone, ui->radioOperationModeButtonUse, isLock);
}

void SettingFunction::hotWaterButtonLock(bool isLock)
{
    checkLock(ui->radioDhwOnOffNone, ui->radioDhwOnOffUse, isLock);
}

void SettingFunction::validationCheck()
{
    const auto chosen = [](const QRadioButton *first, const QRadioButton *second) {
        return mainDialog->checkValidationRadio(first, second, nullptr);
    };
    const bool valid = chosen(ui->radioSlientModeNotuse, ui->radioSlientModeUse)
        && chosen(ui->radioAllButtonNone, ui->radioAllButtonUse)
        && chosen(ui->radioOnOffButtonNone, ui->radioOnOffButtonUse)
        && chosen(ui->radioOperationModeButtonNone, ui->radioOperationModeButtonUse)
        && chosen(ui->radioDhwOnOffNone, ui->radioDhwOnOffUse);
    if (valid) {
        qDebug() << "SettingFunction::validationCheck succeed!";
    } else {
        qDebug() << "SettingFunction::validationCheck failed!!";
    }
    mainDialog->setSettingTabValid(valid, MainDialog::FunctionTab);
}

void SettingFunction::changeLanguage()
{
    setCaptions({{ui->labelSilentMode, "SilentMode"},
                 {ui->radioSlientModeNotuse, "Off"},
                 {ui->radioSlientModeUse, "On"},
                 {ui->labelStratTime, "SilentModeStartTime"},
                 {ui->labelEndTime, "SilentModeEndTime"},
                 {ui->labelLock, "LockTitle"},
                 {ui->labelAll, "AllButtonLock"},
                 {ui->radioAllButtonNone, "Release"},
                 {ui->radioAllButtonUse, "Lock"},
                 {ui->labelOnOff, "OnOffButtonLock"},
                 {ui->radioOnOffButtonNone, "Release"},
                 {ui->radioOnOffButtonUse, "Lock"},
                 {ui->labelOperationMode, "OperationModeButtonLock"},
                 {ui->radioOperationModeButtonNone, "Release"},
                 {ui->radioOperationModeButtonUse, "Lock"},
                 {ui->labelDHW, "DHWOnOffButtonLock"},
                 {ui->radioDhwOnOffNone, "Release"},
                 {ui->radioDhwOnOffUse, "Lock"},
                 {ui->labelODEFunction, "ODEFunction"},
                 {ui->labelDSR, "DefrostSnowRemove"}});
    changeLanguageInCombobox();
}

void SettingFunction::changeLanguageInCombobox()
{
    mainDialog->refillComboItems(ui->comboDefrostMode, languageTexts({"STEP0", "STEP1", "STEP2", "STEP3"}),
                                 ui->comboDefrostMode->currentIndex());
}

void SettingFunction::choose(const QAbstractButton *button)
{
    saveChoice({{ui->radioSlientModeNotuse, silentSet, "CLR"},
                {ui->radioSlientModeUse, silentSet, "SET"},
                {ui->radioAllButtonNone, allLock, "CLR"},
                {ui->radioAllButtonUse, allLock, "SET"},
                {ui->radioOnOffButtonNone, onOffLock, "CLR"},
                {ui->radioOnOffButtonUse, onOffLock, "SET"},
                {ui->radioOperationModeButtonNone, modeLock, "CLR"},
                {ui->radioOperationModeButtonUse, modeLock, "SET"},
                {ui->radioDhwOnOffNone, hotWaterLock, "CLR"},
                {ui->radioDhwOnOffUse, hotWaterLock, "SET"}},
               button);
}

void SettingFunction::chooseSilentMode(const QAbstractButton *button)
{
    choose(button);
    enableSilentMode();
    validationCheck();
}

void SettingFunction::chooseAllLock(const QAbstractButton *button)
{
    choose(button);
    allButtonLock(ui->radioAllButtonUse->isChecked());
    validationCheck();
}

void SettingFunction::chooseLock(const QAbstractButton *button)
{
    choose(button);
    validationCheck();
}

// The lists show 24 hours, the document counts twelve. Noon becomes AM 12 and midnight AM 0.
void SettingFunction::saveHour(const QString &clock, const QString &text)
{
    const int hour = text.toInt();
    const bool afternoon = hour >= 13;
    saveJsonData(clock + QStringLiteral(".hour"), afternoon ? hour - 12 : hour);
    saveJsonData(clock + QStringLiteral(".ampm"), afternoon ? QStringLiteral("PM") : QStringLiteral("AM"));
    validationCheck();
}

void SettingFunction::saveMinute(const QString &clock, const QString &text)
{
    saveJsonData(clock + QStringLiteral(".min"), text.toInt());
    validationCheck();
}

void SettingFunction::on_radioSlientModeNotuse_clicked() { chooseSilentMode(ui->radioSlientModeNotuse); }

void SettingFunction::on_radioSlientModeUse_clicked() { chooseSilentMode(ui->radioSlientModeUse); }

void SettingFunction::on_comboSilentStartHour_currentTextChanged(const QString &text)
{
    saveHour(startClock(), text);
}

void SettingFunction::on_comboSilentStartMin_currentTextChanged(const QString &text)
{
    saveMinute(startClock(), text);
}

void SettingFunction::on_comboSilentEndHour_currentTextChanged(const QString &text)
{
    saveHour(endClock(), text);
}

void SettingFunction::on_comboSilentEndMin_currentTextChanged(const QString &text)
{
    saveMinute(endClock(), text);
}

void SettingFunction::on_radioAllButtonNone_clicked() { chooseAllLock(ui->radioAllButtonNone); }

void SettingFunction::on_radioAllButtonUse_clicked() { chooseAllLock(ui->radioAllButtonUse); }

void SettingFunction::on_radioOnOffButtonNone_clicked() { chooseLock(ui->radioOnOffButtonNone); }

void SettingFunction::on_radioOnOffButtonUse_clicked()
{
    qDebug() << "SettingFunction::on_radioOnOffButtonUse_clicked";
    chooseLock(ui->radioOnOffButtonUse);
}

void SettingFunction::on_radioOperationModeButtonNone_clicked()
{
    chooseLock(ui->radioOperationModeButtonNone);
}

void SettingFunction::on_radioOperationModeButtonUse_clicked()
{
    chooseLock(ui->radioOperationModeButtonUse);
}

void SettingFunction::on_radioDhwOnOffNone_clicked() { chooseLock(ui->radioDhwOnOffNone); }

void SettingFunction::on_radioDhwOnOffUse_clicked() { chooseLock(ui->radioDhwOnOffUse); }

void SettingFunction::on_comboDefrostMode_currentTextChanged(const QString &text)
{
    saveJsonData(QLatin1String(defrostMode), mainDialog->languageKeyOrText(text));
    validationCheck();
}
