#include "support/window.h"

#include <QApplication>
#include <QStackedWidget>

// What is done when the window is made, what when it is shown, and what after it has been painted.

namespace {

/// The widgets below `top` that aren't styled, by class and name.
QString unstyled(const QWidget *top)
{
    QStringList names;
    for (const QWidget *widget : top->findChildren<QWidget *>()) {
        if (!widget->testAttribute(Qt::WA_WState_Polished)) {
            names.append(QLatin1String(widget->metaObject()->className()) + ' ' + widget->objectName());
        }
    }
    return names.join(QStringLiteral(", "));
}

} // namespace

class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void stylesWhatIsShown();
    void leavesHiddenPagesForLater_data();
    void leavesHiddenPagesForLater();
    void preparesAllAfterTheFirstPaint();
    void showsAPageThatIsNotPrepared_data();
    void showsAPageThatIsNotPrepared();
};

void TestStart::stylesWhatIsShown()
{
    MainDialog dialog;
    dialog.show();
    for (const char *name : {"titleFrame", "toolbarGroupBox", "pathGroupBox", "selectpage"}) {
        QCOMPARE(unstyled(Window::find(&dialog, name)), QString());
    }
}

void TestStart::leavesHiddenPagesForLater_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"productselectpage", "dipswitchsettingpage", "functionpage", "userpage",
                             "servicepage", "installationpage", "validationpage", "listWidget"}) {
        QTest::newRow(name) << name;
    }
}

void TestStart::leavesHiddenPagesForLater()
{
    QFETCH(QString, name);
    MainDialog dialog;
    dialog.show();
    const auto *hidden = dialog.findChild<QWidget *>(name);
    QVERIFY(hidden != nullptr);
    QVERIFY(!unstyled(hidden).isEmpty());
    // Nobody waits for it: the requests that each widget makes by itself are gone.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::PolishRequest);
    QVERIFY(!unstyled(hidden).isEmpty());
}

void TestStart::preparesAllAfterTheFirstPaint()
{
    const Window window;
    QTRY_COMPARE(unstyled(&window.dialog), QString());
}

void TestStart::showsAPageThatIsNotPrepared_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("tab");
    QTest::newRow("product") << int(MainDialog::ProductPage) << -1;
    QTest::newRow("dip switches") << int(MainDialog::DipSwitchPage) << -1;
    QTest::newRow("function") << int(MainDialog::SettingPage) << int(MainDialog::FunctionTab);
    QTest::newRow("installation") << int(MainDialog::SettingPage) << int(MainDialog::InstallationTab);
}

// Quicker than the preparation: it looks as it does after it.
void TestStart::showsAPageThatIsNotPrepared()
{
    QFETCH(int, step);
    QFETCH(int, tab);
    const auto show = [&](MainDialog &dialog) {
        dialog.openNewJsonFile(QStringLiteral("R32"));
        Window::find<QStackedWidget>(&dialog, "settingStackedWidget")->setCurrentIndex(qMax(tab, 0));
        Window::find<QStackedWidget>(&dialog, "stackedWidget")->setCurrentIndex(step);
    };
    MainDialog early;
    early.show();
    show(early);
    QVERIFY(QTest::qWaitForWindowExposed(&early));
    const QImage picture = early.grab().toImage();
    early.hide();

    Window late;
    QTRY_COMPARE(unstyled(&late.dialog), QString());
    show(late.dialog);
    QCoreApplication::processEvents();
    QCOMPARE(picture, late.dialog.grab().toImage());
}

CALORA_TEST_MAIN(TestStart)
#include "tst_start.moc"
