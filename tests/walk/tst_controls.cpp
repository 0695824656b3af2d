#include "support/ranges.h"
#include "support/schema.h"
#include "walk/sweep.h"

#include <QRandomGenerator>

namespace {

QString installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}

const QString celsius = QStringLiteral("CENTIGRADE");
const QString fahrenheit = QStringLiteral("FAHRENHEIT");

/// All that the pages of a refrigerant can offer, with `changed` values.
QJsonDocument everything(const char *refrigerant, const QVariantMap &changed = {})
{
    const QVariantMap offers{{installation("boilerOfThirdParty.thirdPartyMode"), "AUTO"},
                             {installation("combination200.combiValue"), "SET"},
                             {installation("pumpOperOptionInHeat.option"), "CLR"}};
    return documents::with(documents::everything(QLatin1String(refrigerant)),
                           documents::joined(offers, changed));
}

} // namespace

// Every control in turn, in every run, by the rules of the walk: what it writes (controlrows.cpp), what it
// lists and shows for which value (the files of rules), and that its page's check runs. These rules stand
// there and not in the tests of the pages, which hold what goes beyond them: orders, conditions, looks, odd
// documents.
class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { sweep = std::make_unique<Sweep>(); }
    void cleanupTestCase() { sweep.reset(); }

    void eachWrites_data();
    void eachWrites();
    void noneIsLeftOut();
    void eachShows_data();
    void eachShows();
    void eachRangeFollowsItsWords_data();
    void eachRangeFollowsItsWords();

private:
    std::unique_ptr<Sweep> sweep;
};

void TestControls::eachWrites_data()
{
    QTest::addColumn<QJsonDocument>("document");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("mark"); // of the texts of another language
    QTest::newRow("R32") << documents::standard("R32") << celsius << "";
    QTest::newRow("R410, other language") << documents::standard("R410") << celsius << "~";
    QTest::newRow("heat pump") << everything("R32") << celsius << "";
    const QString timer = QStringLiteral("IduFuncList.isHotwaterTimerExpand");
    const QVariantMap one{{installation("circuitMainZone.enableMainZone"), "CLR"},
                          {installation("UFH_stop.FCU_disable"), "CLR"},
                          {timer, "CLR"}};
    QTest::newRow("heat pump, one circuit") << everything("R32", one) << celsius << "";
    QTest::newRow("heat pump, °F") << everything("R32", {{timer, "SET"}}) << fahrenheit << "";
    QTest::newRow("module, other language") << everything("R410") << celsius << "~";
}

void TestControls::eachWrites()
{
    QFETCH(QJsonDocument, document);
    QFETCH(QString, unit);
    QFETCH(QString, mark);
    sweep->speak(mark);
    const QStringList complaints = sweep->touch(document, unit);
    sweep->speak({});
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
}

void TestControls::noneIsLeftOut()
{
    QVERIFY2(sweep->untouched().isEmpty(), qPrintable(sweep->untouched().join(QLatin1Char(' '))));
}

void TestControls::eachShows_data()
{
    QTest::addColumn<int>("round");
    QTest::addColumn<bool>("flags");
    for (int round = 0; round < 12; ++round) {
        QTest::addRow("values %d", round) << round << false;
        QTest::addRow("flags %d", round) << round << true;
    }
}

// Numbers at and beyond their bounds, words in another case, unknown and missing ones; then with some of the
// flags turned over.
void TestControls::eachShows()
{
    QFETCH(int, round);
    QFETCH(bool, flags);
    QRandomGenerator random(static_cast<quint32>(round));
    QVariantMap values;
    int place = 0;
    for (const QString &path : schema::told()) {
        const QVariantList odd = schema::around(path);
        if (path.startsWith(QLatin1String("SettingInfo"))) {
            values.insert(path, odd.at((round + 3 * place++) % odd.size()));
        } else if (flags && random.bounded(4) == 0) {
            values.insert(path, odd.at(odd.size() - 1 - random.bounded(4)));
        }
    }
    for (const char *refrigerant : {"R32", "R410"}) {
        const QStringList complaints = sweep->show(everything(refrigerant, values),
                                                   round % 4 == 3 ? fahrenheit : celsius);
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
    }
}

void TestControls::eachRangeFollowsItsWords_data()
{
    QTest::addColumn<bool>("seasonal");
    for (const QString &list : ranges::lists()) {
        QTest::newRow(qPrintable(list)) << !list.startsWith(QLatin1String("outdoor"));
        if (list.startsWith(QLatin1String("heatLow")) || list.startsWith(QLatin1String("heatHigh"))) {
            QTest::newRow(qPrintable(list + QStringLiteral(" in outdoor mode"))) << false;
        }
    }
}

// At the borders of each row of the table: the page asks for the right words.
void TestControls::eachRangeFollowsItsWords()
{
    QFETCH(bool, seasonal);
    const QString list = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0);
    for (const auto &words : ranges::borders(list)) {
        QVariantMap values{{QStringLiteral("IduFuncList.isSeasonalAuto"), seasonal ? "SET" : "CLR"}};
        for (auto word = words.begin(); word != words.end(); ++word) {
            values.insert(ranges::path(word.key()), word.value());
        }
        const QStringList complaints = sweep->showInstallation(everything("R32", values), celsius);
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
    }
}

CALORA_TEST_MAIN(TestControls)
#include "tst_controls.moc"
