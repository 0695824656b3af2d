#include "pages/operation/settingfunction.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/style.h"
#include "ui_settingfunction.h"

#include <QDebug>

/// Where a time of day is kept: twelve hours, and which half of the day.
struct SettingFunction::Clock {
    const char *hour;
    const char *ampm;
    const char *minute;
};

const SettingFunction::Clock SettingFunction::start{"SettingInfo.func.silentTimer.start.hour",
                                                    "SettingInfo.func.silentTimer.start.ampm",
                                                    "SettingInfo.func.silentTimer.start.min"};
const SettingFunction::Clock SettingFunction::end{"SettingInfo.func.silentTimer.end.hour",
                                                  "SettingInfo.func.silentTimer.end.ampm",
                                                  "SettingInfo.func.silentTimer.end.min"};

namespace {

QStringList twoDigits(int last)
{
    QStringList items;
    for (int value = 0; value <= last; ++value) {
        items.append(QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0')));
    }
    return items;
}

// Oddity 12: PM 12 is midnight here, though noon is saved as AM 12. Later hours aren't listed and show as
// midnight too.
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

} // namespace

SettingFunction::SettingFunction(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::SettingFunction>())
{
    ui->setupUi(this);
    choices = {{"SettingInfo.func.silentTimer.set",
                {{ui->radioSlientModeNotuse, "CLR"}, {ui->radioSlientModeUse, "SET"}}},
               {"SettingInfo.func.lock.buttonLock",
                {{ui->radioAllButtonNone, "CLR"}, {ui->radioAllButtonUse, "SET"}}},
               {"SettingInfo.func.lock.onoffLock",
                {{ui->radioOnOffButtonNone, "CLR"}, {ui->radioOnOffButtonUse, "SET"}}},
               {"SettingInfo.func.lock.modelock",
                {{ui->radioOperationModeButtonNone, "CLR"}, {ui->radioOperationModeButtonUse, "SET"}}},
               {"SettingInfo.func.lock.hotwaterOnOfflock",
                {{ui->radioDhwOnOffNone, "CLR"}, {ui->radioDhwOnOffUse, "SET"}}}};
    lists = {{ui->comboDefrostMode, "SettingInfo.func.installDefrostMode", Shown::Key}};
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
    const bool hasSilentMode = word("IduFuncList.isSilentDisable") == QLatin1String("CLR");
    const bool isMaster = word(paths::oduFunction) == QLatin1String("MASTER");
    const bool remoteHasPriority = isSet(flags::silentPriority)
        && word(paths::silentPriority) == QLatin1String("RMCSETTING");

    offerGroup(ui->groupBoxSilentMode, hasSilentMode || (isMaster && remoteHasPriority));
    loadChoice(ui->radioSlientModeUse);
    ui->groupBoxDHWOnOff->setVisible(isSet(flags::hotWater));
    loadLocks();
    const bool hasDefrostMode = isSet("IduFuncList.isDefrostMode") && isMaster;
    offerGroup(ui->groupBoxOdeFunction, hasDefrostMode);
    if (hasDefrostMode) {
        loadLists(lists);
    }
    enableSilentMode();
}

// Oddity 30: whatever isn't "CLR" counts as locked. All lock leaves the radios of the other locks as they
// are.
void SettingFunction::loadLocks()
{
    const auto isLocked = [this](const QRadioButton *lock) {
        return word(choiceOf(lock).path) != QLatin1String("CLR");
    };
    const bool all = isLocked(ui->radioAllButtonUse);
    allButtonLock(all);
    if (!all) {
        onoffButtonLock(isLocked(ui->radioOnOffButtonUse));
        modeButtonLock(isLocked(ui->radioOperationModeButtonUse));
        hotWaterButtonLock(isLocked(ui->radioDhwOnOffUse));
    }
}

// Everything is read before the first selection, whose slot writes.
void SettingFunction::setloadJsonValue()
{
    const int startHour = hourOfDay(number(start.hour), word(start.ampm));
    const int startMinute = number(start.minute);
    const int endHour = hourOfDay(number(end.hour), word(end.ampm));
    const int endMinute = number(end.minute);

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
    enable(ui->radioSlientModeUse->isChecked(), {ui->labelStratTime, ui->labelEndTime},
           {ui->comboSilentEndHour, ui->comboSilentEndMin, ui->comboSilentStartHour, ui->comboSilentStartMin,
            ui->groupBoxSilentModeSub});
}

void SettingFunction::allButtonLock(bool isLock)
{
    checkLock(ui->radioAllButtonNone, ui->radioAllButtonUse, isLock);
    enable(!isLock, {ui->labelOnOff, ui->labelOperationMode, ui->labelDHW},
           {ui->groupBoxOnOffLock, ui->groupBoxModeLock, ui->groupBoxDHWOnOff});
    for (QRadioButton *radio :
         {ui->radioOnOffButtonNone, ui->radioOnOffButtonUse, ui->radioOperationModeButtonNone,
          ui->radioOperationModeButtonUse, ui->radioDhwOnOffNone, ui->radioDhwOnOffUse}) {
        style::apply(radio, setRadioTextOpacity(!isLock));
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
    const bool valid = choicesMade();
    if (valid) {
        qDebug() << "SettingFunction::validationCheck succeed!";
    } else {
        qDebug() << "SettingFunction::validationCheck failed!!";
    }
    mainDialog->setSettingTabValid(valid, MainDialog::FunctionTab);
}

void SettingFunction::changeLanguage()
{
    setCaptions(*ui);
    changeLanguageInCombobox();
}

void SettingFunction::changeLanguageInCombobox()
{
    refill(ui->comboDefrostMode, languageTexts({"STEP0", "STEP1", "STEP2", "STEP3"}));
}

void SettingFunction::chooseSilentMode(const QRadioButton *radio)
{
    save(radio);
    enableSilentMode();
    validationCheck();
}

void SettingFunction::chooseAllLock(const QRadioButton *radio)
{
    save(radio);
    allButtonLock(ui->radioAllButtonUse->isChecked());
    validationCheck();
}

// Oddity 11: the lists show 24 hours, the document counts twelve. Noon becomes AM 12 and midnight AM 0.
void SettingFunction::saveHour(const Clock &clock, const QString &text)
{
    const int hour = text.toInt();
    const bool afternoon = hour >= 13;
    save(clock.hour, afternoon ? hour - 12 : hour);
    change(clock.ampm, afternoon ? "PM" : "AM");
}

void SettingFunction::on_radioSlientModeNotuse_clicked() { chooseSilentMode(ui->radioSlientModeNotuse); }

void SettingFunction::on_radioSlientModeUse_clicked() { chooseSilentMode(ui->radioSlientModeUse); }

void SettingFunction::on_comboSilentStartHour_currentTextChanged(const QString &text)
{
    saveHour(start, text);
}

void SettingFunction::on_comboSilentStartMin_currentTextChanged(const QString &text)
{
    change(start.minute, text.toInt());
}

void SettingFunction::on_comboSilentEndHour_currentTextChanged(const QString &text) { saveHour(end, text); }

void SettingFunction::on_comboSilentEndMin_currentTextChanged(const QString &text)
{
    change(end.minute, text.toInt());
}

void SettingFunction::on_radioAllButtonNone_clicked() { chooseAllLock(ui->radioAllButtonNone); }

void SettingFunction::on_radioAllButtonUse_clicked() { chooseAllLock(ui->radioAllButtonUse); }

void SettingFunction::on_radioOnOffButtonNone_clicked() { change(ui->radioOnOffButtonNone); }

void SettingFunction::on_radioOnOffButtonUse_clicked()
{
    qDebug() << "SettingFunction::on_radioOnOffButtonUse_clicked";
    change(ui->radioOnOffButtonUse);
}

void SettingFunction::on_radioOperationModeButtonNone_clicked() { change(ui->radioOperationModeButtonNone); }

void SettingFunction::on_radioOperationModeButtonUse_clicked() { change(ui->radioOperationModeButtonUse); }

void SettingFunction::on_radioDhwOnOffNone_clicked() { change(ui->radioDhwOnOffNone); }

void SettingFunction::on_radioDhwOnOffUse_clicked() { change(ui->radioDhwOnOffUse); }

void SettingFunction::on_comboDefrostMode_currentTextChanged(const QString &text)
{
    change(ui->comboDefrostMode, text);
}
