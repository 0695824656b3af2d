#include "app/fonts.h"
#include "support/window.h"

#include <QSignalSpy>

// The fonts beside the executable, which is the test itself here.
class TestFonts : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        bringBack(); // a run that was broken off may have left some away
        messages::install();
        messages::clear();
    }
    void cleanup() { bringBack(); }

    void missingFontIsTold_data();
    void missingFontIsTold();
    void lastOfThreeFontsStays();

private:
    static inline const QStringList files{"NotoSans-Medium.ttf", "NotoSans-Bold.ttf", "NotoSans-Light.ttf",
                                          "NotoSans-Regular.ttf"};

    static QString path(const QString &file) { return QCoreApplication::applicationDirPath() + '/' + file; }
    static void bringBack()
    {
        for (const QString &file : files) {
            QFile::rename(path(file + ".away"), path(file));
        }
    }
};

void TestFonts::missingFontIsTold_data()
{
    QTest::addColumn<QStringList>("missing");
    QTest::newRow("none") << QStringList();
    for (const QString &file : files) {
        QTest::newRow(qPrintable(file)) << QStringList{file};
    }
    QTest::newRow("all") << files;
}

// The others are loaded all the same.
void TestFonts::missingFontIsTold()
{
    QFETCH(QStringList, missing);
    QStringList told;
    for (const QString &file : missing) {
        QVERIFY(QFile::rename(path(file), path(file + ".away")));
        told.append("Failed to load " + file);
    }
    QFontDatabase::removeAllApplicationFonts();
    loadFonts();
    QCOMPARE(messages::all(), told);
    QCOMPARE(QApplication::font(), QFont("Noto Sans Med"));
}

void TestFonts::lastOfThreeFontsStays()
{
    const QSignalSpy changed(qApp, &QGuiApplication::fontChanged);
    loadFonts();
    QVERIFY(messages::all().isEmpty());
    QCOMPARE(changed.size(), 3);
    QCOMPARE(changed.at(0).at(0).value<QFont>(), QFont("Noto Sans"));
    QCOMPARE(changed.at(1).at(0).value<QFont>(), QFont("Noto Sans Light"));
    QCOMPARE(changed.at(2).at(0).value<QFont>(), QFont("Noto Sans Med"));
    QCOMPARE(QApplication::font(), QFont("Noto Sans Med"));
}

CALORA_TEST_MAIN(TestFonts)
#include "tst_fonts.moc"
