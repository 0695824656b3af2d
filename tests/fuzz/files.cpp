// A settings file is opened, every page is loaded, the document is saved and opened again. An input is the
// file itself, or in the form of script.h: its base is "R32" or "R410", followed by " closed" to keep the
// sections of the Installation tab closed and " F" to show °F.

#include "fuzz/changes.h"
#include "fuzz/pages.h"
#include "fuzz/script.h"
#include "fuzz/target.h"

#include "support/testfiles.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

/// The paths of all leaves and groups.
void collectPaths(const QJsonObject &object, const QByteArray &prefix, QVector<QByteArray> &paths)
{
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QByteArray path = prefix + member.key().toUtf8();
        paths.append(path);
        collectPaths(member->toObject(), path + '.', paths);
    }
}

class Files : public Target
{
public:
    Files();

    void run(const QByteArray &input) override;
    void runAfter() override;
    QByteArray anyBase(Dice &dice) const override;
    QByteArray anyPath(Dice &dice) const override;
    QByteArray anyValue(Dice &dice, const QByteArray &path) const override;

private:
    QStringList loadAgain();

    Pages pages;
    QMap<QString, QJsonDocument> standards;
    QJsonDocument standard;
    WrittenPaths written;
    QVector<QByteArray> paths;
};

Files::Files()
{
    for (const QString &name : {QStringLiteral("R32"), QStringLiteral("R410")}) {
        standards.insert(name, documents::standard(name));
    }
    standard = standards.value(QStringLiteral("R32"));
    collectPaths(standard.object(), QByteArray(), paths);
    paths += {"IduFuncList.isHotwaterTimerExpand",
              "SettingInfo.installation.OduFunctionMs",
              "SettingInfo.installation.is_indoor_model",
              "mine",
              "SettingInfo.mine",
              "SettingInfo.user.mine.own"};
    testfiles::put(pages.file("standard.json"), standard.toJson());
}

/// The leaves that one more load of the file changes. What stands in the place of a group isn't among them:
/// each write below it takes its place anew.
QStringList Files::loadAgain()
{
    const QJsonDocument saved = pages.document();
    pages.open(pages.file("input.json"));
    pages.showSettings();
    pages.save();
    QStringList changed;
    for (const QString &path : changes(saved, pages.document())) {
        if (!written.isAbove(path)) {
            changed.append(path);
        }
    }
    return changed;
}

// A value outside of its list can take some loads to come onto it, but then nothing changes any more. A good
// document after it finds no trace.
void Files::runAfter()
{
    QStringList changed;
    for (int left = 4; left > 0; --left) {
        changed = loadAgain();
        if (changed.isEmpty()) {
            break;
        }
    }
    if (!changed.isEmpty()) {
        fail("each load changes the document", changed.join('\n').toUtf8());
    }

    pages.setSectionsOpen(false);
    pages.window.dialog.setTempUnit(QStringLiteral("CENTIGRADE"));
    pages.open(pages.file("standard.json"));
    pages.showSettings();
    if (pages.document() != standard) {
        fail("the input before left a trace", changes(standard, pages.document()).join('\n').toUtf8());
    }
}

void Files::run(const QByteArray &input)
{
    static const QRegularExpression form(QStringLiteral("^(R32|R410)( closed)?( F)?$"));
    const Script script = Script::parse(input);
    const auto options = form.match(QString::fromLatin1(script.base));
    const QByteArray content = options.hasMatch()
        ? QJsonDocument(withLines(standards.value(options.captured(1)).object(), script.lines)).toJson()
        : input;
    const QString path = pages.file("input.json");
    testfiles::put(path, content);

    pages.setSectionsOpen(options.captured(2).isEmpty());
    pages.window.dialog.setTempUnit(options.captured(3).isEmpty() ? QStringLiteral("CENTIGRADE")
                                                                  : QStringLiteral("FAHRENHEIT"));
    pages.open(path);
    pages.loadSettings();
    const QJsonDocument shown = pages.document();
    written.expectOnlyThese(changes(QJsonDocument::fromJson(content), shown));

    pages.save();
    QMetaObject::invokeMethod(&pages.window.dialog, "loadJsonData", Q_ARG(QString, path));
    if (pages.document() != shown) {
        fail("what is opened again isn't what was saved",
             changes(shown, pages.document()).join('\n').toUtf8() + '\n' + testfiles::content(path));
    }
}

QByteArray Files::anyBase(Dice &dice) const
{
    return QByteArray(dice.once(2) ? "R32" : "R410") + (dice.once(3) ? " closed" : "")
        + (dice.once(3) ? " F" : "");
}

QByteArray Files::anyPath(Dice &dice) const { return dice.pick(paths); }

// Half of the values are of the kind that stands there, so that inputs come further than the first bad one.
QByteArray Files::anyValue(Dice &dice, const QByteArray &path) const
{
    static const QVector<QByteArray> known = words("settings.txt");
    if (dice.once(2)) {
        return dice.absurdValue();
    }
    QJsonValue there = standard.object();
    for (const QByteArray &name : path.split('.')) {
        there = there.toObject().value(QString::fromUtf8(name));
    }
    if (there.isDouble()) {
        return QByteArray::number(there.toInt() + dice.roll(41) - 20);
    }
    return dice.pick(known);
}

} // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<Files>(); }
