#include "support/testfiles.h"
#include "support/window.h"

#include "app/tabbutton.h"
#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemaquabox.h"
#include "pages/installation/installationsystemawhp.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/operation/settingfunction.h"
#include "pages/operation/settinguser.h"
#include "pages/product/dipswitchsettingstatus.h"

#include <QAccessible>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace {

/// What a screen reader is told of a widget.
QString told(QWidget *widget, QAccessible::Text kind = QAccessible::Description)
{
    return QAccessible::queryAccessibleInterface(widget)->text(kind);
}

QWidget *pageOf(const Window &window, const QByteArray &className)
{
    const auto pages = window.dialog.findChildren<QWidget *>();
    const auto page = std::find_if(pages.begin(), pages.end(), [&className](const QWidget *each) {
        return className == each->metaObject()->className();
    });
    return page == pages.end() ? nullptr : *page;
}

/// Takes the choice of the radio's group back, which nobody can do at the window, and has the page check
/// itself.
void takeBack(QWidget *page, const QString &radio)
{
    const QWidget *group = Window::find(page, qPrintable(radio))->parentWidget();
    const auto radios = group->findChildren<QRadioButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QRadioButton *each : radios) {
        each->setAutoExclusive(false);
        each->setChecked(false);
        each->setAutoExclusive(true);
    }
    QVERIFY(Window::invoke(page, "validationCheck") || Window::invoke(page, "validataionCheck"));
}

struct Stop {
    int step;
    int tab;
    const char *mark;
};

Stop stopOf(const QByteArray &page)
{
    if (page == "DipSwitchSettingStatus") {
        return {MainDialog::DipSwitchPage, -1, "labelErrorDipSwitch"};
    }
    if (page == "SettingFunction") {
        return {MainDialog::SettingPage, MainDialog::FunctionTab, "functionValidationIcon"};
    }
    if (page == "SettingUser") {
        return {MainDialog::SettingPage, MainDialog::UserTab, "userValidationIcon"};
    }
    return {MainDialog::SettingPage, MainDialog::InstallationTab, "installationValidationIcon"};
}

} // namespace

// What the marks tell somebody who doesn't see the page: what is still open there.
class TestOpenControls : public QObject
{
    Q_OBJECT

private slots:
    void init() { window = std::make_unique<Window>(); }
    void cleanup() { window.reset(); }

    void groupIsNamed_data();
    void groupIsNamed();
    void emptyFieldIsNamed();
    void dateIsNamed();
    void closedSectionIsLookedInto();
    void pagesNotShownAreNamed();
    void pagesOfAnotherDocumentAreNamed();
    void productPageNamesWhatIsOpen();
    void languageIsFollowed();
    void textOfNoKeyNamesNothing();
    void nothingIsLogged();

private:
    QWidget *show(const QByteArray &page, const QString &refrigerant = QStringLiteral("R32"));
    QString tells(const char *mark) const { return told(Window::find(&window->dialog, mark)); }

    std::unique_ptr<Window> window;
};

/// The page with all that it can offer, its sections open.
QWidget *TestOpenControls::show(const QByteArray &page, const QString &refrigerant)
{
    window->use(documents::everything(refrigerant));
    const Stop stop = stopOf(page);
    window->showPage(stop.step, stop.tab);
    if (stop.tab == MainDialog::InstallationTab) {
        for (QWidget *section : std::initializer_list<QWidget *>{
                 window->page<InstallationSystemSetting>(), window->page<InstallationCool>(),
                 window->page<InstallationHeat>(), window->page<InstallationaAuto>(),
                 window->page<InstallationDWH>()}) {
            Window::expand(section);
        }
    }
    return pageOf(*window, page);
}

void TestOpenControls::groupIsNamed_data()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::addColumn<QString>("radio");
    QTest::addColumn<QString>("caption");
    struct Row {
        const char *page;
        const char *refrigerant;
        const char *radio;
        const char *caption; ///< empty where the page does without a choice
    };
    const std::vector<Row> rows{
        {"DipSwitchSettingStatus", "R32", "radioDhwUse", ""}, // DHW only, hidden, would be the third
        {"DipSwitchSettingStatus", "R32", "radioSolarThermalKitUse", "Solar thermal kit"},
        {"DipSwitchSettingStatus", "R32", "radioOperationBoth", "Operation mode"},
        {"DipSwitchSettingStatus", "R32", "radioFlowAlways", "Flow switch detection"},
        {"DipSwitchSettingStatus", "R32", "radioElectricHeater1", "Back-up heater"},
        {"DipSwitchSettingStatus", "R32", "radioThermostatUse", "Thermostat"},
        {"DipSwitchSettingStatus", "R32", "radioOrvoAddressB0", ""},
        {"DipSwitchSettingStatus", "R32", "radioAdditionalAirUse", "Remote air temperature sensor"},
        {"DipSwitchSettingStatus", "R32", "radioAntifreezeUse", "Anti-freezing function"},
        {"DipSwitchSettingStatus", "R410", "radioDhwUse", "Domestic hot water tank"},
        {"SettingFunction", "R32", "radioSlientModeUse", "Silent mode"},
        {"SettingFunction", "R32", "radioAllButtonUse", "All lock"},
        {"SettingFunction", "R32", "radioOnOffButtonUse", "On/Off lock"},
        {"SettingFunction", "R32", "radioOperationModeButtonUse", "Operation mode lock"},
        {"SettingFunction", "R32", "radioDhwOnOffUse", "DHW lock"},
        {"SettingUser", "R32", "radioCelicious", "Temperature unit"},
        {"SettingUser", "R32", "radioSummerTimeUse", "Summer time"},
        {"SettingUser", "R32", "radioWhite", "Display theme"},
        {"InstallationSystemSetting", "R32", "radioDryAuto", "Dry contact mode"},
        {"InstallationSystemSetting", "R32", "radioEnforcedUse", "Pump anti-lock function"},
        {"InstallationSystemAWHP", "R32", "radio2ndUse", "Mixed circuit"},
        {"InstallationSystemAWHP", "R32", "radioSgUse", "Smart grid(SG)"},
        {"InstallationSystemAWHP", "R32", "radioHeaterPriorityUse", "Heater enable for DHW"},
        {"InstallationSystemAWHP", "R32", "radioWaterTankHeaterUse", "Use DHW boost heater"},
        {"InstallationSystemAWHP", "R32", "radioExternalPumpUse", "Use external pump"},
        {"InstallationSystemAWHP", "R32", "radio3rdUse", "3rd party boiler"},
        {"InstallationSystemAquabox", "R410", "radioStandbyUse", "Standby mode"},
        {"InstallationSystemAquabox", "R410", "radioHsmodeUse", "HS model"},
        {"InstallationSystemAquabox", "R410", "radioCombinationUse", "Cooling / Heating only mode"},
        {"InstallationSystemAquabox", "R410", "radioOpt1", "Oil recovery"},
        {"InstallationSystemAquabox", "R410", "radioRefrigerantUse", "Refrigerant leak sensor"},
        {"InstallationCool", "R32", "radioControlTypeAuto", "Mode"},
        {"InstallationCool", "R32", "radioFanCoilUse", "Fan coil unit"},
        {"InstallationCool", "R32", "radioWaterPumpUse", "Water pump cycling"},
        {"InstallationHeat", "R32", "radioControlTypeAuto", "Mode"},
        {"InstallationHeat", "R32", "radioWaterPumpUse", "Water pump cycling"},
        {"InstallationaAuto", "R32", "radioBoth", ""},
        {"InstallationDWH", "R32", "radioUnderFloorUse", "Heating priority"},
        {"InstallationDWH", "R32", "radioDisinfectionUse", "Disinfection"}};
    for (const Row &row : rows) {
        QTest::addRow("%s %s %s", row.page, row.refrigerant, row.radio)
            << row.refrigerant << row.radio << row.caption;
    }
}

void TestOpenControls::groupIsNamed()
{
    QFETCH(QString, refrigerant);
    QFETCH(QString, radio);
    QFETCH(QString, caption);
    const QByteArray name = QByteArray(QTest::currentDataTag()).split(' ').first();
    const char *mark = stopOf(name).mark;
    QWidget *page = show(name, refrigerant);
    if (name == "SettingUser") {
        Window::choose(page, "comboDateYear", "2026");
        Window::choose(page, "comboDateMonth", "11");
        Window::choose(page, "comboDateDay", "22");
    } else if (radio == QLatin1String("radioOpt1")) {
        Window::click(page, "radioCombinationUse");
    }
    QVERIFY(Window::visible(page, qPrintable(radio)));
    takeBack(page, radio);
    window->dialog.updateInstallationValid();
    QCOMPARE(!Window::find(&window->dialog, mark)->isHidden(), !caption.isEmpty());
    QCOMPARE(tells(mark), caption);
    if (name.startsWith("Setting") || name.startsWith("Installation")) {
        QVERIFY(caption.isEmpty() || tells("labelErrorSetting").split(", ").contains(caption));
    }
}

void TestOpenControls::emptyFieldIsNamed()
{
    QWidget *page = show("DipSwitchSettingStatus");
    QCOMPARE(tells("labelErrorDipSwitch"), QString());
    Window::type(Window::find<QLineEdit>(page, "lineEditWHM2"), QString());
    Window::type(Window::find<QLineEdit>(page, "lineEditWHM4"), QString());
    QCOMPARE(tells("labelErrorDipSwitch"), QString("Pulse spec.(WHM2), Pulse spec.(Heat meter)"));
    Window::type(Window::find<QLineEdit>(page, "lineEditWHM2"), QString("1"));
    QCOMPARE(tells("labelErrorDipSwitch"), QString("Pulse spec.(Heat meter)"));
}

// Year, month and day are one decision; so are the days of summer time, and only while it is used.
void TestOpenControls::dateIsNamed()
{
    window->use(documents::standard("R32"));
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    QWidget *page = pageOf(*window, "SettingUser");
    QCOMPARE(tells("userValidationIcon"), QString("Date"));
    Window::choose(page, "comboDateYear", "2026");
    Window::choose(page, "comboDateMonth", "11");
    QCOMPARE(tells("userValidationIcon"), QString("Date"));
    Window::choose(page, "comboDateDay", "22");
    QCOMPARE(tells("userValidationIcon"), QString());
    Window::click(page, "radioSummerTimeUse");
    Window::choose(page, "comboStartDay", "Day");
    Window::choose(page, "comboEndMonth", "Month");
    QCOMPARE(tells("userValidationIcon"), QString("Start date, End date"));
    Window::click(page, "radioSummerTimeNotuse");
    QCOMPARE(tells("userValidationIcon"), QString());
}

// What is hidden passes its check; the mark stays as it was last set.
void TestOpenControls::closedSectionIsLookedInto()
{
    QWidget *page = show("InstallationCool");
    takeBack(page, "radioFanCoilUse");
    Window::expand(page, false);
    QVERIFY(!Window::find(&window->dialog, "installationValidationIcon")->isHidden());
    QCOMPARE(tells("installationValidationIcon"), QString("Fan coil unit"));
}

void TestOpenControls::pagesNotShownAreNamed()
{
    window->dialog.startNewDocument();
    QCOMPARE(tells("labelErrorDipSwitch"), QString("Environment setting"));
    QCOMPARE(tells("labelErrorSetting"), QString("Function, User, Installation"));
    QCOMPARE(tells("serviceValidationIcon"), QString("Service"));
    window->use(documents::standard("R32"));
    window->showPage(MainDialog::SettingPage, MainDialog::ServiceTab);
    QCOMPARE(tells("serviceValidationIcon"), QString());
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    QCOMPARE(tells("labelErrorSetting"), QString("Function, Date, Installation"));
    QCOMPARE(told(Window::find(&window->dialog, "labelErrorSetting"), QAccessible::Name),
             QString("Setup is not complete"));
}

void TestOpenControls::pagesOfAnotherDocumentAreNamed()
{
    window->dialog.startNewDocument();
    window->use(documents::standard("R32"));
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    QCOMPARE(tells("userValidationIcon"), QString("Date"));
    window->dialog.startNewDocument();
    QCOMPARE(tells("userValidationIcon"), QString("User"));

    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    QCOMPARE(tells("userValidationIcon"), QString("Date"));
    const QTemporaryDir folder;
    const QString file = folder.filePath("plant.json");
    testfiles::put(file, documents::standard("R32").toJson());
    filedialogs::answer([this] { Window::click(&window->dialog, "openButton"); }, file);
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
    QCOMPARE(tells("userValidationIcon"), QString("User"));
}

void TestOpenControls::productPageNamesWhatIsOpen()
{
    window->dialog.startNewDocument();
    auto *step = Window::find(&window->dialog, "productSelectionButton");
    const QString open = QStringLiteral("Current step, Setup is not complete, ");
    QCOMPARE(told(step, QAccessible::Name), QString("Product selection"));
    QCOMPARE(told(step), open + "Product spec, Refrigerant type");
    Window::click(&window->dialog, "radioButtonMiddleTemp");
    QCOMPARE(told(step), open + "Refrigerant type");
    Window::click(&window->dialog, "radioButtonR32");
    QCOMPARE(told(step), QString("Current step, Complete!"));
}

void TestOpenControls::languageIsFollowed()
{
    window->dialog.startNewDocument();
    window->use(documents::standard("R32"));
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    window->speak("~");
    QCOMPARE(tells("labelErrorSetting"), QString("Function~, Date~, Installation~"));
    QCOMPARE(told(Window::find<TabButton>(&window->dialog, "userTabButton"), QAccessible::Name),
             QString("User~"));
    window->speak();
    QCOMPARE(tells("labelErrorSetting"), QString("Function, Date, Installation"));
}

// The language editor can write such an entry.
void TestOpenControls::textOfNoKeyNamesNothing()
{
    QJsonObject texts = QJsonDocument::fromJson(testfiles::content(":/language/English.json")).object();
    texts.insert(QString(), "x");
    window->dialog.setLanguageDocument(QJsonDocument(texts));
    window->dialog.changeLanguage();
    QCOMPARE(told(Window::find(&window->dialog, "saveButton"), QAccessible::Name), QString("Save"));
    window->use(documents::standard("R32"));
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *radio = Window::find<QRadioButton>(&window->dialog, "radioCelicious");
    QCOMPARE(told(radio, QAccessible::Name), radio->text());
}

void TestOpenControls::nothingIsLogged()
{
    window->dialog.startNewDocument();
    window->use(documents::standard("R32"));
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    messages::clear();
    const auto widgets = window->dialog.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        told(widget);
        told(widget, QAccessible::Name);
    }
    QCOMPARE(messages::all(), QStringList());
}

CALORA_TEST_MAIN(TestOpenControls)
#include "tst_opencontrols.moc"
