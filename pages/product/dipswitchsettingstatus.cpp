#include "pages/product/dipswitchsettingstatus.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/product/choicerows.h"
#include "pages/style.h"
#include "ui_dipswitchsettingstatus.h"

#include <QEvent>
#include <QRegExpValidator>

#include <algorithm>

DipSwitchSettingStatus::DipSwitchSettingStatus(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::DipSwitchSettingStatus>())
{
    ui->setupUi(this);
    // In the order of the check. Three of them depend on several flags; their slots save these.
    choices = {
        {nullptr, {{ui->radioDhwUse}, {ui->radioDhwOnly}, {ui->radioDhwNotUse}}},
        {flags::sun, {{ui->radioSolarThermalKitNotuse, "CLR"}, {ui->radioSolarThermalKitUse, "SET"}}},
        {nullptr, {{ui->radioOperationHeating}, {ui->radioOperationBoth}}},
        {"IduFuncList.is_flow_switch", {{ui->radioFlowAlways, "CLR"}, {ui->radioFlowOnlyPump, "SET"}}},
        {flags::iduAirTempSw, {{ui->radioAdditionalAirNotUse, "CLR"}, {ui->radioAdditionalAirUse, "SET"}}},
        {nullptr,
         {{ui->radioElectricHeater1}, {ui->radioElectricHeaterBoth}, {ui->radioElectricHeaterNotuse}}},
        {flags::antiFreeze, {{ui->radioAntifreezeNotuse, "CLR"}, {ui->radioAntifreezeUse, "SET"}}},
        {"IduFuncList.is_ThermostatModeChange",
         {{ui->radioThermostatNone, "CLR"}, {ui->radioThermostatUse, "SET"}}},
        // Oddity 4: the slave saves "MASTER" as well; "SLAVE" is only ever read.
        {paths::oduFunction, {{ui->radioOduMaster, "MASTER"}, {ui->radioOduSlave, "MASTER"}}},
        {paths::silentPriority, {{ui->radioSilentODU, "oduSwitch"}, {ui->radioSilentRemote, "rmcSetting"}}}};
    initUi();
}

DipSwitchSettingStatus::~DipSwitchSettingStatus() = default;

bool DipSwitchSettingStatus::event(QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        placeRows();
    }
    return Page::event(event);
}

bool DipSwitchSettingStatus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        placeRows();
    }
    return Page::eventFilter(watched, event);
}

// The guide beside the options has all the room that it needs; they scroll in what it leaves.
void DipSwitchSettingStatus::placeRows()
{
    // A page that isn't shown isn't measured: the start would pay for it.
    if (!isVisibleTo(window())) {
        return;
    }
    constexpr int edges = 4;      // of the card
    constexpr int roomOfBar = 12; // beside the rows
    // Bank C may have come or gone, which the guide learns from within.
    for (QLayout *part :
         std::initializer_list<QLayout *>{ui->layout_bankC, ui->layout_smallBanks, ui->layout_guide}) {
        part->activate();
    }
    const QMargins page = layout()->contentsMargins();
    const QMargins margins = ui->layout_optionRows->contentsMargins();
    const int rowsWidth = width() - page.left() - page.right() - ui->guide->minimumSizeHint().width()
        - ui->layout_columns->spacing() - edges - roomOfBar;
    choiceRows->place(rowsWidth - margins.left() - margins.right());
    QLayout *rows = ui->layout_optionRows;
    const int height = rows->hasHeightForWidth() ? rows->totalHeightForWidth(rowsWidth)
                                                 : rows->totalSizeHint().height();
    ui->groupBoxOptions->setMaximumHeight(height + edges);
    endTogether(std::min(height + edges, ui->columns->height()));
}

// Cards beside each other end together, or well apart.
void DipSwitchSettingStatus::endTogether(int options)
{
    constexpr int nearMiss = 16;
    const int beyond = options - ui->guide->sizeHint().height();
    ui->guide->setMinimumHeight(beyond > 0 && beyond < nearMiss ? options : 0);
}

void DipSwitchSettingStatus::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    mainDialog->setCurrentStep(2);
    pageShown = true;
    loadJsonData();
    validationCheck();
    placeRows();
}

void DipSwitchSettingStatus::initUi()
{
    makeChoiceRows();
    ui->optionRows->installEventFilter(this);
    ui->radioFlowAlways->setChecked(true);
    // Up to four digits and one decimal: the document holds tenths.
    auto *pulses = new QRegExpValidator(
        QRegExp(QStringLiteral("^[0-9]\\d{0,3}(?:\\.\\d)?$|^0\\.[0-9]$"), Qt::CaseSensitive), this);
    for (QLineEdit *edit : pulseEdits()) {
        edit->setValidator(pulses);
    }
    for (QPushButton *button : {ui->DipSwitch11, ui->DipSwitch12, ui->DipSwitch13, ui->DipSwitch14,
                                ui->DipSwitch21, ui->DipSwitch22, ui->DipSwitch23, ui->DipSwitch24,
                                ui->DipSwitch25, ui->DipSwitch26, ui->DipSwitch27, ui->DipSwitch28,
                                ui->DipSwitch31, ui->DipSwitch32, ui->DipSwitch33, ui->DipSwitch34}) {
        turn({{button, false}});
    }
}

void DipSwitchSettingStatus::makeChoiceRows()
{
    constexpr int belowTheInterface = 12;
    for (QLabel *label :
         {ui->labelOrvoAddress, ui->labelOrvoWHM1, ui->labelOrvoWHM2, ui->labelOrvoWHM3, ui->labelOrvoWHM4}) {
        label->setContentsMargins(belowTheInterface, 0, 0, 0);
    }
    choiceRows = std::make_unique<ChoiceRows>(
        std::vector<ChoiceRows::Row>{
            {ui->layout_groupBoxDhw,
             0,
             ui->labelDWH,
             {ui->radioDhwNotUse, ui->radioDhwUse, ui->radioDhwOnly, ui->labelDhwSpacing}},
            {ui->layout_groupBoxSolar,
             0,
             ui->labelSolar,
             {ui->radioSolarThermalKitNotuse, ui->radioSolarThermalKitUse}},
            {ui->layout_groupBoxOperation,
             0,
             ui->labelOperation,
             {ui->radioOperationHeating, ui->radioOperationBoth}},
            {ui->layout_groupBoxFlowSwitch,
             0,
             ui->labelFlowSwitch,
             {ui->radioFlowAlways, ui->radioFlowOnlyPump}},
            {ui->layout_groupBoxElectricHeater,
             0,
             ui->labelElectric,
             {ui->radioElectricHeaterNotuse, ui->radioElectricHeater1, ui->radioElectricHeaterBoth}},
            {ui->layout_groupBoxThermostat,
             0,
             ui->labelThermostat,
             {ui->radioThermostatNone, ui->radioThermostatUse}},
            {ui->layout_groupBoxMeterAddress,
             0,
             ui->labelOrvometerInterface,
             {ui->radioOrvometerInterfaceNotuse}},
            {ui->layout_groupBoxMeterAddress,
             ChoiceRows::nextLine,
             ui->labelOrvoAddress,
             {ui->radioOrvoAddressB0, ui->radioOrvoAddressB1}},
            {ui->layout_groupBoxOduMasterSlave,
             0,
             ui->labelODUFunctionMaster,
             {ui->radioOduMaster, ui->radioOduSlave}},
            {ui->layout_groupBoxSilentModePriority,
             0,
             ui->labelSilentMode,
             {ui->radioSilentODU, ui->radioSilentRemote}},
            {ui->layout_groupBoxAdditionalAir,
             0,
             ui->labelAdditionalAir,
             {ui->radioAdditionalAirNotUse, ui->radioAdditionalAirUse}},
            {ui->layout_groupBoxAntifreeze,
             0,
             ui->labelAtifreeze,
             {ui->radioAntifreezeNotuse, ui->radioAntifreezeUse}}},
        std::vector<QLabel *>{ui->labelOrvoWHM1, ui->labelOrvoWHM2, ui->labelOrvoWHM3, ui->labelOrvoWHM4});
}

std::vector<QLineEdit *> DipSwitchSettingStatus::pulseEdits() const
{
    return {ui->lineEditWHM1, ui->lineEditWHM2, ui->lineEditWHM3, ui->lineEditWHM4};
}

void DipSwitchSettingStatus::saveJsonData(const QString &path, const QJsonValue &value)
{
    if (pageShown) {
        writeUnlessEmpty(path, value);
    }
}

QJsonValue DipSwitchSettingStatus::parseJsonData(const QString &path) { return read(path); }

// The look of switches, radios and labels

// The text and the picture are always set together.
void DipSwitchSettingStatus::turn(std::initializer_list<Switch> switches)
{
    for (const auto &[button, on] : switches) {
        style::apply(button, setDipSwitchButton(on));
        button->setText(on ? QStringLiteral("true") : QStringLiteral("false"));
    }
}

QString DipSwitchSettingStatus::setDipSwitchButton(bool onCheck)
{
    return QStringLiteral("QPushButton{border : none; image: url(:/images/btn_step2_switch_%1.png); "
                          "background-color:rgb(214, 214, 214); color : rgba(0,0,0,0%);}")
        .arg(onCheck ? QStringLiteral("on") : QStringLiteral("off"));
}

QString DipSwitchSettingStatus::setRadioTextOpacity(bool isEnabled) { return style::radioText(isEnabled); }

// This page's labels are darker than those of the other pages.
QString DipSwitchSettingStatus::setOpacity(bool isEnabled)
{
    return isEnabled ? QStringLiteral("color : #333333;") : QStringLiteral("color : rgba(33,33,33,30%)");
}

// Load

void DipSwitchSettingStatus::loadJsonData()
{
    const QString product = word(paths::product);
    loadProduct(product);
    loadHotWater(product == QLatin1String("AQUABOX"));
    if (enableSolarThermalKit()) {
        showSolarThermalKit();
    }
    loadOperationMode();
    turn({{ui->DipSwitch31, loadPair(ui->radioAdditionalAirUse, ui->radioAdditionalAirNotUse)}});
    // Oddity 21: switch 25 is left alone: it stays as drawn until a flow radio is clicked.
    loadPair(ui->radioFlowOnlyPump, ui->radioFlowAlways);
    loadElectricHeater();
    turn({{ui->DipSwitch32, loadPair(ui->radioAntifreezeUse, ui->radioAntifreezeNotuse)}});
    showBankC(!isSet(flags::r410CoolExpand));
    turn({{ui->DipSwitch28, loadPair(ui->radioThermostatUse, ui->radioThermostatNone)}});
    enableOrvoMeterSubCategory();
    loadOduFunction(product == QLatin1String("AWHP"));
    enableOduFunctionMaster();
    setOrvoSubCategory();
}

void DipSwitchSettingStatus::loadProduct(const QString &product)
{
    const bool aquabox = product == QLatin1String("AQUABOX");
    if (!aquabox && product != QLatin1String("AWHP")) {
        return;
    }
    for (QRadioButton *radio :
         {ui->radioOduMaster, ui->radioOduSlave, ui->radioSilentODU, ui->radioSilentRemote}) {
        radio->setEnabled(aquabox);
    }
    style::apply(ui->labelODUFunctionMaster, setOpacity(aquabox));
    style::apply(ui->labelSilentMode, setOpacity(aquabox));
    ui->radioDhwOnly->setVisible(aquabox);
    ui->labelDhwSpacing->setVisible(!aquabox);
    offerGroup(ui->groupBoxOduFunctionMaster, aquabox);
}

void DipSwitchSettingStatus::loadHotWater(bool aquabox)
{
    const bool hotWater = isSet(flags::hotWater);
    const bool boosterOnly = isSet(flags::boosterOnly);
    if (aquabox && boosterOnly) {
        turn({{ui->DipSwitch22, true}, {ui->DipSwitch23, true}});
        ui->radioDhwOnly->setChecked(true);
    } else {
        turn({{ui->DipSwitch22, false}, {ui->DipSwitch23, hotWater}});
        (hotWater ? ui->radioDhwUse : ui->radioDhwNotUse)->setChecked(true);
    }
}

void DipSwitchSettingStatus::loadOperationMode()
{
    const bool heatingOnly = isSet(flags::autoOp) && isSet(flags::heat)
        && word(flags::cool) == QLatin1String("CLR");
    const bool both = !heatingOnly;
    (both ? ui->radioOperationBoth : ui->radioOperationHeating)->setChecked(true);
    turn({{ui->DipSwitch24, both}});
}

/// Checks one of two radios by their flag and returns whether that flag is set.
bool DipSwitchSettingStatus::loadPair(QRadioButton *set, QRadioButton *notSet) const
{
    const bool isOn = isSet(choiceOf(set).path);
    (isOn ? set : notSet)->setChecked(true);
    return isOn;
}

// With both flags set the radio says both steps, and setElectricHeater() follows the first.
void DipSwitchSettingStatus::loadElectricHeater()
{
    const QString heater1 = text(flags::heater1);
    const QString heater2 = text(flags::heater2);
    if (heater2.toUpper() == QLatin1String("SET")) {
        ui->radioElectricHeaterBoth->setChecked(true);
    } else if (heater1.toUpper() == QLatin1String("SET")) {
        ui->radioElectricHeater1->setChecked(true);
    } else {
        ui->radioElectricHeaterNotuse->setChecked(true);
    }
    setElectricHeater(heater1, heater2);
}

void DipSwitchSettingStatus::showBankC(bool shown)
{
    for (QWidget *part : std::initializer_list<QWidget *>{ui->groupBoxAdditionalAir, ui->groupBoxAntifreeze,
                                                          ui->frameSw3, ui->labelSW3}) {
        part->setVisible(shown);
    }
}

// Oddity 22: the path ends in a lower-case s, unlike the one that the radios write: no document holds it.
void DipSwitchSettingStatus::loadOduFunction(bool awhp)
{
    const QString function = word("SettingInfo.installation.OduFunctionMs");
    if (awhp || !isSet("IduFuncList.isOduFunctionMS")) {
        offerGroup(ui->groupBoxOduFunctionMaster, false);
        return;
    }
    offerGroup(ui->groupBoxOduFunctionMaster, true);
    const bool master = function == QLatin1String("MASTER");
    if (master) {
        ui->radioOduMaster->setChecked(true);
    } else if (function == QLatin1String("SLAVE")) {
        ui->radioOduSlave->setChecked(true);
    }
    loadSilentModePriority(master);
}

void DipSwitchSettingStatus::loadSilentModePriority(bool master)
{
    const bool offered = isSet(flags::silentPriority) && master;
    offerGroup(ui->groupBoxSilentModePriority, offered);
    if (!offered) {
        return;
    }
    const QString priority = text(paths::silentPriority);
    if (priority == QLatin1String("oduSwitch")) {
        ui->radioSilentODU->setChecked(true);
    } else if (priority == QLatin1String("rmcSetting")) {
        ui->radioSilentRemote->setChecked(true);
    }
}

// Check and texts

void DipSwitchSettingStatus::validationCheck()
{
    const std::vector<QLineEdit *> edits = pulseEdits();
    const bool valid = choicesMade() && std::all_of(edits.begin(), edits.end(), [](const QLineEdit *edit) {
                           return MainDialog::checkValidationLineEdit(edit);
                       });
    mainDialog->setStepCompleted(valid, 2);
}

void DipSwitchSettingStatus::changeLanguage()
{
    setCaptions({{ui->labelDWH, "DomesticHotWaterTank"},
                 {ui->radioDhwNotUse, "NotUse"},
                 {ui->radioDhwUse, "Use"},
                 {ui->radioDhwOnly, "DhwOnly"},
                 {ui->labelSolar, "Solarthermalkit"},
                 {ui->radioSolarThermalKitNotuse, "NotUse"},
                 {ui->radioSolarThermalKitUse, "Use"},
                 {ui->labelOperation, "Operationmode"},
                 {ui->radioOperationHeating, "HeatingOnly"},
                 {ui->radioOperationBoth, "HeatingCooling"},
                 {ui->labelFlowSwitch, "Flowswitchdetection"},
                 {ui->radioFlowAlways, "Always"},
                 {ui->radioFlowOnlyPump, "OnlyPumpOperating"},
                 {ui->labelElectric, "ElectricHeather"},
                 {ui->radioElectricHeaterNotuse, "Heater0"},
                 {ui->radioElectricHeater1, "Heater1"},
                 {ui->radioElectricHeaterBoth, "Heater12"},
                 {ui->labelThermostat, "Thermostat"},
                 {ui->radioThermostatNone, "NotUse"},
                 {ui->radioThermostatUse, "Use"},
                 {ui->labelOrvometerInterface, "OrvoMeterInterface"},
                 {ui->labelOrvoAddress, "Address"},
                 {ui->radioOrvometerInterfaceNotuse, "NotUse"},
                 {ui->radioOrvoAddressB0, "B0"},
                 {ui->radioOrvoAddressB1, "B1"},
                 {ui->labelOrvoWHM1, "PulseSpecWHM1"},
                 {ui->labelOrvoWHM2, "PulseSpecWHM2"},
                 {ui->labelOrvoWHM3, "PulseSpecWHM3"},
                 {ui->labelOrvoWHM4, "PulseSpecHeatMeter"},
                 {ui->labelPulsekW1, "pulsekWh"},
                 {ui->labelPulsekW2, "pulsekWh"},
                 {ui->labelPulsekW3, "pulsekWh"},
                 {ui->labelPulsekW4, "pulsekWh"},
                 {ui->labelODUFunctionMaster, "ODUFunctionMaster"},
                 {ui->radioOduMaster, "Master"},
                 {ui->radioOduSlave, "Slave"},
                 {ui->labelSilentMode, "SilentModePriority"},
                 {ui->radioSilentODU, "ODU"},
                 {ui->radioSilentRemote, "RemoteController"},
                 {ui->labelAdditionalAir, "RemoteAirTempSensor"},
                 {ui->radioAdditionalAirNotUse, "NotUse"},
                 {ui->radioAdditionalAirUse, "Use"},
                 {ui->labelAtifreeze, "AntifreezingSolution"},
                 {ui->radioAntifreezeNotuse, "NotUse"},
                 {ui->radioAntifreezeUse, "Use"},
                 {ui->labelDWHGuide, "DipSwitchGuide"}});
}

void DipSwitchSettingStatus::changeImage(const QString &product)
{
    const QString refrigerant = product.toUpper();
    if (refrigerant == QLatin1String("R32") || refrigerant == QLatin1String("R410")) {
        style::apply(
            ui->labelPCB,
            QStringLiteral("QLabel {   background-image: url(:/images/img_pcb_%1.png);}").arg(refrigerant));
    }
}
