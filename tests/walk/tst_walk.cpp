#include "support/schema.h"
#include "support/testfiles.h"
#include "walk/effects.h"
#include "walk/exceptions.h"
#include "walk/walker.h"

#include <QDir>

#include <cstdio>

namespace {

constexpr int usualSteps = 1000;
constexpr quint32 usualSeed = 20261121;

bool isInAPageTest(const QString &name)
{
    static const QByteArray tests = [] {
        QByteArray texts;
        const QDir folder(QStringLiteral(TEST_DATA_DIR "/.."));
        for (const QString &file : folder.entryList({QStringLiteral("tst_*.cpp")})) {
            texts += testfiles::content(folder.filePath(file));
        }
        return texts;
    }();
    return tests.contains('"' + name.section(QLatin1Char('/'), 1).toLatin1() + '"');
}

void tell(const QMap<QString, int> &counts, const char *title)
{
    std::printf("%s\n", title);
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        std::printf("  %6d  %s\n", count.value(), qPrintable(count.key()));
    }
}

} // namespace

// The window used at random, and rules that hold after every step. CALORA_WALK_STEPS and CALORA_WALK_SEED,
// where set, make another walk of it; a failing walk tells both, and is repeated by them.
class TestWalk : public QObject
{
    Q_OBJECT

private slots:
    void everyControlHasRules();
    void pathsAreThoseOfTheDocument();
    void rulesHoldAfterEachStep();
};

// Here or in the test of its page, which then names the control: the walk holds of such a one that it writes
// nothing that another control writes.
void TestWalk::everyControlHasRules()
{
    Walker walker(0);
    const QStringList ruled = Selections::ruled();
    for (const QString &name : walker.controlNames()) {
        QVERIFY2(!effects::knows(name) || !effects::needsNoRow(name), qPrintable(name));
        QVERIFY2(effects::knows(name) || effects::needsNoRow(name) || isInAPageTest(name), qPrintable(name));
    }
    QVERIFY(ruled.size() > 100);
}

void TestWalk::pathsAreThoseOfTheDocument()
{
    const QVariantMap known = documents::changes(QJsonDocument(), documents::standard(QStringLiteral("R32")));
    const QStringList written = schema::written();
    for (const QString &path : effects::all()) {
        QVERIFY2(known.contains(path) && written.contains(path), qPrintable(path));
    }
}

void TestWalk::rulesHoldAfterEachStep()
{
    const bool isLong = qEnvironmentVariableIsSet("CALORA_WALK_STEPS");
    const int steps = isLong ? qEnvironmentVariableIntValue("CALORA_WALK_STEPS") : usualSteps;
    const QByteArray told = qgetenv("CALORA_WALK_SEED");
    const quint32 seed = told.isEmpty() ? usualSeed : told.toUInt();
    Walker walker(seed);
    for (int step = 1; step <= steps; ++step) {
        const QStringList complaints = walker.step();
        if (!complaints.isEmpty()) {
            const QString report = QStringLiteral("seed %1, step %2:\n%3\nafter\n%4")
                                       .arg(seed)
                                       .arg(step)
                                       .arg(complaints.join(QLatin1Char('\n')),
                                            walker.trail().join(QLatin1Char('\n')));
            QFAIL(qPrintable(report));
        }
    }
    if (isLong) {
        tell(walker.counts(), "steps taken:");
        tell(exceptions::counts(), "exceptions needed:");
    }
}

CALORA_TEST_MAIN(TestWalk)
#include "tst_walk.moc"
