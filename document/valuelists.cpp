#include "document/valuelists.h"

#include <QComboBox>
#include <QDebug>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace {

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

ValueLists::ValueLists(const Units &inForce)
    : units(inForce)
{
}

void ValueLists::setComboItems(QComboBox *comboBox, const QStringList &items, int index)
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

void ValueLists::refillComboItems(QComboBox *comboBox, const QStringList &items, int index)
{
    setComboItems(comboBox, items, index == -1 ? 0 : index);
}

void ValueLists::setRangeValueInComboBox(QComboBox *comboBox, int lower, int upper, int unit, int step) const
{
    if (lower > upper) {
        qWarning() << "MainDialog::setRangeValueInComboBox ComboBox:" << comboBox->objectName()
                   << "lower:" << lower << " > upper:" << upper;
        return;
    }
    setComboItems(comboBox, units.items(lower, upper, unit, step), -1);
}

void ValueLists::setComboByValue(QComboBox *comboBox, int value, int unit) const
{
    comboBox->blockSignals(true);
    const QString text = units.item(value, unit);
    int index = comboBox->findData(text, Qt::DisplayRole, Qt::MatchCaseSensitive);
    if (index < 0) {
        qDebug() << "# Error index setting" << comboBox->objectName() << " #";
        qDebug() << value << text;
        // Oddity 33: an item with a suffix reads as 0, so a positive value lands on the last item and any
        // other on the first.
        const bool aboveFirst = unit != Units::PlainNumber && value > comboBox->itemText(0).toInt();
        index = aboveFirst ? comboBox->count() - 1 : 0;
    }
    comboBox->setCurrentIndex(index);
    comboBox->blockSignals(false);
}

void ValueLists::selectText(QComboBox *comboBox, const QString &text)
{
    const int index = text.isEmpty() ? 0 : comboBox->findData(text, Qt::DisplayRole, Qt::MatchCaseSensitive);
    comboBox->setCurrentIndex(qMax(index, 0));
}

bool ValueLists::checkValidationComboBox(const QComboBox *comboBox)
{
    if (!comboBox->isVisible() || !comboBox->isEnabled() || comboBox->currentIndex() != 0) {
        return true;
    }
    qDebug() << "MainDialog::checkValidationComboBox"
             << "Object Name:" << comboBox->objectName() << "validation check failed";
    return false;
}

bool ValueLists::checkValidationRadio(const QRadioButton *first, const QRadioButton *second,
                                      const QRadioButton *third)
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

bool ValueLists::checkValidationLineEdit(const QLineEdit *lineEdit)
{
    return !lineEdit->isVisible() || !lineEdit->isEnabled() || !lineEdit->text().isEmpty();
}
