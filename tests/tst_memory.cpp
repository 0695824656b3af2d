#include "app/tabbutton.h"
#include "journeys/installer.h"
#include "languages/languageitem.h"
#include "languages/languagemenu.h"
#include "support/languagefolder.h"

#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"

#include <QListWidget>

#include <cstdio>
#include <unistd.h>

// The window keeps the memory that it has after a while: changing pages and languages takes no more of it.
// CALORA_MEMORY_LONG makes ten times as many changes.
class TestMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { languagefolder::restore(); }
    void changesOfPageAndLanguageKeepTheMemory();

private:
    static double residentMegabytes();
    void changePage(int number);
    void changeLanguage(int number);

    std::unique_ptr<Installer> installer;
};

void TestMemory::initTestCase()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("Under AddressSanitizer, freed memory stays resident for a while");
#endif
    languagefolder::restore();
    testfiles::put(languagefolder::file(QStringLiteral("Marked.json")),
                   languagefolder::marked(QStringLiteral("~")));
    installer = std::make_unique<Installer>();
    const Window &window = installer->window;
    installer->startNew(QStringLiteral("R32"));
    installer->goToDipSwitches();
    installer->goToSettings();
    installer->tab("installationTabButton");
    for (QWidget *section :
         std::initializer_list<QWidget *>{window.page<InstallationSystemSetting>(),
                                          window.page<InstallationCool>(), window.page<InstallationHeat>(),
                                          window.page<InstallationaAuto>(), window.page<InstallationDWH>()}) {
        Window::expand(section);
    }
}

double TestMemory::residentMegabytes()
{
    const QByteArray sizes = testfiles::content(QStringLiteral("/proc/self/statm"));
    return sizes.split(' ').at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

void TestMemory::changePage(int number)
{
    const char *const buttons[] = {"productSelectionButton", "dipSwitchButton", "settingButton",
                                   "functionTabButton",      "userTabButton",   "serviceTabButton",
                                   "installationTabButton",  "validationButton"};
    Window::click(&installer->window.dialog, buttons[number % 8]);
    QCoreApplication::processEvents();
    messages::clear();
}

void TestMemory::changeLanguage(int number)
{
    installer->press("languageCombobox");
    auto *list = Window::find<QListWidget>(installer->window.dialog.members().languageMenuWidget,
                                           "listWidget");
    Window::click(list->itemWidget(list->item(number % 3 % 2)), "labelLanguage");
    QCoreApplication::processEvents();
    messages::clear();
}

void TestMemory::changesOfPageAndLanguageKeepTheMemory()
{
    constexpr int first = 50;
    const bool isLong = qEnvironmentVariableIsSet("CALORA_MEMORY_LONG");
    const int pages = isLong ? 5000 : 500;
    const int languages = isLong ? 500 : 100;
    for (int number = 0; number < first; ++number) {
        changePage(number);
        changeLanguage(number);
    }
    const double before = residentMegabytes();
    for (int number = first; number < pages; ++number) {
        changePage(number);
        if (number < languages) {
            changeLanguage(number);
        }
    }
    const double after = residentMegabytes();
    std::printf("resident: %.2f MB, then %.2f MB\n", before, after);
    QVERIFY2(after <= before * 1.02, qPrintable(QStringLiteral("%1 MB, then %2 MB").arg(before).arg(after)));
}

CALORA_TEST_MAIN(TestMemory)
#include "tst_memory.moc"
