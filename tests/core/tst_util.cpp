#include "document/util.h"
#include "support/documents.h"
#include "support/messages.h"
#include "support/pathrules.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTest>

// Access by path: what a path names, what a read gives and what a write makes of the document. No window.

namespace {

QJsonDocument json(const char *text)
{
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(text).replace('\'', '"'));
    if (document.isNull()) {
        qFatal("No JSON: %s", text);
    }
    return document;
}

QJsonValue value(const char *text)
{
    return json(qPrintable(QStringLiteral("[%1]").arg(text))).array().at(0);
}

QByteArray compact(const QJsonDocument &document) { return document.toJson(QJsonDocument::Compact); }

constexpr auto plain = "{'a':{'b':{'c':'x','d':7},'e':'y'},'list':[10,{'n':{'m':1}},[3,4]],'nothing':null,"
                       "'text':'z','':{'':'empty'}}";

} // namespace

class TestUtil : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { messages::install(); }
    void init() { messages::clear(); }

    void reads_data();
    void reads();
    void readsBehindBrackets_data();
    void readsBehindBrackets();
    void readsTheDefaultDocument();
    void readsNothingFromNoDocument();
    void aMissingValueHasNoTextAndNoNumber();
    void writes_data();
    void writes();
    void writesBehindBrackets_data();
    void writesBehindBrackets();
    void writesIntoAnArray_data();
    void writesIntoAnArray();
    void logsAWriteIntoAPlainValue();
    void writesOneValueOfTheDefaultDocument();
    void writesTheRecursiveForm();
    void undefinedIsLeftToTheObject();
    void agreesWithTheSlowRules();

private:
    static void readColumns()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("expected");
    }
    static void readRow(const char *path, const char *expected)
    {
        QTest::newRow(*path == '\0' ? "(empty)" : path) << QByteArray(path) << QByteArray(expected);
    }
    static void writeColumns()
    {
        for (const char *name : {"before", "path", "written", "after"}) {
            QTest::addColumn<QByteArray>(name);
        }
    }
    static void writeRow(const char *name, const char *before, const char *path, const char *written,
                         const char *after)
    {
        QTest::newRow(name) << QByteArray(before) << QByteArray(path) << QByteArray(written)
                            << QByteArray(after);
    }
};

void TestUtil::reads_data()
{
    readColumns();
    readRow("text", "'z'");
    readRow("a.b.c", "'x'");
    readRow("a.b", "{'c':'x','d':7}");
    readRow("list", "[10,{'n':{'m':1}},[3,4]]");
    // The empty name is a name as any other.
    readRow("", "{'':'empty'}");
    readRow("a.", "{'b':{'c':'x','d':7},'e':'y'}");
    readRow("a..b", "null");
    // A leading dot is an empty name with nothing behind it.
    readRow(".a", "{'':'empty'}");
    readRow(".", "{'':'empty'}");
    readRow("a.b.", "{'c':'x','d':7}");
    readRow("a..", "null");
    // Missing at any depth, through a value that is no object, and with case.
    readRow("b", "null");
    readRow("a.x", "null");
    readRow("a.x.y.z", "null");
    readRow("text.length", "null");
    readRow("nothing", "null");
    readRow("nothing.at.all", "null");
    readRow("A.b.c", "null");
    readRow("a.b.d.e", "null");
}

void TestUtil::readsBehindBrackets_data()
{
    readColumns();
    // Arrays aren't entered.
    readRow("list[0]", "null");
    readRow("list[1].n", "null");
    readRow("list[1]n", "null");
    readRow("list.1", "null");
    readRow("list.n", "null");
    readRow("list[]", "null");
    readRow("list[9]", "null");
    readRow("list[", "null");
    // Behind any other name the index is skipped.
    readRow("text[3]", "'z'");
    readRow("text[", "'z'");
    readRow("a[0].b.c", "'x'");
    readRow("a[0]b.c", "'x'");
    readRow("a[2]", "{'b':{'c':'x','d':7},'e':'y'}");
    readRow("a.b[1].c", "'x'");
    readRow("a.b[1]c", "'x'");
    readRow("a.b[1].x", "null");
    readRow("b[0].c", "null");
    // Brackets that aren't a pair.
    readRow("text]", "null");
    readRow("]", "null");
    readRow("[", "{'':'empty'}");
    readRow("[]", "{'':'empty'}");
    readRow("[].", "{'':'empty'}");
    readRow("[]..", "'empty'");
    readRow("[].a", "null");
    readRow("]text[", "null");
    readRow("a[0", "{'b':{'c':'x','d':7},'e':'y'}");
    readRow("a[0.b", "{'b':{'c':'x','d':7},'e':'y'}");
    // The closing bracket is the first of the whole path, which here stands before the opening one.
    readRow("a.]b", "null");
}

void TestUtil::reads()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, expected);
    const QJsonValue found = Util::readJsonValue(json(plain), QString::fromLatin1(path));
    QCOMPARE(found, value(expected.constData()));
    QVERIFY(!found.isUndefined());
    QVERIFY(messages::all().isEmpty());
}

void TestUtil::readsBehindBrackets() { reads(); }

void TestUtil::readsTheDefaultDocument()
{
    const QJsonDocument document = documents::standard("R32");
    const auto read = [&](const char *path) { return Util::readJsonValue(document, QLatin1String(path)); };
    QCOMPARE(read("SettingInfo.user.themeSet"), document["SettingInfo"]["user"]["themeSet"]);
    QVERIFY(read("SettingInfo.user.themeSet").isString());
    QCOMPARE(read("SettingInfo.user"), document["SettingInfo"]["user"]);
    QVERIFY(read("SettingInfo.user").isObject());
    QVERIFY(read("").isNull());
    QCOMPARE(read("OperInfo.setTempAir"), document["OperInfo"]["setTempAir"]);
    QVERIFY(read("OperInfo.setTempAir").isArray());
    QVERIFY(read("OperInfo.setTempAir[4]").isNull());
}

void TestUtil::readsNothingFromNoDocument()
{
    for (const QJsonDocument &document : {QJsonDocument(), json("[]"), json("[{'a':1}]"), json("{}")}) {
        for (const char *path : {"", "a", "0", "[0]", "[0].a", "a.b"}) {
            QVERIFY2(Util::readJsonValue(document, QLatin1String(path)).isNull(), path);
        }
    }
}

void TestUtil::aMissingValueHasNoTextAndNoNumber()
{
    const QJsonValue missing = Util::readJsonValue(json(plain), QStringLiteral("a.x"));
    QCOMPARE(missing.toString(), QString());
    QCOMPARE(missing.toInt(), 0);
}

void TestUtil::writes_data()
{
    writeColumns();
    writeRow("replace", "{'a':1,'b':2}", "a", "'n'", "{'a':'n','b':2}");
    writeRow("replace deep", "{'a':{'b':{'c':1,'d':2}},'e':3}", "a.b.c", "'n'",
             "{'a':{'b':{'c':'n','d':2}},'e':3}");
    writeRow("replace an object", "{'a':{'b':1}}", "a", "5", "{'a':5}");
    writeRow("add", "{'a':1}", "b", "{'c':[]}", "{'a':1,'b':{'c':[]}}");
    writeRow("add in an object", "{'a':{'b':1}}", "a.c", "true", "{'a':{'b':1,'c':true}}");
    writeRow("add to nothing", "{}", "a", "1", "{'a':1}");
    writeRow("below a missing name", "{'a':{}}", "a.missing.b", "'n'", "{'a':{'missing':'n'}}");
    writeRow("below a missing first name", "{}", "a.b.c", "'n'", "{'a':'n'}");
    writeRow("below a plain value", "{'a':{'b':1}}", "a.b.c.d", "'n'", "{'a':{'b':'n'}}");
    writeRow("below null", "{'a':null}", "a.b", "'n'", "{'a':'n'}");
    writeRow("remove", "{'a':{'b':1,'c':2}}", "a.b", "null", "{'a':{'c':2}}");
    writeRow("remove an object", "{'a':{'b':1},'c':2}", "a", "null", "{'c':2}");
    writeRow("remove what is missing", "{'a':{'b':1}}", "a.x", "null", "{'a':{'b':1}}");
    writeRow("remove below a plain value", "{'a':{'b':1}}", "a.b.c", "null", "{'a':{}}");
    writeRow("remove below a missing name", "{'a':{'b':1}}", "a.x.y", "null", "{'a':{'b':1}}");
    writeRow("empty path", "{'a':1}", "", "2", "{'':2,'a':1}");
    writeRow("leading dot", "{'a':1}", ".a", "2", "{'':2,'a':1}");
    writeRow("trailing dot", "{'a':{'b':1}}", "a.b.", "2", "{'a':{'b':2}}");
    writeRow("empty name below", "{'a':{'b':1}}", "a..b", "2", "{'a':{'':2,'b':1}}");
    writeRow("with case", "{'a':1}", "A", "2", "{'A':2,'a':1}");
}

void TestUtil::writesBehindBrackets_data()
{
    writeColumns();
    // Behind objects and plain values.
    writeRow("index behind an object", "{'a':{'b':1}}", "a[3].b", "2", "{'a':{'b':2}}");
    writeRow("index behind an object, without a dot", "{'a':{'b':1}}", "a[3]b", "2", "{'a':{'b':2}}");
    writeRow("index behind a plain value", "{'a':1}", "a[3].b", "2", "{'a':2}");
    writeRow("index behind a missing name", "{}", "a[3].b", "2", "{'a':2}");
    writeRow("index at the end", "{'a':{'b':1}}", "a[0]", "2", "{'a':2}");
    // Arrays: an index in the middle enters the element, one at the end doesn't count.
    writeRow("array element at the end", "{'a':[1,2,3]}", "a[2]", "'n'", "{'a':'n'}");
    writeRow("array element's member", "{'a':[1,{'b':1,'c':2}]}", "a[1].b", "'n'",
             "{'a':[1,{'b':'n','c':2}]}");
    writeRow("array element's member, without a dot", "{'a':[{'b':1}]}", "a[0]b", "'n'", "{'a':[{'b':'n'}]}");
    writeRow("array element that is a number", "{'a':[1,2,3]}", "a[1].b", "'n'", "{'a':[1,'n',3]}");
    writeRow("array element's missing member", "{'a':[{}]}", "a[0].b.c", "'n'", "{'a':[{'b':'n'}]}");
    writeRow("array element's member removed", "{'a':[{'b':1,'c':2}]}", "a[0].b", "null", "{'a':[{'c':2}]}");
    writeRow("array element set to null", "{'a':[1,2,3]}", "a[1].b", "null", "{'a':[1,null,3]}");
    writeRow("array entered without an index", "{'a':[{'b':1},{'b':2}]}", "a.b", "'n'",
             "{'a':[{'b':'n'},{'b':2}]}");
    writeRow("array entered by a later index", "{'a':[{'b':1},{'b':2}]}", "a.b[1]", "'n'",
             "{'a':[{'b':1},{'b':'n'}]}");
    writeRow("array removed", "{'a':[1,2,3]}", "a[2]", "null", "{}");
    writeRow("element that isn't there", "{'a':[1,2]}", "a[2].b", "'n'", "{'a':[1,2]}");
    writeRow("element before the first", "{'a':[1,2]}", "a[-1].b", "'n'", "{'a':[1,2]}");
    writeRow("element of an empty array", "{'a':[]}", "a[0].b", "'n'", "{'a':[]}");
    writeRow("element that isn't there removed", "{'a':[1,2]}", "a[2].b", "null", "{'a':[1,2]}");
    writeRow("no number in brackets", "{'a':[1,2]}", "a[x].b", "'n'", "{'a':['n',2]}");
    writeRow("nothing in brackets", "{'a':[1,2]}", "a[].b", "'n'", "{'a':['n',2]}");
    writeRow("array in an array", "{'a':[1,[2,3]]}", "a[1].1", "'n'", "{'a':[1,['n',3]]}");
    writeRow("array in an array by index", "{'a':[1,[2,3]]}", "a[1].[1]", "'n'", "{'a':[1,[2,'n']]}");
    writeRow("array in an array, brackets alone", "{'a':[1,[2,3]]}", "a[1][1]", "'n'", "{'a':[1,[2,'n']]}");
    // Brackets that aren't a pair.
    writeRow("closing bracket", "{'a':1}", "a]", "2", "{'a':1,'a]':2}");
    writeRow("opening bracket", "{'a':{'b':1}}", "a[.b", "2", "{'a':2}");
    writeRow("brackets alone", "{'a':1}", "[]", "2", "{'':2,'a':1}");
    writeRow("brackets and a name", "{'':{'b':1}}", "[].b", "2", "{'':{'b':2}}");
    writeRow("brackets the wrong way round", "{'a':1}", "]b[", "2", "{']b':2,'a':1}");
}

void TestUtil::writes()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, after);
    QJsonDocument document = json(before.constData());
    const QJsonDocument copy = document;
    Util::modifyJsonValue(document, QString::fromLatin1(path), value(written.constData()));
    QCOMPARE(compact(document), compact(json(after.constData())));
    QCOMPARE(compact(copy), compact(json(before.constData())));
}

void TestUtil::writesBehindBrackets() { writes(); }

void TestUtil::writesIntoAnArray_data()
{
    writeColumns();
    // Fetched by the name, stored by the index.
    writeRow("by index", "[1,2,3]", "[1]", "'n'", "[1,'n',3]");
    writeRow("by name", "[1,2,3]", "1", "'n'", "['n',2,3]");
    writeRow("by name and index", "[1,2,3]", "1[2]", "'n'", "[1,2,'n']");
    writeRow("the object by name stored by index", "[{'a':1},{'a':2}]", "1.a", "'n'", "[{'a':'n'},{'a':2}]");
    writeRow("the first object stored by index", "[{'a':1},{'a':2}]", "[1].a", "'n'", "[{'a':1},{'a':'n'}]");
    writeRow("removed by index", "[1,2,3]", "[1]", "null", "[1,3]");
    writeRow("removed by name", "[1,2,3]", "1", "null", "[2,3]");
    writeRow("not there", "[1,2]", "[2]", "'n'", "[1,2]");
    writeRow("removed though not there", "[1,2]", "[2]", "null", "[1,2]");
    writeRow("before the first", "[1,2]", "[-1]", "'n'", "[1,2]");
    writeRow("below what isn't there", "[1,2]", "[2].a", "'n'", "[1,2]");
    writeRow("name not there", "[1,2]", "7.a", "'n'", "['n',2]");
    writeRow("empty array", "[]", "[0]", "'n'", "[]");
    writeRow("empty array, brackets alone", "[]", "[]", "'n'", "[]");
    writeRow("empty array, empty path", "[]", "", "'n'", "[]");
    writeRow("empty array removed", "[]", "a", "null", "[]");
    writeRow("empty array, below", "[]", "a.b.c", "'n'", "[]");
}

void TestUtil::writesIntoAnArray() { writes(); }

void TestUtil::logsAWriteIntoAPlainValue()
{
    QJsonDocument document = json("{'a':[1,2]}");
    Util::modifyJsonValue(document, QStringLiteral("a[1].b"), value("'n'"));
    QCOMPARE(messages::all(), QStringList{"Util::modifyJsonValue destValue: QJsonValue(double, 2)"});
    messages::clear();
    // A missing name and a plain member end the path without a word.
    Util::modifyJsonValue(document, QStringLiteral("x.b"), value("'n'"));
    Util::modifyJsonValue(document, QStringLiteral("x.b"), value("'m'"));
    Util::modifyJsonValue(document, QStringLiteral("a"), value("null"));
    QVERIFY(messages::all().isEmpty());
}

void TestUtil::writesOneValueOfTheDefaultDocument()
{
    const QJsonDocument before = documents::standard("R32");
    const auto changes = [&](const char *path, const QJsonValue &written) {
        QJsonDocument document = before;
        Util::modifyJsonValue(document, QLatin1String(path), written);
        return documents::changes(before, document);
    };
    QCOMPARE(changes("SettingInfo.user.themeSet", "other"),
             (QVariantMap{{"SettingInfo.user.themeSet", "other"}}));
    QCOMPARE(changes("SettingInfo.newGroup.leaf", "v"), (QVariantMap{{"SettingInfo.newGroup", "v"}}));
    QVERIFY(!Util::readJsonValue(before, "rsv.rsvStep").isNull());
    QCOMPARE(changes("rsv.rsvStep", {}), (QVariantMap{{"rsv.rsvStep", QVariant()}}));

    QVariantList list = before["OperInfo"]["setTempAir"].toArray().toVariantList();
    QVERIFY(list.size() > 4);
    list[4] = "v";
    QCOMPARE(changes("OperInfo.setTempAir[4].any", "v"), (QVariantMap{{"OperInfo.setTempAir", list}}));
}

void TestUtil::writesTheRecursiveForm()
{
    QJsonValue number(4);
    Util::modifyJsonValue(number, QStringLiteral("a.b"), value("'n'"));
    QCOMPARE(number, QJsonValue("n"));
    QJsonValue nothing;
    Util::modifyJsonValue(nothing, QStringLiteral("a"), value("{'b':1}"));
    QCOMPARE(nothing, value("{'b':1}"));
    QJsonValue object = value("{'a':{'b':1}}");
    Util::modifyJsonValue(object, QStringLiteral("a.b"), 2);
    QCOMPARE(object, value("{'a':{'b':2}}"));
    // A document that is none becomes an object.
    QJsonDocument none;
    Util::modifyJsonValue(none, QStringLiteral("a"), 1);
    QCOMPARE(none, json("{'a':1}"));
}

void TestUtil::undefinedIsLeftToTheObject()
{
    QJsonObject object = json("{'a':1,'b':2}").object();
    QJsonDocument document(object);
    Util::modifyJsonValue(document, QStringLiteral("a"), QJsonValue(QJsonValue::Undefined));
    object.insert(QStringLiteral("a"), QJsonValue(QJsonValue::Undefined));
    QCOMPARE(document, QJsonDocument(object));
}

void TestUtil::agreesWithTheSlowRules()
{
    QRandomGenerator dice(20240607);
    const QStringList bits{"a", "b", "list", "",    "0",   "1",    ".", ".",
                           ".", "[", "]",    "[0]", "[1]", "[2].", "[]"};
    const QVector<QJsonValue> values{value("'w'"), value("null"), value("{'b':3}"), value("[1,{'a':2}]")};
    QJsonValue root = value("{}");
    for (int round = 0; round < 20000; ++round) {
        if (round % 40 == 0) {
            root = round % 80 == 0
                ? value("{'a':{'b':{'a':[1,{'b':2},[3]]}},'list':[{'a':1},[2,{'b':3}],4],'':{'':1}}")
                : value("[{'a':{'b':1}},[1,{'a':2}],3]");
        }
        QString path;
        for (int bit = dice.bounded(7); bit > 0; --bit) {
            path += bits.at(dice.bounded(bits.size()));
        }
        const QJsonDocument before = root.isArray() ? QJsonDocument(root.toArray())
                                                    : QJsonDocument(root.toObject());
        QVERIFY2(Util::readJsonValue(before, path) == pathrules::read(before.object(), path),
                 qPrintable(path));

        const QJsonValue &written = values.at(dice.bounded(values.size()));
        QJsonDocument after = before;
        Util::modifyJsonValue(after, path, written);
        root = pathrules::write(root, path, written);
        QVERIFY2(root == (after.isArray() ? QJsonValue(after.array()) : QJsonValue(after.object())),
                 qPrintable(path + QLatin1Char(' ') + QString::fromUtf8(compact(before))));
        messages::clear();
    }
}

QTEST_APPLESS_MAIN(TestUtil)
#include "tst_util.moc"
