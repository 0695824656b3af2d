#include "app/maindialog.h"
#include "languages/languageitem.h"
#include "languages/languagemenu.h"
#include "languages/letteritem.h"
#include "languages/userlanguageeditpopup.h"
#include "pages/completion/datasave.h"
#include "pages/completion/validation.h"
#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemaquabox.h"
#include "pages/installation/installationsystemawhp.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/operation/settingfunction.h"
#include "pages/operation/settingservice.h"
#include "pages/operation/settinguser.h"
#include "pages/product/dipswitchsettingstatus.h"
#include "pages/product/productselection.h"
#include "pages/product/select.h"
#include "support/testfiles.h"

#include <QtTest>

namespace {

// Kind, type of result and signature of each method that the class itself declares, calls with fewer
// arguments included.
QStringList declared(const QMetaObject &meta)
{
    QStringList methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        const QString kind = method.methodType() == QMetaMethod::Signal ? QStringLiteral("signal")
                                                                        : QStringLiteral("slot");
        methods.append(QStringLiteral("%1 %2 %3")
                           .arg(kind, QString::fromLatin1(method.typeName()),
                                QString::fromLatin1(method.methodSignature())));
    }
    return methods;
}

// Class -> its methods in their order, from a file of classes, each with its methods indented below it.
QMap<QString, QStringList> expectedMethods()
{
    QMap<QString, QStringList> methods;
    QString name;
    for (const QByteArray &line :
         testfiles::content(QStringLiteral(TEST_DATA_DIR "/methods.txt")).split('\n')) {
        if (line.startsWith(' ')) {
            methods[name].append(QString::fromLatin1(line.trimmed()));
        } else {
            name = QString::fromLatin1(line);
        }
    }
    return methods;
}

} // namespace

// The signals and slots that other code and the forms call by their names. A control that comes with a slot
// of its own needs no line in the file: a slot without its control ends each test of the window.
class TestMethods : public QObject
{
    Q_OBJECT

private slots:
    void areDeclaredInOrder_data();
    void areDeclaredInOrder();
    void everyClassIsLookedAt();

private:
    static QVector<const QMetaObject *> classes();
};

QVector<const QMetaObject *> TestMethods::classes()
{
    return {&DataSave::staticMetaObject,
            &DipSwitchSettingStatus::staticMetaObject,
            &InstallationaAuto::staticMetaObject,
            &InstallationCool::staticMetaObject,
            &InstallationDWH::staticMetaObject,
            &InstallationHeat::staticMetaObject,
            &InstallationSystemAWHP::staticMetaObject,
            &InstallationSystemAquabox::staticMetaObject,
            &InstallationSystemSetting::staticMetaObject,
            &LanguageItem::staticMetaObject,
            &LanguageMenu::staticMetaObject,
            &LetterItem::staticMetaObject,
            &MainDialog::staticMetaObject,
            &ProductSelection::staticMetaObject,
            &Select::staticMetaObject,
            &SettingFunction::staticMetaObject,
            &SettingService::staticMetaObject,
            &SettingUser::staticMetaObject,
            &UserLanguageEditPopup::staticMetaObject,
            &Validation::staticMetaObject};
}

void TestMethods::areDeclaredInOrder_data()
{
    QTest::addColumn<QStringList>("methods");
    for (const QMetaObject *meta : classes()) {
        QTest::newRow(meta->className()) << declared(*meta);
    }
}

void TestMethods::areDeclaredInOrder()
{
    QFETCH(QStringList, methods);
    const QStringList expected = expectedMethods().value(QString::fromLatin1(QTest::currentDataTag()));
    QStringList others;
    for (const QString &method : qAsConst(methods)) {
        if (!expected.contains(method)) {
            others.append(method);
        }
    }
    for (const QString &method : qAsConst(others)) {
        QVERIFY2(method.startsWith(QLatin1String("slot void on_")), qPrintable(method));
        methods.removeAll(method);
    }
    QCOMPARE(methods, expected);
}

void TestMethods::everyClassIsLookedAt()
{
    QStringList names;
    for (const QMetaObject *meta : classes()) {
        names.append(QString::fromLatin1(meta->className()));
    }
    names.sort();
    QCOMPARE(names, expectedMethods().keys());
}

QTEST_APPLESS_MAIN(TestMethods)

#include "tst_methods.moc"
