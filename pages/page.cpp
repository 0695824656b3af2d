#include "pages/page.h"

#include "app/maindialog.h"
#include "document/util.h"
#include "widgets/plaintext.h"

#include <QJsonDocument>

#include <algorithm>
#include <limits>

Page::Page(QWidget *parent)
    : QWidget(parent)
{
}

QJsonValue Page::read(const QString &path) { return Util::readJsonValue(mainDialog->document(), path); }

QString Page::text(const QString &path) { return read(path).toString(); }

QString Page::word(const QString &path) { return text(path).toUpper(); }

int Page::number(const QString &path) { return read(path).toInt(); }

bool Page::isSet(const QString &path) { return word(path) == QLatin1String("SET"); }

bool Page::flag(const char *name) { return isSet(flagPath(name)); }

QString Page::flagPath(const char *name) { return QStringLiteral("IduFuncList.") + QLatin1String(name); }

QString Page::installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}

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

void Page::setCaptions(const std::vector<CaptionRow> &rows)
{
    for (const CaptionRow &row : rows) {
        const QString caption = mainDialog->languageValue(QLatin1String(row.key));
        if (auto *label = qobject_cast<QLabel *>(row.widget)) {
            plaintext::setText(label, caption);
        } else if (auto *button = qobject_cast<QAbstractButton *>(row.widget)) {
            plaintext::setText(button, caption);
        }
    }
}

void Page::saveChoice(const std::vector<ChoiceRow> &rows, const QAbstractButton *button)
{
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [button](const ChoiceRow &each) { return each.button == button; });
    if (row != rows.end()) {
        saveJsonData(QLatin1String(row->path), QLatin1String(row->word));
    }
}

QJsonValue Page::shownValue(Shown shown, const QString &item)
{
    const auto celsius = [](int number) {
        return mainDialog->isFahrenheit() ? mainDialog->fahrenheitToCelsius(number) : number;
    };
    switch (shown) {
    case Shown::Index:
        break;
    case Shown::Temperature:
        return celsius(mainDialog->textWithoutTwoChars(item));
    case Shown::Kelvin:
        return celsius(mainDialog->textWithoutOneChar(item));
    case Shown::Key:
        return mainDialog->languageKeyOrText(item);
    }
    return {};
}

void Page::uncheck(std::initializer_list<QRadioButton *> radios)
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

void Page::checkPair(const QString &value, const PairRow &pair)
{
    if (value == QLatin1String(pair.firstWord)) {
        pair.first->setChecked(true);
    } else if (value == QLatin1String(pair.secondWord)) {
        pair.second->setChecked(true);
    } else {
        uncheck({pair.first, pair.second});
    }
}

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
