// Takes the pictures of docs/guide, each at the point of an installer's way that its page tells of.

#include "journeys/installer.h"

#include "languages/userlanguageeditpopup.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/product/dipswitchsettingstatus.h"
#include "support/tour.h"

#include <QDir>

#include <cstdio>

namespace {

class Guide
{
public:
    /// The language is one of those beside the program.
    Guide(const QDir &target, const QString &language)
        : folder(target)
    {
        window().saveLanguageName(language);
        window().loadLanguageData(window().languageIniPath());
        // The least size of the window: the pictures are small and their texts stay readable.
        window().resize(974, 612);
    }

    /// False when a picture can't be written.
    bool takeAll()
    {
        take("start");
        installer.startNew("R32");
        take("product");
        installer.goToDipSwitches();
        equip(installer.window.page<DipSwitchSettingStatus>());
        take("environment");
        installer.goToSettings();
        installer.tab("userTabButton");
        take("date-missing");
        installer.tab("installationTabButton");
        Window::expand(installer.window.page<InstallationSystemSetting>());
        take("system");
        installer.goToValidation();
        take("not-complete");
        complete();
        takeLanguages();
        return saved;
    }

private:
    MainDialog &window() { return installer.window.dialog; }

    static void equip(const QWidget *page)
    {
        for (const char *radio : {"radioDhwUse", "radioOperationBoth", "radioElectricHeater1"}) {
            Window::click(page, radio);
        }
    }

    void complete()
    {
        installer.goToSettings();
        installer.tab("userTabButton");
        installer.enterDate(2026, 11, 21);
        installer.goToValidation();
        take("complete");
    }

    void takeLanguages()
    {
        QTest::mouseClick(Window::find(&window(), "languageCombobox"), Qt::LeftButton);
        take("languages");
        window().setLanguageSnapshot(window().languageDocument());
        UserLanguageEditPopup editor;
        editor.setNewLanguage(true);
        editor.show();
        take("editor", &editor);
    }

    void take(const char *name) { take(name, &window()); }

    void take(const char *name, QWidget *shown)
    {
        Tour::settle();
        const QString path = folder.filePath(QLatin1String(name) + QStringLiteral(".png"));
        if (!shown->grab().toImage().convertToFormat(QImage::Format_RGB888).save(path)) {
            static_cast<void>(std::fprintf(stderr, "guide-pictures: can't write %s\n", qPrintable(path)));
            saved = false;
        }
    }

    Installer installer;
    QDir folder;
    bool saved = true;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3 || !QDir().mkpath(arguments.at(1))) {
        static_cast<void>(std::fputs("usage: guide-pictures FOLDER LANGUAGE\n", stderr));
        return 2;
    }
    prepareApplication();
    return Guide(arguments.at(1), arguments.at(2)).takeAll() ? 0 : 1;
}
