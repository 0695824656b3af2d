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

/// A test's text, with the headers of tests/support that it includes.
QByteArray withSupport(const QDir &folder, const QString &file)
{
    QByteArray text = testfiles::content(folder.filePath(file));
    for (const QString &header : QDir(folder.filePath(QStringLiteral("support"))).entryList({"*.h"})) {
        if (text.contains("#include \"support/" + header.toLatin1() + '"')) {
            text += testfiles::content(folder.filePath(QStringLiteral("support/") + header));
        }
    }
    return text;
}

/// Whether a test that includes the header of the control's page names the control.
bool isInAPageTest(const QString &name)
{
    static const QList<QByteArray> tests = [] {
        QList<QByteArray> texts;
        const QDir folder(QStringLiteral(TEST_DATA_DIR "/.."));
        for (const QString &file : folder.entryList({QStringLiteral("tst_*.cpp")})) {
            texts.append(withSupport(folder, file));
        }
        return texts;
    }();
    const QByteArray header = '/' + name.section(QLatin1Char('/'), 0, 0).toLower().toLatin1() + ".h\"";
    const QByteArray control = '"' + name.section(QLatin1Char('/'), 1).toLatin1() + '"';
    return std::any_of(tests.begin(), tests.end(), [&](const QByteArray &text) {
        return text.contains(header) && text.contains(control);
    });
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
