// Value lists: how document values are shown in combo boxes, how item texts go back to numbers, and the
// shared checks.

#include "app/maindialog.h"
#include "document/temperature.h"

#include <QComboBox>
#include <QDebug>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace {

// Far more than any list needs, and as many as are filled without a noticeable delay. Limits of a damaged
// document could ask for thousands of millions.
constexpr int longestList = 30000;

int numberBefore(const QString &text, int suffixLength)
{
    return text.chopped(qMin(suffixLength, text.size())).toInt();
}

/// Whether the list holds these items already: then it needn't be filled again, which is what takes the time.
bool holds(const QComboBox &comboBox, const QStringList &items)
{
    if (comboBox.count() != items.size()) {
        return false;
    }
    int index = 0;
    return std::all_of(items.begin(), items.end(),
                       [&](const QString &item) { return comboBox.itemText(index++) == item; });
}

} // namespace

QString MainDialog::tempUnit() const { return state.tempUnit; }

void MainDialog::setTempUnit(const QString &unit) { state.tempUnit = unit; }

bool MainDialog::isFahrenheit() const { return state.tempUnit == QLatin1String("FAHRENHEIT"); }

void MainDialog::initCFTable() { state.cfTable = temperature::makeTable(); }

int MainDialog::celsiusToFahrenheit(int celsius) const { return state.cfTable.value(celsius, 0); }

int MainDialog::fahrenheitToCelsius(int fahrenheit) const
{
    return temperature::lowestCelsius(state.cfTable, fahrenheit);
}

QString MainDialog::unitSuffix(int unit) const
{
    switch (unit) {
    case Temperature:
        return isFahrenheit() ? QStringLiteral("°F") : QStringLiteral("°C");
    case Kelvin:
        return QStringLiteral("K");
    default:
        return {};
    }
}

void MainDialog::setRangeValueInComboBox(QComboBox *comboBox, int lower, int upper, int unit, int step)
{
    if (lower > upper) {
        qWarning() << "MainDialog::setRangeValueInComboBox ComboBox:" << comboBox->objectName()
                   << "lower:" << lower << " > upper:" << upper;
        return;
    }
    if (unit == Temperature && isFahrenheit()) {
        lower = celsiusToFahrenheit(lower);
        upper = celsiusToFahrenheit(upper);
        step = 2;
    }
    const QString suffix = unitSuffix(unit);
    QStringList items;
    for (qint64 value = lower; value <= upper && items.size() < longestList; value += step) {
        items.append(QString::number(value) + suffix);
    }
    setComboItems(comboBox, items, -1);
}

void MainDialog::setComboByValue(QComboBox *comboBox, int value, int unit)
{
    comboBox->blockSignals(true);
    const int shown = unit == Temperature && isFahrenheit() ? celsiusToFahrenheit(value) : value;
    const QString text = QString::number(shown) + unitSuffix(unit);
    int index = comboBox->findData(text, Qt::DisplayRole, Qt::MatchCaseSensitive);
    if (index < 0) {
        qDebug() << "# Error index setting" << comboBox->objectName() << " #";
        qDebug() << value << text;
        // Oddity 33: an item with a suffix reads as 0, so a positive value lands on the last item and any
        // other on the first.
        const bool aboveFirst = unit != PlainNumber && value > comboBox->itemText(0).toInt();
        index = aboveFirst ? comboBox->count() - 1 : 0;
    }
    comboBox->setCurrentIndex(index);
    comboBox->blockSignals(false);
}

void MainDialog::setComboByKey(QComboBox *comboBox, const QString &key)
{
    const int index = key.isEmpty()
        ? 0
        : comboBox->findData(languageTextOrKey(key), Qt::DisplayRole, Qt::MatchCaseSensitive);
    comboBox->setCurrentIndex(qMax(index, 0));
}

void MainDialog::setComboItems(QComboBox *comboBox, const QStringList &items, int index)
{
    comboBox->blockSignals(true);
    if (holds(*comboBox, items)) {
        comboBox->setCurrentIndex(items.isEmpty() ? -1 : 0);
    } else {
        comboBox->clear();
        comboBox->addItems(items);
    }
    if (index != -1) {
        comboBox->setCurrentIndex(index);
    }
    comboBox->blockSignals(false);
}

void MainDialog::refillComboItems(QComboBox *comboBox, const QStringList &items, int index)
{
    setComboItems(comboBox, items, index == -1 ? 0 : index);
}

int MainDialog::textWithoutTwoChars(const QString &text) const { return numberBefore(text, 2); }

int MainDialog::textWithoutOneChar(const QString &text) const { return numberBefore(text, 1); }

bool MainDialog::checkValidationComboBox(const QComboBox *comboBox) const
{
    if (!comboBox->isVisible() || !comboBox->isEnabled() || comboBox->currentIndex() != 0) {
        return true;
    }
    qDebug() << "MainDialog::checkValidationComboBox"
             << "Object Name:" << comboBox->objectName() << "validation check failed";
    return false;
}

bool MainDialog::checkValidationRadio(const QRadioButton *first, const QRadioButton *second,
                                      const QRadioButton *third) const
{
    if (!first->isVisible() || !second->isVisible()) {
        return true;
    }
    if (!first->isEnabled() || !second->isEnabled() || first->isChecked() || second->isChecked()) {
        return true;
    }
    if (third != nullptr && third->isChecked()) {
        return true;
    }
    qDebug() << " MainDialog::checkValidationRadio"
             << "Object Name:" << first->objectName() << second->objectName()
             << "validataion check:" << false;
    return false;
}

bool MainDialog::checkValidationLineEdit(const QLineEdit *lineEdit) const
{
    return !lineEdit->isVisible() || !lineEdit->isEnabled() || !lineEdit->text().isEmpty();
}

void MainDialog::changeSelectTextInCombobox() {}
