#include "pages/page.h"

#include "app/maindialog.h"
#include "document/util.h"
#include "pages/style.h"
#include "widgets/plaintext.h"

#include <QComboBox>
#include <QJsonDocument>
#include <QRadioButton>

#include <algorithm>
#include <limits>

namespace {

/// The row of a control, for which `isIts` holds.
template <class Row, class IsIts>
const Row &rowOf(const std::vector<Row> &rows, const QWidget *control, IsIts isIts)
{
    const auto row = std::find_if(rows.begin(), rows.end(), isIts);
    if (row == rows.end()) {
        qFatal("%s stands in no row of its page", qPrintable(control->objectName()));
    }
    return *row;
}

const Option *optionOf(const Choice &choice, const QRadioButton *radio)
{
    const auto option = std::find_if(choice.options.begin(), choice.options.end(),
                                     [radio](const Option &each) { return each.radio == radio; });
    return option == choice.options.end() ? nullptr : &*option;
}

} // namespace

Page::Page(QWidget *parent)
    : QWidget(parent)
{
}

QJsonValue Page::read(const QString &path) { return Util::readJsonValue(mainDialog->document(), path); }

QJsonValue Page::read(const char *path) { return read(QLatin1String(path)); }

QString Page::text(const char *path) { return read(path).toString(); }

QString Page::word(const char *path) { return text(path).toUpper(); }

int Page::number(const char *path) { return read(path).toInt(); }

bool Page::isSet(const char *path) { return word(path) == QLatin1String("SET"); }

void Page::write(const QString &path, const QJsonValue &value)
{
    QJsonDocument document = mainDialog->document();
    Util::modifyJsonValue(document, path, value);
    mainDialog->setDocument(document);
}

void Page::writeUnlessEmpty(const QString &path, const QJsonValue &value)
{
    if (!mainDialog->document().isEmpty()) {
        write(path, value);
    }
}

const Choice &Page::choiceOf(const QRadioButton *radio) const
{
    return rowOf(choices, radio, [radio](const Choice &each) {
        return each.path != nullptr && optionOf(each, radio) != nullptr;
    });
}

const ValueRow &Page::listOf(const QComboBox *list) const
{
    return rowOf(lists, list, [list](const ValueRow &each) { return each.combo == list; });
}

bool Page::checkStored(const QRadioButton *radio) const
{
    const Choice &choice = choiceOf(radio);
    const QString stored = word(choice.path);
    for (const Option &option : choice.options) {
        if (stored == QString::fromLatin1(option.word).toUpper()) {
            option.radio->setChecked(true);
            return true;
        }
    }
    return false;
}

void Page::loadChoice(const QRadioButton *radio) const
{
    if (!checkStored(radio)) {
        const std::vector<Option> &options = choiceOf(radio).options;
        std::vector<QRadioButton *> radios(options.size());
        std::transform(options.begin(), options.end(), radios.begin(),
                       [](const Option &option) { return option.radio; });
        uncheck(radios);
    }
}

void Page::loadOffered(QWidget *group, const char *flag, const QRadioButton *radio) const
{
    const bool offered = isSet(flag);
    group->setVisible(offered);
    if (offered) {
        loadChoice(radio);
    }
}

bool Page::choicesMade() const
{
    return std::all_of(choices.begin(), choices.end(), [](const Choice &choice) {
        const std::vector<Option> &options = choice.options;
        return MainDialog::checkValidationRadio(options.at(0).radio, options.at(1).radio,
                                                options.size() > 2 ? options.at(2).radio : nullptr);
    });
}

void Page::loadLists(const std::vector<ValueRow> &rows)
{
    std::vector<QJsonValue> stored;
    stored.reserve(rows.size());
    for (const ValueRow &row : rows) {
        stored.push_back(read(row.path));
    }
    auto value = stored.cbegin();
    for (const ValueRow &row : rows) {
        select(row, *value++);
    }
}

void Page::loadList(const QComboBox *list) const
{
    const ValueRow &row = listOf(list);
    select(row, read(row.path));
}

void Page::select(const ValueRow &list, const QJsonValue &value)
{
    switch (list.shown) {
    case Shown::Index:
        list.combo->setCurrentIndex(indexOf(value.toInt(), list.offset));
        break;
    case Shown::Number:
        mainDialog->setComboByValue(list.combo, value.toInt(), MainDialog::PlainNumber);
        break;
    case Shown::Temperature:
        mainDialog->setComboByValue(list.combo, value.toInt(), MainDialog::Temperature);
        break;
    case Shown::Kelvin:
        mainDialog->setComboByValue(list.combo, value.toInt(), MainDialog::Kelvin);
        break;
    case Shown::Key:
        mainDialog->setComboByKey(list.combo, value.toString());
        break;
    }
}

void Page::save(const char *path, const QJsonValue &value) { saveJsonData(QLatin1String(path), value); }

void Page::save(const QRadioButton *radio)
{
    const Choice &choice = choiceOf(radio);
    save(choice.path, QLatin1String(optionOf(choice, radio)->word));
}

void Page::save(const QComboBox *list, const QString &item)
{
    const ValueRow &row = listOf(list);
    save(row.path, shownValue(row.shown, item));
}

void Page::save(const QComboBox *list, int index)
{
    const ValueRow &row = listOf(list);
    save(row.path, index + row.offset);
}

QString Page::captionOf(const QString &key) const { return mainDialog->languageValue(key); }

void Page::setCaptions(const std::vector<CaptionRow> &rows)
{
    for (const CaptionRow &row : rows) {
        const QString shown = mainDialog->languageValue(QLatin1String(row.key));
        if (auto *label = qobject_cast<QLabel *>(row.widget)) {
            plaintext::setText(label, shown);
        } else if (auto *button = qobject_cast<QAbstractButton *>(row.widget)) {
            plaintext::setText(button, shown);
        } else {
            qFatal("%s shows no caption", qPrintable(row.widget->objectName()));
        }
    }
}

QJsonValue Page::shownValue(Shown shown, const QString &item)
{
    switch (shown) {
    case Shown::Index:
        break;
    case Shown::Number:
        return item.toInt();
    case Shown::Temperature:
        return celsius(MainDialog::textWithoutTwoChars(item));
    case Shown::Kelvin:
        return celsius(MainDialog::textWithoutOneChar(item));
    case Shown::Key:
        return mainDialog->languageKeyOrText(item);
    }
    return {};
}

void Page::offerGroup(QWidget *group, bool offered)
{
    group->setEnabled(offered);
    group->setVisible(offered);
}

void Page::enable(bool enabled, std::initializer_list<QWidget *> captions,
                  std::initializer_list<QWidget *> widgets)
{
    for (QWidget *label : captions) {
        style::apply(label, style::labelText(enabled));
    }
    for (QWidget *widget : widgets) {
        widget->setEnabled(enabled);
    }
}

void Page::uncheck(const std::vector<QRadioButton *> &radios)
{
    for (QRadioButton *radio : radios) {
        radio->setAutoExclusive(false);
    }
    for (QRadioButton *radio : radios) {
        radio->setChecked(false);
    }
    for (QRadioButton *radio : radios) {
        radio->setAutoExclusive(true);
    }
}

void Page::fill(QComboBox *list, const QStringList &items) { MainDialog::setComboItems(list, items, -1); }

void Page::refill(QComboBox *list, const QStringList &items)
{
    MainDialog::refillComboItems(list, items, list->currentIndex());
}

void Page::offer(QComboBox *list, Range range)
{
    mainDialog->setRangeValueInComboBox(list, range.low, range.high, MainDialog::Temperature, 1);
}

void Page::selectText(QComboBox *list, const QString &text) { list->setCurrentIndex(list->findText(text)); }

void Page::selectTemperature(QComboBox *list, int shown)
{
    const QString unit = mainDialog->isFahrenheit() ? QStringLiteral("°F") : QStringLiteral("°C");
    const QSignalBlocker quiet(list);
    selectText(list, QString::number(shown) + unit);
}

int Page::celsius(int shown) { return mainDialog->celsius(shown); }

QStringList Page::languageTexts(const std::vector<const char *> &keys)
{
    QStringList texts;
    for (const char *key : keys) {
        texts.append(mainDialog->languageValue(QLatin1String(key)));
    }
    return texts;
}

QStringList Page::numbered(int first, int last, int step, const QString &suffix)
{
    QStringList items;
    for (int value = first; value <= last; value += step) {
        items.append(QString::number(value) + suffix);
    }
    return items;
}

int Page::indexOf(int value, int first)
{
    const qint64 index = qint64{value} - first;
    return index >= 0 && index <= std::numeric_limits<int>::max() ? static_cast<int>(index) : -1;
}
