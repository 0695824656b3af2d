#pragma once

class QComboBox;
class QRadioButton;
class QWidget;

/// The controls that the forms of the cooling and heating sections have in common.
struct WaterControls {
    QWidget *basisGroup;
    QComboBox *reference;
    QComboBox *indoorMin;
    QComboBox *indoorMax;
    QComboBox *waterMin;
    QComboBox *waterMax;
    QWidget *controlGroup;
    QRadioButton *controlAuto;
    QRadioButton *controlManual;
    QWidget *mainZoneGroup;
    QComboBox *mainZone;
    QWidget *constantGroup;
    QComboBox *constant;
    QComboBox *airThermo;
    QComboBox *waterThermo;
    QWidget *pumpGroup;
    QRadioButton *pumpNotuse;
    QRadioButton *pumpUse;
    QWidget *onGroup;
    QComboBox *onTimer;
    QWidget *offGroup;
    QComboBox *offTimer;
};

/// Both forms name these controls alike.
template <class Form>
WaterControls waterControls(const Form &form)
{
    WaterControls controls{};
    controls.basisGroup = form.groupBoxControlBasisTemp;
    controls.reference = form.comboReferenceWater;
    controls.indoorMin = form.comboTemperatureIndoorMin;
    controls.indoorMax = form.comboTemperatureIndoorMax;
    controls.waterMin = form.comboTemperatureWaterMin;
    controls.waterMax = form.comboTemperatureWaterMax;
    controls.controlGroup = form.groupBoxTemperatureControl;
    controls.controlAuto = form.radioControlTypeAuto;
    controls.controlManual = form.radioControlTypeManual;
    controls.mainZoneGroup = form.groupBoxCrtMainZone;
    controls.mainZone = form.comboControlMainZoneTemp;
    controls.constantGroup = form.groupBoxCrtWaterTemp;
    controls.constant = form.comboControlWaterTemp;
    controls.airThermo = form.comboTNIndoorAirTemp;
    controls.waterThermo = form.comboTNIndoorWaterTemp;
    controls.pumpGroup = form.groupBoxWaterPump;
    controls.pumpNotuse = form.radioWaterPumpNotuse;
    controls.pumpUse = form.radioWaterPumpUse;
    controls.onGroup = form.groupBoxOnTimer;
    controls.onTimer = form.comboWaterPumpOnTimer;
    controls.offGroup = form.groupBoxOffTimer;
    controls.offTimer = form.comboWaterPumpOffTimer;
    return controls;
}
