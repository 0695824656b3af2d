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
