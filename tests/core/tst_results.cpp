#include "rules/results.h"

#include <QTest>

// How sections join into a tab, tabs into a step, and steps into what Save asks for.
class TestResults : public QObject
{
    Q_OBJECT

private slots:
    void joins();
    void clearLeavesTheSections();
};

// Each of what is joined counts alone; the Service tab takes no part.
void TestResults::joins()
{
    const auto sections = {&Results::systemSectionValid, &Results::autoSectionValid,
                           &Results::coolSectionValid, &Results::dwhSectionValid, &Results::heatSectionValid};
    const auto tabs = {&Results::functionValid, &Results::userValid};
    const auto steps = {&Results::productDone, &Results::dipSwitchDone};
    Results results;
    const auto joined = [&results] {
        results.joinSections();
        results.joinTabs();
        return results.stepsDone();
    };
    QVERIFY(!joined());
    for (const auto &parts : {sections, tabs, steps}) {
        for (bool Results::*part : parts) {
            results.*part = true;
        }
    }
    QVERIFY(joined() && results.installationValid && results.settingDone && !results.serviceValid);
    for (const auto *parts : {&sections, &tabs, &steps}) {
        for (bool Results::*part : *parts) {
            results.*part = false;
            QVERIFY(!joined());
            QCOMPARE(results.installationValid, parts != &sections);
            results.*part = true;
        }
    }
    QVERIFY(joined());
}

void TestResults::clearLeavesTheSections()
{
    Results results{true, true, true, true, true, true, true, true, true, true, true, true};
    results.clear();
    QVERIFY(!results.productDone && !results.dipSwitchDone && !results.settingDone);
    QVERIFY(!results.functionValid && !results.userValid && !results.serviceValid
            && !results.installationValid);
    QVERIFY(results.systemSectionValid && results.autoSectionValid && results.coolSectionValid
            && results.dwhSectionValid && results.heatSectionValid);
}

QTEST_APPLESS_MAIN(TestResults)
#include "tst_results.moc"
