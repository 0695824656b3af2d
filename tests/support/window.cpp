#include "support/window.h"

#include "app/fonts.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QFrame>
#include <QJsonObject>
#include <QMetaMethod>

Window::Window()
{
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog) || !QTest::qWaitForWindowActive(&dialog)) {
        qFatal("The window isn't shown, or has no focus");
    }
}

void Window::use(const QJsonDocument &document, const QString &unit)
{
    dialog.setDocument(document);
    dialog.setTempUnit(unit);
}

void Window::speak(const QString &mark)
{
    speak([&mark](const QString &text) { return text + mark; });
}

void Window::speak(const std::function<QString(const QString &)> &translate)
{
    QFile file(QStringLiteral(":/language/English.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("No English");
    }
    QJsonObject texts = QJsonDocument::fromJson(file.readAll()).object();
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        text.value() = translate(text.value().toString());
    }
    dialog.setLanguageDocument(QJsonDocument(texts));
    dialog.changeLanguage();
}

void Window::showPage(int step, int tab)
{
    auto *steps = find<QStackedWidget>(&dialog, "stackedWidget");
    steps->setCurrentIndex(MainDialog::SelectPage);
    if (tab >= 0) {
        find<QStackedWidget>(&dialog, "settingStackedWidget")->setCurrentIndex(tab);
    }
    steps->setCurrentIndex(step);
}

void Window::expand(QWidget *section, bool open)
{
    auto *button = find<QPushButton>(section, "hideButton");
    if (find<QFrame>(section, "frame")->isHidden() == open) {
        click(button);
    }
}

QVariantMap Window::changes(const std::function<void()> &action) const
{
    const QJsonDocument before = dialog.document();
    action();
    return documents::changes(before, dialog.document());
}

void Window::click(QWidget *widget)
{
    if (!widget->isVisible() || !widget->isEnabled()) {
        qFatal("Can't click %s: it is hidden or disabled", qPrintable(widget->objectName()));
    }
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(12, widget->height() / 2));
}

void Window::choose(QComboBox *combo, const QString &item)
{
    const int index = combo->findText(item, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        qFatal("%s has no item %s", qPrintable(combo->objectName()), qPrintable(item));
    }
    choose(combo, index);
}

void Window::choose(QComboBox *combo, int index)
{
    if (!combo->isVisible() || !combo->isEnabled()) {
        qFatal("Can't choose in %s: it is hidden or disabled", qPrintable(combo->objectName()));
    }
    combo->setFocus();
    combo->showPopup();
    QAbstractItemView *list = combo->view();
    list->setCurrentIndex(combo->model()->index(index, combo->modelColumn(), combo->rootModelIndex()));
    QTest::keyClick(list, Qt::Key_Return);
}

void Window::type(QLineEdit *edit, const QString &text)
{
    if (!edit->isVisible() || !edit->isEnabled()) {
        qFatal("Can't type into %s: it is hidden or disabled", qPrintable(edit->objectName()));
    }
    edit->setFocus();
    edit->selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(edit, Qt::Key_Delete);
    } else {
        QTest::keyClicks(edit, text);
    }
}

QStringList Window::items(const QComboBox *combo)
{
    QStringList texts;
    for (int index = 0; index < combo->count(); ++index) {
        texts.append(combo->itemText(index));
    }
    return texts;
}

namespace {

QStringList ownMethods(const QObject *object, QMetaMethod::MethodType type)
{
    QStringList signatures;
    const QMetaObject *meta = object->metaObject();
    for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        if (method.methodType() == type && (method.attributes() & QMetaMethod::Cloned) == 0) {
            signatures.append(QString::fromLatin1(method.methodSignature()));
        }
    }
    return signatures;
}

} // namespace

QStringList Window::ownSlots(const QObject *object) { return ownMethods(object, QMetaMethod::Slot); }

QStringList Window::ownSignals(const QObject *object) { return ownMethods(object, QMetaMethod::Signal); }

QStringList range(int lower, int upper, const QString &suffix, int step)
{
    QStringList texts;
    for (int value = lower; value <= upper; value += step) {
        texts.append(QString::number(value) + suffix);
    }
    return texts;
}

void prepareApplication()
{
    // Without /proc Qt can't tell, and "/language" would lie at the root of the disk.
    if (QCoreApplication::applicationDirPath().isEmpty()) {
        qFatal("The folder of this program is unknown; is /proc mounted?");
    }
    QCoreApplication::setApplicationName(QStringLiteral("Calora configurator"));
#ifdef Q_OS_WIN
    QApplication::setStyle(QStringLiteral("Fusion"));
#endif
    // The tests answer Qt's own dialogs.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    loadFonts();
}

int runTests(QObject *tests, int argc, char *argv[])
{
    prepareApplication();
    return QTest::qExec(tests, argc, argv);
}
