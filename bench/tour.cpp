// The tool's window in a process of its own, which visits every page twice and tells, a line each, how long
// each show took and how much memory it has then. The benchmark starts it, since a process shows a page for
// the first time only once.

#include "app/fonts.h"
#include "app/maindialog.h"
#include "bench/measure.h"

#include <QPushButton>
#include <QStackedWidget>
#include <QWindow>

#include <array>
#include <cstdio>

namespace {

struct Stop {
    const char *name;
    int step;
    int tab;
};

constexpr std::array<Stop, 8> stops{{{"Select", MainDialog::SelectPage, -1},
                                     {"Product selection", MainDialog::ProductPage, -1},
                                     {"Dip switches", MainDialog::DipSwitchPage, -1},
                                     {"Function", MainDialog::SettingPage, MainDialog::FunctionTab},
                                     {"User", MainDialog::SettingPage, MainDialog::UserTab},
                                     {"Service", MainDialog::SettingPage, MainDialog::ServiceTab},
                                     {"Installation", MainDialog::SettingPage, MainDialog::InstallationTab},
                                     {"Validation", MainDialog::ValidationPage, -1}}};

void discardMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

void settle()
{
    // Several rounds, since a layout may ask for another one.
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::processEvents();
    }
}

/// Shows each page and paints it, and opens the sections of the Installation tab.
void visitPages(const MainDialog &dialog, const char *when)
{
    auto *steps = dialog.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    auto *tabs = dialog.findChild<QStackedWidget *>(QStringLiteral("settingStackedWidget"));
    for (const Stop &stop : stops) {
        // A step is shown from one that is no stop, a further tab from the tab before it.
        if (stop.tab <= MainDialog::FunctionTab) {
            steps->setCurrentIndex(MainDialog::DataSavePage);
        }
        settle();
        const double time = bench::timed([&] {
            if (stop.tab >= 0) {
                tabs->setCurrentIndex(stop.tab);
            }
            steps->setCurrentIndex(stop.step);
            QCoreApplication::processEvents();
        });
        std::printf("%s show: %s\t%f\n", when, stop.name, time);
        if (stop.tab == MainDialog::InstallationTab) {
            const auto headers = dialog.findChildren<QPushButton *>(QStringLiteral("hideButton"));
            for (QPushButton *header : headers) {
                header->click();
                settle();
            }
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    qputenv("QT_XCB_GL_INTEGRATION", "none"); // as the tool does
    const QApplication application(argc, argv);
    qInstallMessageHandler(discardMessage);
    loadFonts();
    MainDialog dialog;
    dialog.show();
    while (!dialog.windowHandle()->isExposed()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    settle();
    dialog.openNewJsonFile(QStringLiteral("R32"));
    // In the second round the headers close the sections again.
    visitPages(dialog, "first");
    visitPages(dialog, "later");
    const bench::Memory memory = bench::memoryOf(QStringLiteral("self"));
    std::printf("resident\t%f\nown\t%f\n", memory.resident, memory.own);
    return 0;
}
