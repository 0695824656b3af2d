#include "support/window.h"

#include "pages/installation/installationcool.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/operation/settingfunction.h"
#include "pages/operation/settingservice.h"
#include "pages/operation/settinguser.h"
#include "pages/product/dipswitchsettingstatus.h"
#include "pages/product/productselection.h"

#include <QRegularExpression>

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
    template <class Sender, class Signal>
    void watch(const Sender *sender, Signal signal, const QString &told)
    {
        connect(sender, signal, this, [told] { Watch::tell(told); });
    }
    static QStringList told()
    {
        QStringList lines = messages::all().filter(QRegularExpression("^(seen:|\\w+::validationCheck)"));
        lines.replaceInStrings(QRegularExpression("^(seen: |.*?::)"), QString());
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
    QObject *section = nullptr;
    for (QWidget *each : window->dialog.findChildren<QWidget *>()) {
        section = each->metaObject()->className() == sender ? each : section;
    }
    QVERIFY(section != nullptr);
    messages::clear();
    QVERIFY(Window::invoke(section, "refreshInstallationPageSignal"));
    QStringList checked = messages::all().filter(QRegularExpression("^Installation\\w+::"));
    checked.replaceInStrings(QRegularExpression("::.*"), QString());
    QCOMPARE(checked, sections);
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
    QCOMPARE(told(),
             (QStringList{"loaded", "step", "validationCheck succeed!", "validationCheck succeed!", "time"}));
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

// As above.
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
