#include "files/catalogue.h"
#include "files/texts.h"
#include "support/window.h"

#include <QtTest>

namespace {

QJsonDocument keysAsTexts()
{
    QFile file(QStringLiteral(":/language/English.json"));
    file.open(QIODevice::ReadOnly);
    QJsonObject texts = QJsonDocument::fromJson(file.readAll()).object();
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        text.value() = text.key();
    }
    return QJsonDocument(texts);
}

/// What else a document needs so that one word alone decides what is shown.
QVariantMap companions(const QString &path, const QString &word)
{
    const QString installation = QStringLiteral("SettingInfo.installation.");
    const QHash<QString, QVariantMap> all{
        {QStringLiteral("IduFuncList.is_boosterht_onlyMode"),
         {{QStringLiteral("product"), QStringLiteral("aquabox")}}},
        {QStringLiteral("IduFuncList.is_heater1"),
         {{QStringLiteral("IduFuncList.is_heater2"), QStringLiteral("CLR")}}},
        {QStringLiteral("IduFuncList.is_heater2"),
         {{QStringLiteral("IduFuncList.is_heater1"), QStringLiteral("CLR")}}},
        // The page reads the key in this spelling.
        {installation + QStringLiteral("OduFunctionMS"),
         {{installation + QStringLiteral("OduFunctionMs"), word}}},
        {installation + QStringLiteral("sensorDefine.settemp_select"),
         {{installation + QStringLiteral("sensorDefine.airAndWaterUse"), QStringLiteral("CLR")}}},
        {installation + QStringLiteral("combination200.combiOilRecover"),
         {{installation + QStringLiteral("combination200.combiValue"), QStringLiteral("SET")}}},
    };
    return all.value(path);
}

/// Of the three radios that stand for two flags, the one that is checked.
QString checkedOfThree(const QString &path, const QString &word)
{
    static const QHash<QString, QString> keys{
        {QStringLiteral("IduFuncList.is_boosterht_onlyMode CLR"), QStringLiteral("Use")},
        {QStringLiteral("IduFuncList.is_boosterht_onlyMode SET"), QStringLiteral("DhwOnly")},
        {QStringLiteral("IduFuncList.is_heater1 CLR"), QStringLiteral("Heater0")},
        {QStringLiteral("IduFuncList.is_heater1 SET"), QStringLiteral("Heater1")},
        {QStringLiteral("IduFuncList.is_heater2 CLR"), QStringLiteral("Heater0")},
        {QStringLiteral("IduFuncList.is_heater2 SET"), QStringLiteral("Heater12")},
    };
    return keys.value(path + QLatin1Char(' ') + word);
}

/// A word of the setting as it stands in a document, where some are numbers.
QVariant valueOf(const QString &word)
{
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    return isNumber ? QVariant(number) : QVariant(word);
}

} // namespace

// The words of the table of calora-files, on the pages themselves.
class TestFilesPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void wordsAreThoseOfThePage();

private:
    void show(const QString &page);
    QWidget *pageOf(const QString &name) const;
    /// The text of what is checked or current; null where the control isn't shown.
    QString shown(const Setting &setting) const;
    /// What is wrong with the text that the table gives for the word; empty when nothing is.
    QString complaint(const Setting &setting, const QString &word);

    Window window;
};

void TestFilesPages::initTestCase()
{
    window.stopPainting();
    window.dialog.setLanguageDocument(keysAsTexts());
    window.dialog.changeLanguage();
    window.use(documents::everything(QStringLiteral("R32")));
    window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    for (QPushButton *header : window.dialog.findChildren<QPushButton *>(QStringLiteral("hideButton"))) {
        header->click();
    }
}

void TestFilesPages::show(const QString &page)
{
    static const QHash<QString, int> tabs{
        {QStringLiteral("SettingFunction"), MainDialog::FunctionTab},
        {QStringLiteral("SettingUser"), MainDialog::UserTab},
    };
    if (page == QLatin1String("DipSwitchSettingStatus")) {
        window.showPage(MainDialog::DipSwitchPage);
    } else {
        window.showPage(MainDialog::SettingPage, tabs.value(page, MainDialog::InstallationTab));
    }
}

QWidget *TestFilesPages::pageOf(const QString &name) const
{
    const QList<QWidget *> widgets = window.dialog.findChildren<QWidget *>();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&name](const QWidget *each) {
        return name == QLatin1String(each->metaObject()->className());
    });
    return found == widgets.end() ? nullptr : *found;
}

QString TestFilesPages::shown(const Setting &setting) const
{
    const QStringList names =
        QString(QLatin1String(setting.control)).section(QLatin1Char('/'), 1).split(QLatin1Char(' '));
    for (const QString &name : names) {
        const auto *widget = pageOf(catalogue::page(setting))->findChild<QWidget *>(name);
        const auto *radio = qobject_cast<const QRadioButton *>(widget);
        const auto *list = qobject_cast<const QComboBox *>(widget);
        if (widget->isVisible() && (list != nullptr || (radio != nullptr && radio->isChecked()))) {
            return list != nullptr ? list->currentText() : radio->text();
        }
    }
    return {};
}

QString TestFilesPages::complaint(const Setting &setting, const QString &word)
{
    static const Texts keys = Texts::keys();
    const QString path = QLatin1String(setting.path);
    bool isShown = false;
    for (const char *refrigerant : {"R32", "R410"}) {
        const QJsonObject document = documents::with(
                                         documents::everything(QLatin1String(refrigerant)),
                                         documents::joined(companions(path, word), {{path, valueOf(word)}}))
                                         .object();
        window.use(QJsonDocument(document));
        show(catalogue::page(setting));
        const QString text = shown(setting);
        const QString three = checkedOfThree(path, word);
        const QString told = three.isEmpty()
            ? catalogue::shown(setting, document, View(keys, false, document))
            : three;
        if (!text.isNull() && text != told) {
            return QStringLiteral("%1 on the page, not %2").arg(text, told);
        }
        isShown = isShown || !text.isNull();
    }
    return isShown ? QString() : QStringLiteral("never shown");
}

void TestFilesPages::wordsAreThoseOfThePage()
{
    QStringList wrong;
    int words = 0;
    for (const Setting &setting : catalogue::settings()) {
        // The page of the product shows what was chosen in it, and no document.
        if (setting.form != Form::Words || catalogue::page(setting) == QLatin1String("ProductSelection")) {
            continue;
        }
        const QStringList pairs = QString(QLatin1String(setting.texts)).split(QLatin1Char(' '));
        for (const QString &pair : pairs) {
            // Oddities 22 and 27: these two are loaded as no choice.
            const bool isNone = pair == QLatin1String("SLAVE=Slave") || pair == QLatin1String("SET=Opt1");
            const QString told = isNone ? QString()
                                        : complaint(setting, pair.section(QLatin1Char('='), 0, 0));
            if (!told.isEmpty()) {
                wrong.append(QStringLiteral("%1, %2: %3").arg(QLatin1String(setting.path), pair, told));
            }
            ++words;
        }
    }
    QVERIFY(words > 100);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}

CALORA_TEST_MAIN(TestFilesPages)
#include "tst_filespages.moc"
