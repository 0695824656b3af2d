// Takes a picture of every page of the window in both default documents, so that one can look before reading.

#include "support/window.h"

#include <QDir>
#include <QFrame>
#include <QScrollArea>

#include <cstdio>
#include <utility>

namespace {

class Pictures
{
public:
    /// Pictures of a fresh window that works on the default document of "R32" or "R410".
    Pictures(const QDir &target, QString refrigerantName)
        : folder(target)
        , refrigerant(std::move(refrigerantName))
    {
        window.dialog.resize(1440, 800);
    }

    /// False when a picture can't be written.
    bool takeAll()
    {
        take("0-select");
        startDocument();
        take("1-product");
        Window::click(&window.dialog, "validationButton");
        take("8-validation-failed");
        window.showPage(MainDialog::DipSwitchPage);
        take("2-dip-switch");
        takeTab(MainDialog::FunctionTab, "functionTabButton", "4-function");
        takeTab(MainDialog::UserTab, "userTabButton", "5-user");
        takeTab(MainDialog::ServiceTab, "serviceTabButton", "6-service");
        takeTab(MainDialog::InstallationTab, "installationTabButton", "7-installation");
        takeCompleteResult();
        takeEverything();
        return saved;
    }

private:
    void startDocument()
    {
        Window::click(&window.dialog, "newButton");
        Window::click(&window.dialog, "radioButtonMiddleTemp");
        Window::click(&window.dialog, qPrintable(QStringLiteral("radioButton") + refrigerant));
    }

    void takeTab(int tab, const char *button, const char *name)
    {
        window.showPage(MainDialog::SettingPage, tab);
        Window::click(&window.dialog, button);
        expandSections();
        take(name);
    }

    /// Opens every section that can be opened and isn't.
    void expandSections()
    {
        const auto buttons = window.dialog.findChildren<QPushButton *>(QStringLiteral("hideButton"));
        for (QPushButton *button : buttons) {
            const auto *body = bodyBeside(button);
            if (button->isVisible() && body != nullptr && body->isHidden()) {
                Window::click(button);
            }
        }
    }

    /// The body of the section whose header holds the button.
    static const QFrame *bodyBeside(const QWidget *button)
    {
        for (const QWidget *widget = button; widget != nullptr; widget = widget->parentWidget()) {
            if (const auto *body = widget->findChild<QFrame *>(QStringLiteral("frame"),
                                                               Qt::FindDirectChildrenOnly)) {
                return body;
            }
        }
        return nullptr;
    }

    /// The steps are marked rather than filled in: what their pages require is no matter of this picture.
    void takeCompleteResult()
    {
        for (const int step : {1, 2, 3}) {
            window.dialog.setStepCompleted(true, step);
        }
        Window::click(&window.dialog, "validationButton");
        take("9-validation-complete");
    }

    void takeEverything()
    {
        window.use(documents::everything(refrigerant));
        window.speak();
        window.showPage(MainDialog::DipSwitchPage);
        take("everything-2-dip-switch");
        takeTab(MainDialog::FunctionTab, "functionTabButton", "everything-4-function");
        takeTab(MainDialog::UserTab, "userTabButton", "everything-5-user");
        takeTab(MainDialog::InstallationTab, "installationTabButton", "everything-7-installation");
    }

    /// The window, and the whole of a page that is higher than its place in the window.
    void take(const char *name)
    {
        // Parts that a page hides while it is shown leave their places layout by layout.
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
        }
        save(window.dialog.grab(), QLatin1String(name));
        const auto areas = window.dialog.findChildren<QScrollArea *>();
        for (const QScrollArea *area : areas) {
            if (area->isVisible() && area->widget() != nullptr
                && area->widget()->height() > area->viewport()->height()) {
                save(wholePage(area->widget()), QLatin1String(name) + QStringLiteral("-whole"));
            }
        }
    }

    /// The page on the ground that the window shows through it.
    static QPixmap wholePage(QWidget *page)
    {
        QPixmap picture(page->size());
        picture.fill(QColor(242, 242, 242));
        page->render(&picture, {}, {}, QWidget::DrawChildren);
        return picture;
    }

    void save(const QPixmap &picture, const QString &name)
    {
        const QString path = folder.filePath(QStringLiteral("%1-%2.png").arg(refrigerant.toLower(), name));
        if (!picture.save(path)) {
            std::fprintf(stderr, "pictures: can't write %s\n", qPrintable(path));
            saved = false;
        }
    }

    Window window;
    QDir folder;
    QString refrigerant;
    bool saved = true;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments.last())) {
        std::fputs("usage: pictures FOLDER\n", stderr);
        return 2;
    }
    prepareApplication();
    bool saved = true;
    for (const char *refrigerant : {"R32", "R410"}) {
        saved = Pictures(arguments.last(), QLatin1String(refrigerant)).takeAll() && saved;
    }
    return saved ? 0 : 1;
}
