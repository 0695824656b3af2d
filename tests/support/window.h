#pragma once

#include "app/maindialog.h"
#include "support/documents.h"
#include "support/filedialogs.h"
#include "support/messages.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>

#include <functional>

/// The real window on the X server, shown, and driven by real events on widgets found by object name.
class Window
{
public:
    Window();

private:
    /// Before the dialog, so that its messages are kept from the start.
    struct Log {
        Log() { messages::install(); }
    } log;

public:
    MainDialog dialog;

    /// The one page of a class.
    template <class P>
    P *page() const
    {
        return dialog.findChild<P *>();
    }

    /// The widget of that name below `parent`; ends the test run when there is none.
    template <class W = QWidget>
    static W *find(const QWidget *parent, const char *name)
    {
        W *widget = parent->findChild<W *>(QLatin1String(name));
        if (widget == nullptr) {
            qFatal("No widget %s", name);
        }
        return widget;
    }

    /// From now on nothing is painted, for tests that show many pages and look at none; layouts go on.
    void stopPainting() { dialog.setUpdatesEnabled(false); }

    /// Puts a document in force, as Open does, and °C unless told otherwise. No page is loaded by this.
    void use(const QJsonDocument &document, const QString &unit = QStringLiteral("CENTIGRADE"));

    /// Puts English in force on all pages, or a language whose every text is the English one followed by
    /// `mark`.
    void speak(const QString &mark = QString());

    /// Puts a language in force whose every text is what `translate` makes of the English one.
    void speak(const std::function<QString(const QString &)> &translate);

    /// Shows a page anew, so that its show event loads it: the step's index, and the tab's for the Setting
    /// step.
    void showPage(int step, int tab = -1);

    /// Opens (or closes) the body of a section of the Installation tab by its header button.
    static void expand(QWidget *section, bool open = true);

    /// What `action` changes in the document: path -> new value.
    QVariantMap changes(const std::function<void()> &action) const;

    // Real input. Each fails the test when the widget is hidden or disabled.
    static void click(QWidget *widget);
    static void click(const QWidget *parent, const char *name) { click(find(parent, name)); }
    /// Opens the list of the combo box and takes the item of that text, or of that index, with Return.
    static void choose(QComboBox *combo, const QString &item);
    static void choose(QComboBox *combo, int index);
    static void choose(const QWidget *parent, const char *name, const QString &item)
    {
        choose(find<QComboBox>(parent, name), item);
    }
    /// Replaces the text of a line edit by typing.
    static void type(QLineEdit *edit, const QString &text);

    static QStringList items(const QComboBox *combo);
    static QStringList items(const QWidget *parent, const char *name)
    {
        return items(find<QComboBox>(parent, name));
    }
    static QString shown(const QWidget *parent, const char *name)
    {
        return find<QComboBox>(parent, name)->currentText();
    }
    static bool checked(const QWidget *parent, const char *name)
    {
        return find<QRadioButton>(parent, name)->isChecked();
    }
    static bool enabled(const QWidget *parent, const char *name) { return find(parent, name)->isEnabled(); }
    /// Whether the widget itself is shown, be its section open or not.
    static bool shownItself(const QWidget *parent, const char *name)
    {
        return !find(parent, name)->isHidden();
    }
    static bool visible(const QWidget *parent, const char *name) { return find(parent, name)->isVisible(); }

    /// Runs a slot that nothing connects, by the meta-object system.
    static bool invoke(QObject *object, const char *slot) { return QMetaObject::invokeMethod(object, slot); }

    /// The signatures of the slots that the object's own class declares, in order, without clones.
    static QStringList ownSlots(const QObject *object);
    /// The same of its signals.
    static QStringList ownSignals(const QObject *object);
};

/// The list lower..upper with a suffix, as texts.
QStringList range(int lower, int upper, const QString &suffix, int step = 1);

/// Gives the application the tool's name and fonts, which lie beside the program.
void prepareApplication();

/// A main() that sets the tool's fonts and attributes, keeps the log and runs the tests of a class.
int runTests(QObject *tests, int argc, char *argv[]);

#define CALORA_TEST_MAIN(TestClass)           \
    int main(int argc, char *argv[])          \
    {                                         \
        QApplication application(argc, argv); \
        TestClass tests;                      \
        return runTests(&tests, argc, argv);  \
    }
