// Reading and writing by path, against the same rules told slowly. The first line of an input is the
// document, "R32" or "R410" for a default one; each further line is read, and written when it has a value.

#include "fuzz/script.h"
#include "fuzz/target.h"

#include "document/util.h"
#include "support/documents.h"
#include "support/pathrules.h"

#include <QJsonArray>

namespace {

void beSilent(QtMsgType, const QMessageLogContext &, const QString &) {}

QJsonDocument documentOf(const QByteArray &base)
{
    static const QJsonDocument r32 = documents::standard(QStringLiteral("R32"));
    static const QJsonDocument r410 = documents::standard(QStringLiteral("R410"));
    return base == "R32" ? r32 : base == "R410" ? r410 : QJsonDocument::fromJson(base);
}

QJsonValue rootOf(const QJsonDocument &document)
{
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

void expect(bool good, const char *what, const QJsonDocument &document, const QString &path)
{
    if (!good) {
        fail(what, path.toUtf8() + '\n' + document.toJson(QJsonDocument::Compact));
    }
}

class Paths : public Target
{
public:
    Paths() { qInstallMessageHandler(beSilent); }

    void run(const QByteArray &input) override;
    QByteArray anyBase(Dice &dice) const override;
    QByteArray anyPath(Dice &dice) const override;
    QByteArray anyValue(Dice &dice, const QByteArray &path) const override;

private:
    static QByteArray anyName(Dice &dice);
    static QByteArray anyTree(Dice &dice, int depth);
};

void Paths::run(const QByteArray &input)
{
    const Script script = Script::parse(input);
    QJsonDocument document = documentOf(script.base);
    for (const Script::Line &line : script.lines) {
        const QJsonDocument before = document;
        const QJsonValue root = rootOf(before);
        const QJsonValue found = Util::readJsonValue(document, line.path);
        expect(found == pathrules::read(document.object(), line.path), "read", before, line.path);
        expect(!found.isUndefined(), "read gives undefined", before, line.path);
        if (!line.hasValue) {
            continue;
        }
        Util::modifyJsonValue(document, line.path, line.value);
        const QJsonValue expected = pathrules::write(root, line.path, line.value);
        expect(rootOf(document) == expected, "write", before, line.path);
        expect(rootOf(before) == root, "a write reaches a copy", before, line.path);

        QJsonValue value = root;
        Util::modifyJsonValue(value, line.path, line.value);
        expect(value == expected, "write into a value", before, line.path);
    }
}

QByteArray Paths::anyName(Dice &dice)
{
    static const QVector<QByteArray> names{"a", "b",  "c",  "",   "0",   "1",
                                           "2", "-1", " 1", "+1", "x y", "\xc3\xa9"};
    return dice.pick(names);
}

QByteArray Paths::anyTree(Dice &dice, int depth)
{
    const int kind = depth > 0 ? dice.roll(5) : 4;
    if (kind == 4) {
        return dice.once(3) ? dice.absurdValue() : QByteArray::number(dice.roll(10));
    }
    const bool object = kind < 3;
    QByteArrayList members;
    for (int left = dice.roll(4); left > 0; --left) {
        QByteArray value = anyTree(dice, depth - 1);
        if (value == "undefined") {
            value = "null";
        }
        members.append(object ? '"' + anyName(dice) + "\":" + value : value);
    }
    return object ? '{' + members.join(',') + '}' : '[' + members.join(',') + ']';
}

// A default document is long, which makes an execution slow: the seeds have them.
QByteArray Paths::anyBase(Dice &dice) const { return anyTree(dice, 5); }

QByteArray Paths::anyPath(Dice &dice) const
{
    static const QVector<QByteArray> joints{
        ".", ".",  ".",     ".",    "[0]",    "[1].",          "[0].", "[2]", "[",
        "]", "[]", "[-1].", "[x].", "[ 1 ].", "[4294967297].", "][",   "..",  "].["};
    static const QVector<QByteArray> known{"SettingInfo.user.DateInfo.year",
                                           "OperInfo.setTempAir[4]",
                                           "OperInfo.setTempAir[4].x",
                                           "SettingInfo.newGroup.leaf",
                                           "rsv.rsvStep",
                                           "SettingInfo.installation"};
    if (dice.once(20)) {
        return dice.pick(known);
    }
    QByteArray path = anyName(dice);
    for (int left = dice.roll(6); left > 0; --left) {
        path += dice.pick(joints) + anyName(dice);
    }
    return path;
}

QByteArray Paths::anyValue(Dice &dice, const QByteArray & /*path*/) const
{
    return dice.once(2) ? dice.absurdValue() : anyTree(dice, 2);
}

} // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<Paths>(); }
