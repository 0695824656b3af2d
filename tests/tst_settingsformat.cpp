#include "support/languagefolder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QtTest>

// The bytes, the keys and the values of the default documents and of the English texts, held against tables
// in tests/data: path, R32 value and R410 value per line; language key and text per line.

namespace {

constexpr int leafCount = 393;
constexpr int differingCount = 27;

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

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString documentPath(const QString &refrigerant)
{
    return QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_%1.json").arg(refrigerant);
}

QString englishPath() { return QStringLiteral(":/language/English.json"); }

QVector<QList<QByteArray>> tableRows(const QString &name)
{
    QVector<QList<QByteArray>> rows;
    const QString path = QStringLiteral(TEST_DATA_DIR) + QLatin1Char('/') + name;
    for (const QByteArray &line : fileBytes(path).split('\n')) {
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
    const QVector<QList<QByteArray>> leaves = tableRows(QStringLiteral("default_document.tsv"));
    QCOMPARE(leaves.size(), leafCount);
    for (const QList<QByteArray> &row : leaves) {
        QCOMPARE(row.size(), 3);
    }
    const QVector<QList<QByteArray>> texts = tableRows(QStringLiteral("english.tsv"));
    QCOMPARE(texts.size(), languagefolder::textCount);
    for (const QList<QByteArray> &row : texts) {
        QCOMPARE(row.size(), 2);
    }
}

void SettingsFormatTest::documentBytes_data() { addRefrigerants(); }

void SettingsFormatTest::documentBytes()
{
    QFETCH(QString, refrigerant);
    const QByteArray bytes = fileBytes(documentPath(refrigerant));
    checkByteForm(bytes);
    for (const char byte : bytes) {
        QVERIFY(byte > 0 && byte < 127);
    }
}

void SettingsFormatTest::documentLeaves_data() { addRefrigerants(); }

void SettingsFormatTest::documentLeaves()
{
    QFETCH(QString, refrigerant);
    const QJsonObject document = QJsonDocument::fromJson(fileBytes(documentPath(refrigerant))).object();
    QStringList expectedPaths;
    for (const Leaf &leaf : expectedLeaves()) {
        const QJsonValue expected = refrigerant == QLatin1String("R32") ? leaf.r32 : leaf.r410;
        const QJsonValue actual = valueAt(document, leaf.path);
        QVERIFY2(actual.type() == expected.type(), qPrintable(leaf.path));
        QVERIFY2(actual == expected, qPrintable(leaf.path));
        expectedPaths.append(leaf.path);
    }
    Leaves actualLeaves;
    collectLeaves(document, QString(), actualLeaves);
    QCOMPARE(actualLeaves.size(), leafCount);
    for (const auto &leaf : qAsConst(actualLeaves)) {
        QVERIFY2(expectedPaths.contains(leaf.first), qPrintable(leaf.first));
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
    QCOMPARE(pathsInTextOrder(fileBytes(documentPath(refrigerant))), expectedPaths);
}

void SettingsFormatTest::documentLines_data() { addRefrigerants(); }

void SettingsFormatTest::documentLines()
{
    QFETCH(QString, refrigerant);
    const QByteArray bytes = fileBytes(documentPath(refrigerant));
    int from = 0;
    for (const Leaf &leaf : expectedLeaves()) {
        const QStringList keys = leaf.path.split(QLatin1Char('.'));
        const QJsonValue value = refrigerant == QLatin1String("R32") ? leaf.r32 : leaf.r410;
        const QByteArray line = "\r\n" + laidOut(keys.last().toUtf8(), value, keys.size());
        const int at = bytes.indexOf(line, from);
        QVERIFY2(at >= 0, qPrintable(leaf.path));
        from = at + line.size();
        QVERIFY2(bytes.at(from) == ',' || bytes.at(from) == '\r', qPrintable(leaf.path));
    }
}

void SettingsFormatTest::documentsDifferWhereTheyShould()
{
    const QJsonObject r32 = QJsonDocument::fromJson(fileBytes(documentPath(QStringLiteral("R32")))).object();
    const QJsonObject r410 = QJsonDocument::fromJson(fileBytes(documentPath(QStringLiteral("R410"))))
                                 .object();
    int differing = 0;
    for (const Leaf &leaf : expectedLeaves()) {
        const bool differs = valueAt(r32, leaf.path) != valueAt(r410, leaf.path);
        QVERIFY2(differs == (leaf.r32 != leaf.r410), qPrintable(leaf.path));
        differing += differs ? 1 : 0;
    }
    QCOMPARE(differing, differingCount);
}

void SettingsFormatTest::englishBytes()
{
    QList<QByteArray> lines;
    for (const Text &text : expectedTexts()) {
        lines.append("  \"" + text.key.toUtf8() + "\": " + text.json);
    }
    const QByteArray bytes = fileBytes(englishPath());
    checkByteForm(bytes);
    QCOMPARE(bytes, "{\r\n" + lines.join(",\r\n") + "\r\n}\r\n");
}

void SettingsFormatTest::englishTexts()
{
    const QJsonObject english = QJsonDocument::fromJson(fileBytes(englishPath())).object();
    QCOMPARE(english.size(), languagefolder::textCount);
    for (const Text &text : expectedTexts()) {
        const QJsonValue actual = english.value(text.key);
        QVERIFY2(actual.isString(), qPrintable(text.key));
        QVERIFY2(!actual.toString().isEmpty(), qPrintable(text.key));
        QCOMPARE(actual, jsonValue(text.json));
    }
}

QTEST_GUILESS_MAIN(SettingsFormatTest)

#include "tst_settingsformat.moc"
