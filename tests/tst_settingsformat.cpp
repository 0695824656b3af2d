#include "support/schema.h"
#include "support/testfiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QtTest>

// The bytes, the keys and the values of the default documents and of the English texts, held against tables
// in tests/data: path, R32 value and R410 value per line; language key and text per line. The tables are what
// other programs rely on; a key that has come since is held by the schema, a text by scripts/lint.

namespace {

struct Leaf {
    QString path;
    QJsonValue r32;
    QJsonValue r410;
};

struct Text {
    QString key;
    QByteArray json;
};

using Leaves = QVector<QPair<QString, QJsonValue>>;

QString documentPath(const QString &refrigerant)
{
    return QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_%1.json").arg(refrigerant);
}

QString englishPath() { return QStringLiteral(":/language/English.json"); }

QVector<QList<QByteArray>> tableRows(const QString &name)
{
    QVector<QList<QByteArray>> rows;
    const QString path = QStringLiteral(TEST_DATA_DIR) + QLatin1Char('/') + name;
    for (const QByteArray &line : testfiles::content(path).split('\n')) {
        if (!line.isEmpty()) {
            rows.append(line.split('\t'));
        }
    }
    return rows;
}

QJsonValue jsonValue(const QByteArray &json)
{
    return QJsonDocument::fromJson('[' + json + ']').array().at(0);
}

QVector<Leaf> expectedLeaves()
{
    QVector<Leaf> leaves;
    for (const QList<QByteArray> &row : tableRows(QStringLiteral("default_document.tsv"))) {
        leaves.append({QString::fromUtf8(row.value(0)), jsonValue(row.value(1)), jsonValue(row.value(2))});
    }
    return leaves;
}

QVector<Text> expectedTexts()
{
    QVector<Text> texts;
    for (const QList<QByteArray> &row : tableRows(QStringLiteral("english.tsv"))) {
        texts.append({QString::fromUtf8(row.value(0)), row.value(1)});
    }
    return texts;
}

QJsonValue valueAt(const QJsonObject &root, const QString &path)
{
    QJsonValue value = root;
    for (const QString &key : path.split(QLatin1Char('.'))) {
        value = value.toObject().value(key);
    }
    return value;
}

void collectLeaves(const QJsonObject &object, const QString &prefix, Leaves &leaves)
{
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString path = prefix + member.key();
        if (member.value().isObject()) {
            collectLeaves(member.value().toObject(), path + QLatin1Char('.'), leaves);
        } else {
            leaves.append({path, member.value()});
        }
    }
}

// The path of every leaf in the order of the text; relies on one key or one closing brace per line.
QStringList pathsInTextOrder(const QByteArray &text)
{
    QStringList paths;
    QStringList groups;
    for (const QByteArray &line : text.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith('}') && !groups.isEmpty()) {
            groups.removeLast();
        }
        if (!trimmed.startsWith('"') || !trimmed.contains("\": ")) {
            continue;
        }
        const QString key = QString::fromUtf8(trimmed.mid(1, trimmed.indexOf('"', 1) - 1));
        if (trimmed.endsWith('{')) {
            groups.append(key);
        } else {
            paths.append((groups + QStringList{key}).join(QLatin1Char('.')));
        }
    }
    return paths;
}

// The first line that breaks the layout, empty when none does: two spaces per level, nothing at the end of a
// line.
QByteArray firstBadLine(const QByteArray &text)
{
    int level = 0;
    for (QByteArray line : text.split('\n')) {
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        if (line.isEmpty()) {
            continue;
        }
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith('}') || trimmed.startsWith(']')) {
            --level;
        }
        if (line != QByteArray(2 * level, ' ') + trimmed) {
            return line;
        }
        if (trimmed.endsWith('{') || trimmed.endsWith('[')) {
            ++level;
        }
    }
    return level == 0 ? QByteArray() : QByteArray("unbalanced");
}

// Writes one value as the files do: an object or a list opens a level, every member or element has its own
// line.
QByteArray laidOut(const QByteArray &key, const QJsonValue &value, int level)
{
    const QByteArray start = QByteArray(2 * level, ' ') + '"' + key + "\": ";
    if (!value.isArray()) {
        const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        return start + json.mid(1, json.size() - 2);
    }
    QList<QByteArray> lines;
    for (const auto &element : value.toArray()) {
        lines.append(QByteArray(2 * level + 2, ' ') + QByteArray::number(element.toInt()));
    }
    return start + "[\r\n" + lines.join(",\r\n") + "\r\n" + QByteArray(2 * level, ' ') + ']';
}

} // namespace

class SettingsFormatTest : public QObject
{
    Q_OBJECT

private slots:
    void tablesAreWhole();
    void documentBytes_data();
    void documentBytes();
    void documentLeaves_data();
    void documentLeaves();
    void documentOrder_data();
    void documentOrder();
    void documentLines_data();
    void documentLines();
    void documentsDifferWhereTheyShould();
    void englishBytes();
    void englishTexts();

private:
    void addRefrigerants();
    void checkByteForm(const QByteArray &bytes);
};

void SettingsFormatTest::addRefrigerants()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::newRow("R32") << QStringLiteral("R32");
    QTest::newRow("R410") << QStringLiteral("R410");
}

void SettingsFormatTest::checkByteForm(const QByteArray &bytes)
{
    QVERIFY(bytes.startsWith("{\r\n"));
    QVERIFY(bytes.endsWith("\r\n}\r\n"));
    QCOMPARE(bytes.count('\r'), bytes.count('\n'));
    QCOMPARE(bytes.count("\r\n"), bytes.count('\n'));
    QVERIFY(!bytes.contains('\t'));
    QVERIFY(!bytes.contains("\r\n\r\n"));
    QCOMPARE(firstBadLine(bytes), QByteArray());
    QJsonParseError error;
    QVERIFY(QJsonDocument::fromJson(bytes, &error).isObject());
    QCOMPARE(error.error, QJsonParseError::NoError);
}

void SettingsFormatTest::tablesAreWhole()
{
    for (const QList<QByteArray> &row : tableRows(QStringLiteral("default_document.tsv"))) {
        QCOMPARE(row.size(), 3);
    }
    for (const QList<QByteArray> &row : tableRows(QStringLiteral("english.tsv"))) {
        QCOMPARE(row.size(), 2);
    }
    QVERIFY(!expectedLeaves().isEmpty() && !expectedTexts().isEmpty());
}

void SettingsFormatTest::documentBytes_data() { addRefrigerants(); }

void SettingsFormatTest::documentBytes()
{
    QFETCH(QString, refrigerant);
    const QByteArray bytes = testfiles::content(documentPath(refrigerant));
    checkByteForm(bytes);
    for (const char byte : bytes) {
        QVERIFY(byte > 0 && byte < 127);
    }
}

void SettingsFormatTest::documentLeaves_data() { addRefrigerants(); }

void SettingsFormatTest::documentLeaves()
{
    QFETCH(QString, refrigerant);
    const QJsonObject document = QJsonDocument::fromJson(testfiles::content(documentPath(refrigerant)))
                                     .object();
    QStringList known = schema::written();
    for (const Leaf &leaf : expectedLeaves()) {
        const QJsonValue expected = refrigerant == QLatin1String("R32") ? leaf.r32 : leaf.r410;
        const QJsonValue actual = valueAt(document, leaf.path);
        QVERIFY2(actual.type() == expected.type(), qPrintable(leaf.path));
        QVERIFY2(actual == expected, qPrintable(leaf.path));
        known.append(leaf.path);
    }
    Leaves actualLeaves;
    collectLeaves(document, QString(), actualLeaves);
    for (const auto &leaf : qAsConst(actualLeaves)) {
        QVERIFY2(known.contains(leaf.first), qPrintable(leaf.first));
    }
}

void SettingsFormatTest::documentOrder_data() { addRefrigerants(); }

void SettingsFormatTest::documentOrder()
{
    QFETCH(QString, refrigerant);
    QStringList expectedPaths;
    for (const Leaf &leaf : expectedLeaves()) {
        expectedPaths.append(leaf.path);
    }
    QStringList paths = pathsInTextOrder(testfiles::content(documentPath(refrigerant)));
    QCOMPARE(paths.size(), QSet<QString>(paths.begin(), paths.end()).size());
    paths.erase(std::remove_if(paths.begin(), paths.end(),
                               [&](const QString &path) { return !expectedPaths.contains(path); }),
                paths.end());
    QCOMPARE(paths, expectedPaths);
}

void SettingsFormatTest::documentLines_data() { addRefrigerants(); }

void SettingsFormatTest::documentLines()
{
    QFETCH(QString, refrigerant);
    const QByteArray bytes = testfiles::content(documentPath(refrigerant));
    const QJsonObject document = QJsonDocument::fromJson(bytes).object();
    int from = 0;
    for (const QString &path : pathsInTextOrder(bytes)) {
        const QStringList keys = path.split(QLatin1Char('.'));
        const QByteArray line = "\r\n" + laidOut(keys.last().toUtf8(), valueAt(document, path), keys.size());
        const int at = bytes.indexOf(line, from);
        QVERIFY2(at >= 0, qPrintable(path));
        from = at + line.size();
        QVERIFY2(bytes.at(from) == ',' || bytes.at(from) == '\r', qPrintable(path));
    }
}

void SettingsFormatTest::documentsDifferWhereTheyShould()
{
    const QJsonObject r32 = QJsonDocument::fromJson(testfiles::content(documentPath(QStringLiteral("R32"))))
                                .object();
    const QJsonObject r410 = QJsonDocument::fromJson(testfiles::content(documentPath(QStringLiteral("R410"))))
                                 .object();
    QSet<QString> expected;
    for (const Leaf &leaf : expectedLeaves()) {
        if (leaf.r32 != leaf.r410) {
            expected.insert(leaf.path);
        }
    }
    Leaves all;
    collectLeaves(r32, QString(), all);
    QSet<QString> differing;
    for (const auto &leaf : qAsConst(all)) {
        if (leaf.second != valueAt(r410, leaf.first)) {
            differing.insert(leaf.first);
        }
    }
    QCOMPARE(differing, expected);
}

void SettingsFormatTest::englishBytes()
{
    const QByteArray bytes = testfiles::content(englishPath());
    checkByteForm(bytes);
    const QRegularExpression line(QStringLiteral(R"(^  "\w+": "([^"\\]|\\.)+",?\r$)"));
    QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n')).mid(1);
    lines.erase(lines.end() - 2, lines.end());
    for (const QString &each : qAsConst(lines)) {
        QVERIFY2(line.match(each).hasMatch(), qPrintable(each));
    }
    int from = 0;
    for (const Text &text : expectedTexts()) {
        const QString expected = QLatin1String("  \"") + text.key + QLatin1String("\": ")
            + QString::fromUtf8(text.json);
        from = 1
            + lines.indexOf(QRegularExpression(QRegularExpression::escape(expected) + QLatin1String(",?\r")),
                            from);
        QVERIFY2(from > 0, qPrintable(expected));
    }
}

void SettingsFormatTest::englishTexts()
{
    const QJsonObject english = QJsonDocument::fromJson(testfiles::content(englishPath())).object();
    for (const Text &text : expectedTexts()) {
        const QJsonValue actual = english.value(text.key);
        QVERIFY2(actual.isString(), qPrintable(text.key));
        QVERIFY2(!actual.toString().isEmpty(), qPrintable(text.key));
        QCOMPARE(actual, jsonValue(text.json));
    }
}

QTEST_GUILESS_MAIN(SettingsFormatTest)

#include "tst_settingsformat.moc"
