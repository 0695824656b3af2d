#pragma once

#include "pages/rows.h"

#include <vector>

class QRadioButton;

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
    return {form.groupBoxControlBasisTemp,
            form.comboReferenceWater,
            form.comboTemperatureIndoorMin,
            form.comboTemperatureIndoorMax,
            form.comboTemperatureWaterMin,
            form.comboTemperatureWaterMax,
            form.groupBoxTemperatureControl,
            form.radioControlTypeAuto,
            form.radioControlTypeManual,
            form.groupBoxCrtMainZone,
            form.comboControlMainZoneTemp,
            form.groupBoxCrtWaterTemp,
            form.comboControlWaterTemp,
            form.comboTNIndoorAirTemp,
            form.comboTNIndoorWaterTemp,
            form.groupBoxWaterPump,
            form.radioWaterPumpNotuse,
            form.radioWaterPumpUse,
            form.groupBoxOnTimer,
            form.comboWaterPumpOnTimer,
            form.groupBoxOffTimer,
            form.comboWaterPumpOffTimer};
}

/// The captions of both forms from the temperature limits downwards. The constant temperature is that of
/// circuit 2 where there is one.
template <class Form>
std::vector<CaptionRow> waterCaptions(const Form &form, bool twoCircuits)
{
    return {{form.labelTempRange, "TemperatureRange"},
            {form.labelTempIndoor, "IndoorAirTemp"},
            {form.labelTemperatureIndoorMin, "Min"},
            {form.labelTemperatureIndoorMax, "Max"},
            {form.labelTempWater, "WaterTemp"},
            {form.labelTemperatureWaterMin, "Min"},
            {form.labelTemperatureWaterMax, "Max"},
            {form.labelTemperatureControl, "TemperatureControl"},
            {form.labelControlType, "ControlMode"},
            {form.radioControlTypeAuto, "Auto"},
            {form.radioControlTypeManual, "Constant"},
            {form.labelControlMainZoneTemp, "MainZoneTemp"},
            {form.labelControlWaterTemp, twoCircuits ? "WaterTempRoom2" : "ConstantWaterTemp"},
            {form.labelTHOnOff, "THOnOffCriteria"},
            {form.labelTHIndoor, "IndoorAirTemp"},
            {form.labelTHWater, "WaterTemp"},
            {form.labelWaterPump, "WaterPumpnOperationTimer"},
            {form.radioWaterPumpNotuse, "OperationContinue"},
            {form.radioWaterPumpUse, "TimeSetting"},
            {form.labelOpeartionOn, "ONTimer"},
            {form.labelOpeartionOff, "OFFTimer"}};
}
