#include "support/documentwindow.h"
#include "support/mouse.h"

#include "app/pathlabel.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTextDocument>

// The path bar: one line that can't be taken for another file, drawn from a text that stays the path.

class TestPathLabel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { DocumentWindow::useDesktopIn(home); }
    void init() { window = std::make_unique<DocumentWindow>(); }
    void cleanup() { window.reset(); }

    void opensFilesOfOddNames_data();
    void opensFilesOfOddNames();
    void showsWhatIsUnseen_data();
    void showsWhatIsUnseen();
    void isOneLine();
    void keepsDriveAndName_data();
    void keepsDriveAndName();
    void drawsWhatItSays();
    void leavesTheWindowItsWidth();
    void selectsAndCopiesThePath_data();
    void selectsAndCopiesThePath();
    void copiesByItsMenu();
    void emptyBarIsNoText();

private:
    PathLabel *bar() const { return Window::find<PathLabel>(&window->dialog, "pathLabel"); }
    static QClipboard *clipboard() { return QApplication::clipboard(); }

    QTemporaryDir home;
    std::unique_ptr<DocumentWindow> window;
};

void TestPathLabel::opensFilesOfOddNames_data()
{
    QTest::addColumn<QString>("name");
#ifndef Q_OS_WIN // where no name has a "<"
    QTest::newRow("markup") << "<title>x.json";
    QTest::newRow("picture") << "<img src=x>.json";
#endif
    QTest::newRow("entities") << "A&lt;b&gt;.json";
    QTest::newRow("ampersand") << "A&B &&.json";
    QTest::newRow("umlauts") << QString::fromUtf8("Wärmepumpe Müller.json");
}

void TestPathLabel::opensFilesOfOddNames()
{
    QFETCH(QString, name);
    const QString path = window->path(name);
    testfiles::put(path, "{}");
    window->open(path);
    QCOMPARE(window->shownPath(), path);
    QCOMPARE(bar()->line(5000), path);
    QCOMPARE(bar()->textFormat(), Qt::PlainText);
    // A tool tip guesses; what keeps it from that can't be seen.
    QVERIFY(!Qt::mightBeRichText(bar()->toolTip()));
    QCOMPARE(bar()->toolTip().remove(QChar(0x2060)), path);
}

void TestPathLabel::showsWhatIsUnseen_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("line");
    QTest::newRow("line feed") << "/a/two\nlines.json"
                               << "/a/two\\u000alines.json";
    QTest::newRow("tab and return") << "/a/\t\r.json"
                                    << "/a/\\u0009\\u000d.json";
    QTest::newRow("separators") << QString::fromUtf8("/a/\u2028\u2029.json") << "/a/\\u2028\\u2029.json";
    QTest::newRow("turned round") << QString("/a/") + QChar(0x202e) + "nosj.exe"
                                  << "/a/\\u202enosj.exe";
    QTest::newRow("no width") << QString::fromUtf8("/a/b\u200bc\ufeff") << "/a/b\\u200bc\\ufeff";
    QTest::newRow("half a character") << QString("/a/") + QChar(0xd800) << QString::fromUtf8("/a/\ufffd");
    QTest::newRow("joined letters") << QString::fromUtf8("/a/می\u200cخواهم 👨\u200d👩")
                                    << QString::fromUtf8("/a/می\u200cخواهم 👨\u200d👩");
    QTest::newRow("plain") << "C:/a b/ä.json"
                           << "C:/a b/ä.json";
}

void TestPathLabel::showsWhatIsUnseen()
{
    QFETCH(QString, path);
    QFETCH(QString, line);
    bar()->showPath(path);
    QCOMPARE(bar()->text(), path);
    QCOMPARE(bar()->line(5000), line);
    QCOMPARE(bar()->toolTip(), line);
}

void TestPathLabel::isOneLine()
{
    bar()->showPath("/a/b.json");
    QTest::qWait(0);
    const QSize hint = bar()->sizeHint();
    const QRect place = bar()->geometry();
    bar()->showPath("/a\n\nb\r\n/c.json");
    QTest::qWait(0);
    QCOMPARE(bar()->sizeHint().height(), hint.height());
    QCOMPARE(bar()->geometry(), place);
}

void TestPathLabel::keepsDriveAndName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    const QString folders = QString("some folder/").repeated(30);
    QTest::newRow("root") << "/" + folders + "name.json"
                          << "/"
                          << "/name.json";
    QTest::newRow("drive") << "C:/" + folders + "name.json"
                           << "C:/"
                           << "/name.json";
    QTest::newRow("share") << "//host/share/" + folders + "name.json"
                           << "//host/share/"
                           << "/name.json";
    QTest::newRow("share, longer name") << "//nas/jobs/" + folders + "Heat pump of Miller.json"
                                        << "//nas/jobs/"
                                        << "/Heat pump of Miller.json";
    QTest::newRow("wide characters") << "/" + folders + QString::fromUtf8("漢字.json") << "/"
                                     << QString::fromUtf8("/漢字.json");
    QTest::newRow("long name") << "C:/a/" + QString("name ").repeated(60) + ".json"
                               << "C:/a/"
                               << "me .json";
}

void TestPathLabel::keepsDriveAndName()
{
    QFETCH(QString, path);
    QFETCH(QString, start);
    QFETCH(QString, end);
    bar()->showPath(path);
    for (const int width : {250, 400, 941}) {
        const QString line = bar()->line(width);
        QVERIFY2(line.startsWith(start) && line.endsWith(end), qPrintable(line));
        QCOMPARE(line.count(QChar(0x2026)), 1);
        QVERIFY(bar()->fontMetrics().horizontalAdvance(line) <= width);
        // No more is left out than has to be.
        QVERIFY2(bar()->fontMetrics().horizontalAdvance(line) > width - 40, qPrintable(line));
    }
    QCOMPARE(bar()->text(), path);
    QCOMPARE(bar()->toolTip(), path);
}

// As a label of Qt's own with the line as its text.
void TestPathLabel::drawsWhatItSays()
{
    bar()->showPath("/" + QString("some <b>folder</b> & more\n/").repeated(20) + "name.json");
    QTest::qWait(0);
    QLabel reference(bar()->parentWidget());
    reference.setProperty("role", bar()->property("role"));
    reference.setTextFormat(Qt::PlainText);
    reference.setText(bar()->line(bar()->width()));
    reference.resize(bar()->size());
    QCOMPARE(bar()->grab().toImage(), reference.grab().toImage());
}

void TestPathLabel::leavesTheWindowItsWidth()
{
    window->dialog.resize(974, 612);
    bar()->showPath("/" + QString("folder/").repeated(300) + "name.json");
    QTest::qWait(0);
    QCOMPARE(window->dialog.width(), 974);
    QVERIFY(bar()->mapTo(&window->dialog, QPoint(bar()->width(), 0)).x() <= 974);
    QVERIFY(bar()->width() > 900);
}

void TestPathLabel::selectsAndCopiesThePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << "/a/b.json";
    QTest::newRow("elided") << "C:/" + QString("some folder/").repeated(30) + "name.json";
    QTest::newRow("markup") << "/a/<b>x</b>&amp;.json";
    QTest::newRow("unseen") << QString::fromUtf8("/a/\r\n\n\t\u00a0\u2028") + QChar(0x202e) + ".json";
}

// The mouse takes the whole path, however far it is drawn.
void TestPathLabel::selectsAndCopiesThePath()
{
    QFETCH(QString, path);
    clipboard()->clear();
    mouse::place(window->dialog, QPoint(40, 40));
    bar()->showPath(path);
    QTest::qWait(0);
    const QImage before = bar()->grab().toImage();
    mouse::drag(bar()->mapToGlobal(QPoint(10, bar()->height() / 2)), QPoint(30, 0));
    QTRY_VERIFY(bar()->hasSelectedText());
    QVERIFY(bar()->grab().toImage() != before);
    QTest::keyClick(bar(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard()->text(), path);
    QCOMPARE(bar()->text(), path);

    QTest::mouseClick(bar(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 5));
    QVERIFY(!bar()->hasSelectedText());
    clipboard()->setText("else");
    QTest::keyClick(bar(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard()->text(), QString("else"));
    QTest::mouseDClick(bar(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 5));
    QVERIFY(bar()->hasSelectedText());
    QTest::mouseClick(bar(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 5));
    QTest::keyClick(bar(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(bar(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard()->text(), path);
}

void TestPathLabel::copiesByItsMenu()
{
    bar()->showPath("/a\n/b.json");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), bar()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(bar(), &event);
    auto *menu = bar()->findChild<QMenu *>();
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(menu->actions().first()->text(), QString("Copy"));
    menu->actions().first()->trigger();
    QCOMPARE(clipboard()->text(), QString("/a\n/b.json"));
    menu->close();
}

// Its place drags the window then.
void TestPathLabel::emptyBarIsNoText()
{
    QCOMPARE(bar()->text(), QString());
    QCOMPARE(bar()->toolTip(), QString());
    QCOMPARE(bar()->line(100), QString());
    const QPoint at(20, 20);
    mouse::place(window->dialog, at);
    mouse::drag(bar()->mapToGlobal(QPoint(200, bar()->height() / 2)), QPoint(30, 0));
    QTRY_COMPARE(window->dialog.pos(), at + QPoint(30, 0));
    QVERIFY(!bar()->hasSelectedText());
}

CALORA_TEST_MAIN(TestPathLabel)
#include "tst_pathlabel.moc"
