#include "languages/language.h"
#include "support/messages.h"
#include "support/testfiles.h"

#include <QJsonObject>
#include <QTest>

using testfiles::quoted;

// Texts by key, and keys by text.
class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { messages::install(); }
    void init();
    void looksUpValues_data();
    void looksUpValues();
    void looksUpKeys_data();
    void looksUpKeys();
    void looksUpKeysOfOtherValues_data();
    void looksUpKeysOfOtherValues();
    void sharedTextsGiveTheFirstKey();

private:
    Language language;
};

void TestLanguage::init()
{
    QVERIFY(language.read(QStringLiteral(LANGUAGES_DIR "/English.json")));
    messages::clear();
}

void TestLanguage::looksUpValues_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("textOrKey");
    QTest::newRow("text") << "t"
                          << "t";
    QTest::newRow("lines") << "one\ntwo"
                           << "one\ntwo";
    QTest::newRow("blank") << " "
                           << " ";
    QTest::newRow("number") << "7"
                            << "7";
    QTest::newRow("true") << "true"
                          << "true";
    QTest::newRow("empty") << ""
                           << "empty";
    QTest::newRow("null") << ""
                          << "null";
    QTest::newRow("object") << ""
                            << "object";
    QTest::newRow("list") << ""
                          << "list";
    QTest::newRow("TEXT") << ""
                          << "TEXT";
    QTest::newRow("absent") << ""
                            << "absent";
}

void TestLanguage::looksUpValues()
{
    QFETCH(QString, value);
    QFETCH(QString, textOrKey);
    language.set(QJsonDocument::fromJson(
        R"({"text":"t","lines":"one\ntwo","blank":" ","number":7,"true":true,"empty":"","null":null,)"
        R"("object":{"a":"b"},"list":["a"]})"));
    const QString key = QTest::currentDataTag();
    QCOMPARE(language.textOrKey(key), textOrKey);
    QVERIFY(messages::all().isEmpty());
    QCOMPARE(language.value(key), value);
    QCOMPARE(messages::all(),
             value.isEmpty() ? QStringList({quoted(key), "MainDialog::languageValue language value is empty"})
                             : QStringList());
}

void TestLanguage::looksUpKeys_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::newRow("one key") << "Save"
                             << "Save";
    QTest::newRow("another key") << "Calora"
                                 << "AWHP";
    QTest::newRow("with a line break") << "Product\nselection"
                                       << "ProductSelection";
    QTest::newRow("two keys, heat and cool") << "Heating and Cooling"
                                             << "Both";
    QTest::newRow("two keys, address") << "Modbus address"
                                       << "Address";
    QTest::newRow("two keys, outlet") << "Outlet"
                                      << "EXIT";
    QTest::newRow("two keys, inlet") << "Inlet"
                                     << "ENTRANCE";
    QTest::newRow("other case") << "save"
                                << "";
    QTest::newRow("a key, not a text") << "AWHP"
                                       << "";
    QTest::newRow("empty") << ""
                           << "";
}

void TestLanguage::looksUpKeys()
{
    QFETCH(QString, text);
    QFETCH(QString, key);
    QCOMPARE(language.key(text), key);
    QCOMPARE(language.keyOrText(text), key.isEmpty() ? text : key);
    QVERIFY(messages::all().isEmpty());
}

void TestLanguage::looksUpKeysOfOtherValues_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QStringList>("equal");
    QTest::addColumn<QStringList>("different");
    const auto row = [](const char *name, const char *value, const QStringList &equal,
                        const QStringList &different) {
        QTest::newRow(name) << QByteArray(value) << equal << different;
    };
    row("whole number", "7", {"7", "07", "+7"}, {"", "8", "7.0", "seven"});
    row("fraction", "7.5", {"7.5", "7.50", "75e-1"}, {"", "7", "7,5"});
    row("zero", "0", {"0", "-0"}, {"", "false", "zero"});
    row("true", "true", {"true", "TRUE", "1", "yes", "Save", " "}, {"", "0", "false", "False"});
    row("false", "false", {"false", "FALSE", "0", ""}, {"true", "1", "Save"});
    row("null", "null", {""}, {"null", "0"});
    row("object", R"({"a":"b"})", {}, {"", "a", "b", R"({"a":"b"})"});
    row("list", R"(["a"])", {}, {"", "a", R"(["a"])"});
}

// A value that is no text is compared as QVariants are: the text is turned into what the value is, or null
// into an empty text. Such a value wins over a later key that has the very text.
void TestLanguage::looksUpKeysOfOtherValues()
{
    QFETCH(QByteArray, value);
    QFETCH(QStringList, equal);
    QFETCH(QStringList, different);
    for (const QString &text : equal + different) {
        const bool isEqual = equal.contains(text);
        language.set(QJsonDocument::fromJson("{\"other\":" + value + '}'));
        QVERIFY2(language.key(text) == (isEqual ? "other" : ""), qPrintable(quoted(text)));
        QCOMPARE(language.keyOrText(text), isEqual ? QString("other") : text);
        QJsonObject both = language.document.object();
        both.insert("text", text);
        language.set(QJsonDocument(both));
        QCOMPARE(language.key(text), QString(isEqual ? "other" : "text"));
    }
    QVERIFY(messages::all().isEmpty());
}

void TestLanguage::sharedTextsGiveTheFirstKey()
{
    const QVariantMap texts = language.map;
    int shared = 0;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        QStringList keys = texts.keys(text.value());
        keys.sort();
        QCOMPARE(language.key(text->toString()), keys.first());
        shared += keys.size() > 1 ? 1 : 0;
    }
    QCOMPARE(shared, 8);
}

QTEST_APPLESS_MAIN(TestLanguage)
#include "tst_language.moc"
