#include "support/window.h"

#include "pages/installation/installationcool.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/operation/settingfunction.h"
#include "pages/operation/settingservice.h"
#include "pages/operation/settinguser.h"
#include "pages/product/dipswitchsettingstatus.h"
#include "pages/product/productselection.h"

#include <QAbstractItemModel>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

// In which order pages do what they do when they are shown, and sections are refreshed: the log tells of each
// check, and here of what changes on the window, too.

namespace {

/// Tells in the log when a widget's look changes, or when it is hidden.
class Watch : public QObject
{
public:
    Watch(QWidget *widget, QEvent::Type watched, QString telling)
        : QObject(widget)
        , type(watched)
        , told(std::move(telling))
    {
        widget->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == type) {
            tell(told);
        }
        return false;
    }
    static void tell(const QString &text) { qDebug().noquote() << "seen:" << text; }

private:
    QEvent::Type type;
    QString told;
};

} // namespace

class TestOrder : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<Window>();
        window->use(documents::standard("R410"));
    }
    void cleanup() { window.reset(); }

    void signalRefreshesSections_data();
    void signalRefreshesSections();
    void sectionIsShown_data();
    void sectionIsShown();
    void productPageIsShown();
    void dipSwitchPageIsShown();
    void functionTabIsShown();
    void serviceTabIsShown();
    void userTabIsShown();

private:
    /// Only setCurrentStep() changes the look of the last step, which is the current one here.
    void watchTheStep()
    {
        window->dialog.setCurrentStep(4);
        new Watch(Window::find(&window->dialog, "validationButton"), QEvent::StyleChange, "step");
        messages::clear();
    }
    /// The one section of a class.
    QWidget *section(const QByteArray &className) const
    {
        for (QWidget *each : window->dialog.findChildren<QWidget *>()) {
            if (each->metaObject()->className() == className) {
                return each;
            }
        }
        qFatal("No %s", className.constData());
    }
    template <class Sender, class Signal>
    void watch(const Sender *sender, Signal signal, const QString &told)
    {
        connect(sender, signal, this, [told] { Watch::tell(told); });
    }
    /// What has been told, each only once in a row: what was seen, checks, and lookups of a text in vain.
    static QStringList told()
    {
        QStringList lines = messages::all().filter(
            QRegularExpression("^(seen:|\"|\\w+::(validationCheck|SettingUser))"));
        lines.replaceInStrings(QRegularExpression("^(seen: |.*?::)"), QString());
        lines.replaceInStrings(QRegularExpression("^\".*"), "language");
        lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
        return lines;
    }

    std::unique_ptr<Window> window;
};

void TestOrder::signalRefreshesSections_data()
{
    QTest::addColumn<QByteArray>("sender");
    QTest::addColumn<QStringList>("sections");
    QTest::newRow("system") << QByteArray("InstallationSystemSetting")
                            << QStringList{"InstallationCool", "InstallationHeat", "InstallationaAuto",
                                           "InstallationDWH"};
    QTest::newRow("cooling") << QByteArray("InstallationCool") << QStringList{"InstallationaAuto"};
    QTest::newRow("heating") << QByteArray("InstallationHeat") << QStringList{"InstallationaAuto"};
}

void TestOrder::signalRefreshesSections()
{
    QFETCH(QByteArray, sender);
    QFETCH(QStringList, sections);
    window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    messages::clear();
    QVERIFY(Window::invoke(section(sender), "refreshInstallationPageSignal"));
    QStringList checked = messages::all().filter(QRegularExpression("^Installation\\w+::"));
    checked.replaceInStrings(QRegularExpression("::.*"), QString());
    QCOMPARE(checked, sections);
}

void TestOrder::sectionIsShown_data()
{
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("InstallationSystemSetting") << QStringList{
        "validationCheck true", "language", "validationCheck succeed!!", "validationCheck true"};
    QTest::newRow("InstallationCool")
        << QStringList{"loaded", "lists", "language", "SettingUser validation succeed!"};
    QTest::newRow("InstallationHeat")
        << QStringList{"loaded", "lists", "language", "SettingUser validation succeed!"};
    QTest::newRow("InstallationDWH") << QStringList{"loaded", "lists", "SettingUser validation succeed!",
                                                    "values", "SettingUser validation succeed!"};
}

// A title tells of the language by the lack of its text, the radios of the load, whose slots check as well in
// the system settings.
void TestOrder::sectionIsShown()
{
    QFETCH(QStringList, expected);
    const QString installation = "SettingInfo.installation.";
    const QJsonDocument plant = documents::everything("R32");
    window->use(plant);
    window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    QWidget *page = section(QTest::currentDataTag());
    for (const char *name :
         {"radioDryManual", "radioFanCoilUse", "radioControlTypeManual", "radioUnderFloorUse"}) {
        if (const auto *radio = page->findChild<QRadioButton *>(name)) {
            watch(radio, &QRadioButton::toggled, "loaded");
        }
    }
    for (const char *name : {"comboTemperatureIndoorMin", "comboTankWaterMin"}) {
        if (auto *combo = page->findChild<QComboBox *>(name)) {
            MainDialog::setComboItems(combo, {"another list"}, 0);
            watch(combo->model(), &QAbstractItemModel::rowsInserted, "lists");
        }
    }
    if (auto *day = page->findChild<QComboBox *>("comboSchedule1")) {
        watch(day, &QComboBox::currentTextChanged, "values");
    }
    window->use(documents::with(plant,
                                {{installation + "drycontactAuto", "AUTO_OFF"},
                                 {installation + "UFH_stop.FCU_disable", "CLR"},
                                 {installation + "hotwater_addData.UFH_priority", "SET"},
                                 {installation + "disinfect_time.day", 3},
                                 {"SettingInfo.func.waterCtrBasisAirHeat.ctrType", "AUTO"}}));
    QJsonObject texts = window->dialog.languageDocument().object();
    for (const char *title : {"SystemSetting", "Cool", "Heat"}) {
        texts.remove(title);
    }
    window->dialog.setLanguageDocument(QJsonDocument(texts));
    messages::clear();
    page->hide();
    page->show();
    const QStringList lines = told();
    QVERIFY(lines.contains("loaded"));
    QCOMPARE(lines.mid(lines.size() - expected.size()), expected);
}

// AWHP is clicked by the load, and its slot checks before it is told here.
void TestOrder::productPageIsShown()
{
    watch(Window::find<QRadioButton>(window->page<ProductSelection>(), "radioButtonAwhp"),
          &QRadioButton::clicked, "loaded");
    watchTheStep();
    window->showPage(MainDialog::ProductPage);
    const QString check = "validationCheck radioButton product spec false";
    QCOMPARE(told(), (QStringList{"step", check, "loaded", check}));
}

void TestOrder::dipSwitchPageIsShown()
{
    watch(Window::find<QRadioButton>(window->page<DipSwitchSettingStatus>(), "radioOperationHeating"),
          &QRadioButton::toggled, "loaded");
    window->dialog.setStepCompleted(false, 2);
    new Watch(Window::find(&window->dialog, "labelErrorDipSwitch"), QEvent::HideToParent, "valid");
    watchTheStep();
    window->showPage(MainDialog::DipSwitchPage);
    QCOMPARE(told(), (QStringList{"step", "loaded", "valid"}));
}

// The slot of a list checks before it is told here.
void TestOrder::functionTabIsShown()
{
    const auto *page = window->page<SettingFunction>();
    watch(Window::find<QRadioButton>(page, "radioAllButtonNone"), &QRadioButton::toggled, "loaded");
    watch(Window::find<QComboBox>(page, "comboSilentStartMin"), &QComboBox::currentTextChanged, "time");
    window->use(documents::with(window->dialog.document(),
                                {{"SettingInfo.func.silentTimer.start.ampm", "AM"},
                                 {"SettingInfo.func.silentTimer.end.ampm", "AM"},
                                 {"SettingInfo.func.silentTimer.start.hour", 0},
                                 {"SettingInfo.func.silentTimer.start.min", 5},
                                 {"SettingInfo.func.silentTimer.end.hour", 0},
                                 {"SettingInfo.func.silentTimer.end.min", 0}}));
    watchTheStep();
    window->showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
    QCOMPARE(told(), (QStringList{"loaded", "step", "validationCheck succeed!", "time"}));
}

void TestOrder::serviceTabIsShown()
{
    watch(Window::find<QLineEdit>(window->page<SettingService>(), "lineEditOfficeName"),
          &QLineEdit::textChanged, "loaded");
    new Watch(Window::find(&window->dialog, "serviceValidationIcon"), QEvent::HideToParent, "valid");
    window->use(documents::with(window->dialog.document(), {{"SettingInfo.svc.svcContact.company", "x"}}));
    messages::clear();
    window->showPage(MainDialog::SettingPage, MainDialog::ServiceTab);
    QCOMPARE(told(), (QStringList{"loaded", "valid"}));
}

// The slot of a list checks before it is told here.
void TestOrder::userTabIsShown()
{
    const auto *page = window->page<SettingUser>();
    watch(Window::find<QRadioButton>(page, "radioWhite"), &QRadioButton::toggled, "loaded");
    watch(Window::find<QComboBox>(page, "comboEndDay"), &QComboBox::currentTextChanged, "date");
    messages::clear();
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    const QStringList lines = told();
    QVERIFY(lines.contains("loaded"));
    QVERIFY(lines.indexOf("loaded") < lines.indexOf("date"));
    const QString check = "validationCheck failed!!";
    QCOMPARE(lines.mid(lines.indexOf("date") - 1), (QStringList{check, "date", check}));
}

CALORA_TEST_MAIN(TestOrder)
#include "tst_order.moc"
