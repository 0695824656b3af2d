#include "pages/operation/settingfunction.h"
#include "pages/operation/settinguser.h"
#include "pages/product/dipswitchsettingstatus.h"
#include "support/testfiles.h"
#include "support/window.h"

#include <memory>

// What the labels and radios of the pages show, from a table: page, widget, the text in English, and the text
// of the form where a page is first seen without a language. A text that stays the same in every language has
// only the latter.
class TestCaptions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase()
    {
        form.reset();
        window.reset();
    }

    void followTheLanguage_data() { addRows(2); }
    void followTheLanguage();
    void startAsTheForm_data() { addRows(3); }
    void startAsTheForm();

private:
    /// The rows that have a text in that column.
    static void addRows(int column);
    static std::unique_ptr<QWidget> fresh(const QString &page);
    QMap<QString, QString> shown() const;

    std::unique_ptr<Window> window;
    std::unique_ptr<QWidget> form;
    QMap<QString, QString> english;
    QMap<QString, QString> other;
    QMap<QString, QString> englishAgain;
};

void TestCaptions::initTestCase()
{
    window = std::make_unique<Window>();
    english = shown();
    window->speak(QStringLiteral("~"));
    other = shown();
    window->speak();
    englishAgain = shown();
}

// "Page widget" -> text of each child that has one; of children of one name the first one counts.
QMap<QString, QString> TestCaptions::shown() const
{
    QMap<QString, QString> texts;
    for (const QWidget *widget : window->dialog.findChildren<QWidget *>()) {
        for (const QWidget *page = widget->parentWidget(); page != nullptr; page = page->parentWidget()) {
            const QString name = QString::fromLatin1(page->metaObject()->className()) + ' '
                + widget->objectName();
            if (!texts.contains(name)) {
                texts.insert(name, widget->property("text").toString());
            }
        }
    }
    return texts;
}

void TestCaptions::addRows(int column)
{
    QTest::addColumn<QString>("text");
    const QByteArray table = testfiles::content(QStringLiteral(TEST_DATA_DIR "/captions.tsv"));
    for (const QByteArray &line : table.trimmed().split('\n')) {
        const QList<QByteArray> cells = line.split('\t');
        if (!cells.value(column).isEmpty()) {
            QTest::newRow(cells.at(0) + ' ' + cells.at(1))
                << QString::fromUtf8(cells.at(column)).replace(QLatin1String("\\n"), QLatin1String("\n"));
        }
    }
}

void TestCaptions::followTheLanguage()
{
    QFETCH(QString, text);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(english.contains(name));
    QCOMPARE(english.value(name), text);
    QCOMPARE(other.value(name), QString(text + QLatin1Char('~')));
    QCOMPARE(englishAgain.value(name), text);
}

std::unique_ptr<QWidget> TestCaptions::fresh(const QString &page)
{
    if (page == QLatin1String("SettingFunction")) {
        return std::make_unique<SettingFunction>();
    }
    if (page == QLatin1String("SettingUser")) {
        return std::make_unique<SettingUser>();
    }
    return std::make_unique<DipSwitchSettingStatus>();
}

void TestCaptions::startAsTheForm()
{
    QFETCH(QString, text);
    const QStringList names = QString::fromLatin1(QTest::currentDataTag()).split(QLatin1Char(' '));
    if (!form || names.first() != QLatin1String(form->metaObject()->className())) {
        form = fresh(names.first());
    }
    QCOMPARE(QString::fromLatin1(form->metaObject()->className()), names.first());
    QCOMPARE(Window::find(form.get(), qPrintable(names.last()))->property("text").toString(), text);
}

CALORA_TEST_MAIN(TestCaptions)
#include "tst_captions.moc"
