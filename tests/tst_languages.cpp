#include "support/languagefolder.h"
#include "support/languagewalk.h"

#include "languages/languageitem.h"
#include "languages/languagemenu.h"

#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>

#include <utility>

// Every delivered language against English: whatever the pages say, they keep and store the same values, and
// what they say has room.

namespace {

/// The documents that the pages are shown with.
const QMap<QString, QJsonDocument> &plants()
{
    static const QMap<QString, QJsonDocument> documents{
        {QStringLiteral("R32"), documents::standard(QStringLiteral("R32"))},
        {QStringLiteral("R410"), documents::standard(QStringLiteral("R410"))},
        {QStringLiteral("heat pump with everything"), documents::everything(QStringLiteral("R32"))},
        {QStringLiteral("module with everything"), documents::everything(QStringLiteral("R410"))}};
    return documents;
}

QByteArray bytes(const MainDialog &dialog) { return dialog.document().toJson(QJsonDocument::Compact); }

/// What differs between a move and that of English, or nothing.
QString difference(const Move &english, const Move &other)
{
    const QString where = other.list + QStringLiteral(" at ") + other.item + QStringLiteral(": ");
    if (english.index != other.index) {
        return where + QStringLiteral("item %1, in English %2").arg(other.index).arg(english.index);
    }
    if (english.document != other.document) {
        const QVariantMap changes = documents::changes(english.document, other.document);
        return where + QString::fromUtf8(QJsonDocument::fromVariant(changes).toJson());
    }
    return {};
}

/// How much of a text of several lines a font needs. The same texts come again on page after page.
int widthOf(const QWidget *widget, const QString &text)
{
    static QHash<QString, int> known;
    int &width = known[widget->font().key() + text];
    if (width == 0) {
        const auto lines = text.split('\n');
        for (const QString &line : lines) {
            width = qMax(width, widget->fontMetrics().horizontalAdvance(line.trimmed()));
        }
    }
    return width;
}

int longestWord(const QWidget *widget, const QString &text)
{
    return widthOf(widget, text.simplified().replace(' ', '\n'));
}

QString overflowOf(const QLabel *label)
{
    if (label->text().isEmpty()) {
        return {};
    }
    const int needed = label->wordWrap() ? longestWord(label, label->text()) : widthOf(label, label->text());
    if (needed > label->contentsRect().width()) {
        return QStringLiteral("%1 > %2").arg(needed).arg(label->contentsRect().width());
    }
    const int high = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    return high > label->height() ? QStringLiteral("height %1 > %2").arg(high).arg(label->height())
                                  : QString();
}

QString overflowOf(const QComboBox *list)
{
    QStyleOptionComboBox option;
    option.initFrom(list);
    const int room = list->style()
                         ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
                         .width();
    QStringList wide;
    const QStringList items = Window::items(list);
    for (const QString &item : items) {
        const int needed = widthOf(list, item);
        if (needed > room) {
            wide.append(QStringLiteral("%1: %2 > %3").arg(item).arg(needed).arg(room));
        }
    }
    return wide.join(QStringLiteral(", "));
}

template <class W>
QStringList overflows(const QWidget *page, const std::function<QString(const W *)> &overflow)
{
    QStringList found;
    const auto widgets = page->findChildren<W *>();
    for (const W *widget : widgets) {
        const QString told = widget->isVisible() ? overflow(widget) : QString();
        if (!told.isEmpty()) {
            found.append(widget->objectName() + QStringLiteral(" (") + told + QLatin1Char(')'));
        }
    }
    return found;
}

/// Painted buttons whose texts don't fit.
QStringList paintedOverflows(const MainDialog &dialog)
{
    constexpr int ends = 8;
    const std::pair<const char *, const char *> texts[]{{"functionTabButton", "Function"},
                                                        {"userTabButton", "User"},
                                                        {"serviceTabButton", "Service"},
                                                        {"installationTabButton", "Installation"}};
    QStringList found;
    for (const auto &[name, key] : texts) {
        const QWidget *button = Window::find(&dialog, name);
        QFont font = button->font();
        font.setPointSize(15);
        const int needed = QFontMetrics(font).horizontalAdvance(dialog.languageValue(QLatin1String(key)));
        if (button->isVisible() && needed > button->width() - ends - ends) {
            found.append(
                QStringLiteral("%1 (%2 > %3)").arg(QLatin1String(name)).arg(needed).arg(button->width()));
        }
    }
    return found;
}

/// What doesn't fit on the pages as they are shown.
QStringList cutOff(const MainDialog &dialog)
{
    QStringList found = paintedOverflows(dialog);
    found += overflows<QLabel>(&dialog, [](const QLabel *label) { return overflowOf(label); });
    found += overflows<QComboBox>(&dialog, [](const QComboBox *list) { return overflowOf(list); });
    found += overflows<QAbstractButton>(&dialog, [](const QAbstractButton *button) {
        // The drawn switches keep their state in a text that can't be seen.
        const bool drawn = button->text().isEmpty() || button->objectName().startsWith("DipSwitch");
        const int needed = drawn ? 0 : button->sizeHint().width();
        return needed > button->width() ? QStringLiteral("%1 > %2").arg(needed).arg(button->width())
                                        : QString();
    });
    found += overflows<QScrollArea>(&dialog, [](const QScrollArea *area) {
        const int beyond = area->horizontalScrollBar()->maximum();
        return beyond > 0 ? QStringLiteral("%1 wider than the window").arg(beyond) : QString();
    });
    return found;
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { walk = std::make_unique<LanguageWalk>(); }
    void cleanupTestCase()
    {
        walk.reset();
        languagefolder::restore();
    }

    void areDelivered();
    void areListed();
    void switchingKeepsTheDocument_data();
    void switchingKeepsTheDocument();
    void storeWhatEnglishStores_data();
    void storeWhatEnglishStores();
    void haveRoom_data();
    void haveRoom();

private:
    static void addPlants(const QStringList &languages);
    const QVector<Move> &englishMoves(const QString &plant);

    std::unique_ptr<LanguageWalk> walk;
    QMap<QString, QVector<Move>> english;
};

void TestLanguages::addPlants(const QStringList &languages)
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("plant");
    for (const QString &language : languages) {
        for (const QString &plant : plants().keys()) {
            QTest::addRow("%s, %s", qPrintable(language), qPrintable(plant)) << language << plant;
        }
    }
}

// Names with accents, too, are those of the repository, and so are the contents.
void TestLanguages::areDelivered()
{
    const QDir built(QFileInfo(QStringLiteral(CALORA_EXECUTABLE)).path() + "/language");
    const QDir sources(QStringLiteral(LANGUAGES_DIR));
    const QStringList names = sources.entryList({"*.json"}, QDir::Files);
    QCOMPARE(built.entryList({"*.json"}, QDir::Files), names);
    for (const QString &name : names) {
        QCOMPARE(name.normalized(QString::NormalizationForm_C), name);
        QCOMPARE(testfiles::content(built.filePath(name)), testfiles::content(sources.filePath(name)));
    }
}

void TestLanguages::areListed()
{
    const auto *list = Window::find<QListWidget>(walk->window.dialog.members().languageMenuWidget,
                                                 "listWidget");
    QStringList names;
    for (int index = 0; index < list->count(); ++index) {
        names.append(qobject_cast<LanguageItem *>(list->itemWidget(list->item(index)))->language());
    }
    QStringList expected = LanguageWalk::languages();
    names.sort();
    expected.sort();
    QCOMPARE(names, expected);
}

void TestLanguages::switchingKeepsTheDocument_data()
{
    QTest::addColumn<QString>("plant");
    for (const QString &plant : plants().keys()) {
        QTest::newRow(qPrintable(plant)) << plant;
    }
}

void TestLanguages::switchingKeepsTheDocument()
{
    QFETCH(QString, plant);
    walk->speak("English");
    walk->window.use(plants().value(plant));
    messages::clear();
    walk->showPages([this] {
        const QByteArray before = bytes(walk->window.dialog);
        for (const QString &language : LanguageWalk::languages()) {
            walk->speak(language);
            QVERIFY2(bytes(walk->window.dialog) == before, qPrintable(language));
        }
        walk->speak("English");
        QVERIFY(bytes(walk->window.dialog) == before);
    });
    QVERIFY2(!messages::contain("language value is empty"), "a text is missing");
}

const QVector<Move> &TestLanguages::englishMoves(const QString &plant)
{
    if (!english.contains(plant)) {
        english.insert(plant, walk->moveLists("English", plants().value(plant)));
    }
    return english[plant];
}

void TestLanguages::storeWhatEnglishStores_data() { addPlants(LanguageWalk::languages()); }

void TestLanguages::storeWhatEnglishStores()
{
    QFETCH(QString, language);
    QFETCH(QString, plant);
    const QVector<Move> &expected = englishMoves(plant);
    QVERIFY(expected.size() > 100);
    const QVector<Move> moves = walk->moveLists(language, plants().value(plant));
    // A list that isn't told of holds the items of English.
    const auto *other = moves.begin();
    for (const Move &move : expected) {
        if (other == moves.end() || other->list != move.list) {
            continue;
        }
        const QString told = difference(move, *other);
        QVERIFY2(told.isEmpty(), qPrintable(told));
        ++other;
    }
    QVERIFY(other == moves.end());
    QCOMPARE(documents::changes(expected.last().document, walk->window.dialog.document()), QVariantMap());
}

void TestLanguages::haveRoom_data() { addPlants(LanguageWalk::languages()); }

// In the smallest window.
void TestLanguages::haveRoom()
{
    QFETCH(QString, language);
    QFETCH(QString, plant);
    walk->window.dialog.resize(walk->window.dialog.minimumSize());
    walk->speak(language);
    walk->window.use(plants().value(plant));
    QStringList found;
    walk->showPages([&] {
        // Parts that a page hides while it is shown leave their places layout by layout.
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
        }
        found += cutOff(walk->window.dialog);
    });
    QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
}

CALORA_TEST_MAIN(TestLanguages)
#include "tst_languages.moc"
